// SPDX-License-Identifier: MIT
#include "maria.hpp"

#include "maria_table.hpp"
#include "noise.hpp"

#include <algorithm>
#include <span>
#include <vector>

namespace moonpicture {

namespace {

constexpr double highlandTone = 0.695;

/// A patch made ready for measuring: axes as vectors, their lengths in lunar radii.
struct Ellipse {
    Vec3 centre;
    Vec3 majorAxis;
    Vec3 minorAxis;
    double major;
    double minor;
    double horizon; ///< cosine beyond which nothing of the patch can be felt
    double tone;
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
            .tone = patch.tone};
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
};

/// Depth within the union of the patches; the tone is the mean, weighted by the depth in each.
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
        weights += weight;
    }
    standing.tone /= weights;
    return standing;
}

/// Shores are crisp in one place and wash out in another.
double shoreSoftness(const Site& site) {
    return 0.007 + 0.024 * smoothStep(-0.3, 0.7, site.broad);
}

double coverage(const Site& site, double depth) {
    const double ragged = depth + 0.0100 * site.clumps + 0.0060 * site.grain;
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

/// Near its shores the lava is thin and dusted with the debris of the hills.
double shallows(double depth) {
    return 0.045 * (1.0 - smoothStep(0.0, 0.045, depth));
}

/// Hills too small to name. They are flattened towards the limb, where foreshortening would turn
/// their slopes into bristles.
double roughness(const Site& site) {
    return (0.020 * site.clumps + 0.030 * site.grain) * site.point.z;
}

struct Ground {
    std::vector<Ellipse> maria = ellipsesOf(mariaPatches);
    std::vector<Ellipse> islands = ellipsesOf(highlandIslands);
    std::vector<Ellipse> shades = ellipsesOf(toneShades);
};

void paintSite(const Ground& ground, Site& site) {
    const Standing sea = standingIn(ground.maria, site.warped);
    const Standing island = standingIn(ground.islands, site.warped);
    const double onIsland = coverage(site, island.depth);
    const double shade = shadeAt(ground.shades, site.warped);
    const double open = coverage(site, sea.depth);
    const double high = highlandTone + highlandMottling(site);
    const double low = sea.tone + mariaMottling(site) + shallows(sea.depth);
    const double land = high + (low - high) * open;
    const double raised = island.tone + highlandMottling(site);
    site.sea = open * (1.0 - onIsland);
    site.height = roughness(site) * (1.0 - 0.85 * site.sea);
    site.tone = land + (raised - land) * onIsland * open + shade;
}

} // namespace

void paintGround(Plane& plane) {
    const Ground ground;
    plane.forEach([&](Site& site) { paintSite(ground, site); });
}

} // namespace moonpicture
