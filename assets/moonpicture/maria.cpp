// SPDX-License-Identifier: MIT
#include "maria.hpp"

#include "maria_table.hpp"
#include "noise.hpp"
#include "site.hpp"

#include <algorithm>
#include <span>
#include <vector>

namespace moonpicture {

namespace {

constexpr double highlandTone = 0.71;
constexpr double highlandTint = 0.15;

/// A patch made ready for measuring: axes as vectors, their lengths in lunar radii.
struct Ellipse {
    Vec3 centre;
    Vec3 majorAxis;
    Vec3 minorAxis;
    double major;
    double minor;
    double horizon; ///< cosine beyond which nothing of the patch can be felt
    double tone;
    double tint;
};

Ellipse ellipseOf(const Patch& patch) {
    const Frame frame = frameAt(patch.latitude, patch.longitude);
    const double widest = std::max(patch.semiMajor, patch.semiMinor);
    return {.centre = frame.centre,
            .majorAxis = heading(frame, patch.bearing),
            .minorAxis = heading(frame, patch.bearing + 90.0),
            .major = sinDegrees(patch.semiMajor),
            .minor = sinDegrees(patch.semiMinor),
            .horizon = cosDegrees(1.25 * widest + 4.0),
            .tone = patch.tone,
            .tint = patch.tint};
}

std::vector<Ellipse> ellipsesOf(std::span<const Patch> patches) {
    std::vector<Ellipse> ellipses;
    ellipses.reserve(patches.size());
    for (const Patch& patch : patches)
        ellipses.push_back(ellipseOf(patch));
    return ellipses;
}

bool isNear(const Ellipse& ellipse, Vec3 p) {
    return dot(p, ellipse.centre) > ellipse.horizon;
}

/// 0 at the centre, 1 on the outline.
double relativeRadius(const Ellipse& ellipse, Vec3 p) {
    const double u = dot(p, ellipse.majorAxis) / ellipse.major;
    const double v = dot(p, ellipse.minorAxis) / ellipse.minor;
    return std::sqrt(u * u + v * v);
}

/// How deep inside the outline a point lies, in lunar radii; negative outside.
double depthIn(const Ellipse& ellipse, Vec3 p) {
    return (1.0 - relativeRadius(ellipse, p)) * std::min(ellipse.major, ellipse.minor);
}

/// The larger of two depths, with the notch between two meeting outlines rounded off
/// (the quadratic smooth maximum).
double roundedMax(double a, double b) {
    constexpr double blend = 0.020;
    const double overlap = std::max(blend - std::abs(a - b), 0.0) / blend;
    return std::max(a, b) + overlap * overlap * blend * 0.25;
}

/// Where a point stands among a set of patches.
struct Standing {
    double depth = -1.0;
    double tone = 0.0;
    double tint = 0.0;
};

/// Depth within the union of the patches; tone and tint are means, weighted by the depth in each.
Standing standingIn(const std::vector<Ellipse>& ellipses, Vec3 p) {
    constexpr double toneReach = 0.035; // lets the tone be known a little beyond the outlines
    Standing standing;
    double weights = 1e-9;
    for (const Ellipse& ellipse : ellipses) {
        if (!isNear(ellipse, p))
            continue;
        const double depth = depthIn(ellipse, p);
        const double reached = std::max(depth + toneReach, 0.0);
        const double weight = reached * reached;
        standing.depth = roundedMax(standing.depth, depth);
        standing.tone += weight * ellipse.tone;
        standing.tint += weight * ellipse.tint;
        weights += weight;
    }
    standing.tone /= weights;
    standing.tint /= weights;
    return standing;
}

/// A bow made ready for measuring.
struct Arc {
    Vec3 centre;
    Vec3 gap; ///< direction of its opening
    double gapCosine;
    double inner;
    double outer;
    double tone;
};

Arc arcOf(const Bow& bow) {
    const Frame frame = frameAt(bow.latitude, bow.longitude);
    return {.centre = frame.centre,
            .gap = heading(frame, bow.gap),
            .gapCosine = cosDegrees(bow.gapHalf),
            .inner = sinDegrees(bow.inner),
            .outer = sinDegrees(bow.outer),
            .tone = bow.tone};
}

std::vector<Arc> arcsOf(std::span<const Bow> bows) {
    std::vector<Arc> arcs;
    arcs.reserve(bows.size());
    for (const Bow& bow : bows)
        arcs.push_back(arcOf(bow));
    return arcs;
}

/// As for patches; the ends of the bow taper like capes, and its inner scarp is bright.
Standing standingIn(const Arc& arc, Vec3 p) {
    const Vec3 away = p - arc.centre;
    const double radius = length(away);
    const double fromGap = arc.gapCosine * radius - dot(away, arc.gap);
    return {.depth = std::min({radius - arc.inner, arc.outer - radius, fromGap}),
            .tone = arc.tone + 0.10 * (1.0 - smoothStep(0.0, 0.020, radius - arc.inner)),
            .tint = highlandTint};
}

/// Shores are crisp in one place and wash out a little in another.
double shoreSoftness(const Site& site) {
    return 0.0050 + 0.0170 * smoothStep(-0.2, 0.8, site.broad + 0.4 * site.clumps);
}

double coverage(const Site& site, double depth) {
    const double ragged = depth + 0.0120 * site.clumps + 0.0040 * site.grain;
    const double softness = shoreSoftness(site);
    return smoothStep(-softness, softness, ragged);
}

double shadeAt(const std::vector<Ellipse>& shades, Vec3 p) {
    double sum = 0.0;
    for (const Ellipse& shade : shades)
        if (isNear(shade, p))
            sum += shade.tone * (1.0 - smoothStep(0.1, 1.25, relativeRadius(shade, p)));
    return sum;
}

double highlandMottling(const Site& site) {
    return 0.070 * site.broad + 0.075 * site.clumps + 0.060 * site.grain;
}

double mariaMottling(const Site& site) {
    return 0.045 * site.broad + 0.034 * site.clumps + 0.020 * site.grain;
}

/// Floods end in thin sheets and seldom in a step.
double flooding(const Site& site, double depth) {
    return 0.9 * smoothStep(-0.012, 0.050, depth + 0.016 * site.clumps + 0.006 * site.grain);
}

/// Near its shores the lava is thin and dusted with the debris of the hills.
double shallows(double depth) {
    return 0.030 * (1.0 - smoothStep(0.0, 0.025, depth));
}

/// Hills too small to name. They are flattened towards the limb, where foreshortening would turn
/// their slopes into bristles.
double roughness(const Site& site) {
    return (0.020 * site.clumps + 0.030 * site.grain) * site.point.z;
}

/// Tone and tint of some ground.
struct Ground {
    double tone;
    double tint;
};

Ground covered(Ground below, Ground above, double amount) {
    return {below.tone + (above.tone - below.tone) * amount,
            below.tint + (above.tint - below.tint) * amount};
}

struct Map {
    std::vector<Ellipse> maria = ellipsesOf(mariaPatches);
    std::vector<Ellipse> flows = ellipsesOf(lavaFlows);
    std::vector<Ellipse> islands = ellipsesOf(highlandIslands);
    std::vector<Ellipse> shades = ellipsesOf(toneShades);
    std::vector<Arc> bows = arcsOf(highlandBows);
};

Ground plainAt(const Map& map, const Site& site, const Standing& sea) {
    const Standing flow = standingIn(map.flows, site.warped);
    const Ground lava =
        covered({sea.tone, sea.tint}, {flow.tone, flow.tint}, flooding(site, flow.depth));
    return {lava.tone + mariaMottling(site) + shallows(sea.depth), lava.tint};
}

/// The highest of the islands and bows at a site.
Standing islandAt(const Map& map, const Site& site) {
    Standing highest = standingIn(map.islands, site.warped);
    for (const Arc& bow : map.bows) {
        const Standing other = standingIn(bow, site.warped);
        if (other.depth > highest.depth)
            highest = other;
    }
    return highest;
}

void paintSite(const Map& map, Site& site) {
    const Standing sea = standingIn(map.maria, site.warped);
    const Standing island = islandAt(map, site);
    const double mottling = highlandMottling(site);
    const double open = coverage(site, sea.depth);
    const double onIsland = coverage(site, island.depth);
    const Ground land =
        covered({highlandTone + mottling, highlandTint}, plainAt(map, site, sea), open);
    const Ground ground = covered(land, {island.tone + mottling, island.tint}, onIsland * open);
    site.sea = open * (1.0 - onIsland);
    site.height = roughness(site) * (1.0 - 0.85 * site.sea);
    site.tone = ground.tone + shadeAt(map.shades, site.warped);
    site.tint = ground.tint;
}

} // namespace

void paintGround(Plane& plane) {
    const Map map;
    plane.forEach([&](Site& site) { paintSite(map, site); });
}

} // namespace moonpicture
