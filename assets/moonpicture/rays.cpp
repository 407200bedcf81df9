// SPDX-License-Identifier: MIT
#include "rays.hpp"

#include "noise.hpp"
#include "rays_table.hpp"

#include <algorithm>
#include <cstdint>

namespace moonpicture {

namespace {

constexpr double rayTone = 1.04;

/// Fresh ejecta brighten dark ground more than ground that is bright already.
void brighten(Site& site, double amount) {
    site.tone += std::max(rayTone - site.tone, 0.0) * std::clamp(amount, 0.0, 1.0);
}

/// Rays are chains of smudges rather than strokes of a pen.
double patchiness(const Site& site) {
    return std::clamp(0.75 + 0.60 * site.clumps + 0.50 * site.grain, 0.1, 1.5);
}

/// A ray system made ready for painting.
struct Burst {
    Frame frame;
    double apron;
    double reach;
    double strength;
    double fineness;
    Vec3 avoided;         ///< direction of the empty sector
    double avoidedCosine; ///< of its half width; above 1 for no such sector
    std::uint32_t seed;
};

Burst burstOf(const RaySystem& system, std::uint32_t seed) {
    const Frame frame = frameAt(system.latitude, system.longitude);
    const bool whole = system.avoidedHalf <= 0.0;
    return {.frame = frame,
            .apron = kmToUnits(system.apron),
            .reach = kmToUnits(system.reach),
            .strength = system.strength,
            .fineness = system.fineness,
            .avoided = heading(frame, system.avoidedCentre),
            .avoidedCosine = whole ? 2.0 : cosDegrees(system.avoidedHalf),
            .seed = seed};
}

/// The direction from the middle of a burst to a site, as a unit vector in the tangent plane.
Vec3 bearingTo(const Burst& burst, const Site& site) {
    const Vec3 away = site.warped - burst.frame.centre;
    const double east = dot(away, burst.frame.east);
    const double north = dot(away, burst.frame.north);
    const double size = std::sqrt(east * east + north * north) + 1e-9;
    return {east / size, north / size, 0.0};
}

/// Bright streaks where noise, taken around the circle of bearings, rises above its mean.
double streaks(const Burst& burst, Vec3 bearing, double t) {
    const Vec3 around{bearing.x * burst.fineness, bearing.y * burst.fineness, 2.2 * t};
    const double wide = gradientNoise(around, burst.seed);
    const double fine = gradientNoise({around.x * 2.3, around.y * 2.3, 5.0 * t}, burst.seed + 1U);
    return smoothStep(-0.10, 0.95, wide + 0.50 * fine);
}

/// 1, or less towards and within the sector that the rays avoid.
double sector(const Burst& burst, Vec3 bearing) {
    const Vec3 direction = burst.frame.east * bearing.x + burst.frame.north * bearing.y;
    const double cosine = dot(direction, burst.avoided);
    return 1.0 - smoothStep(burst.avoidedCosine - 0.25, burst.avoidedCosine + 0.05, cosine);
}

double apronLight(const Burst& burst, double distance) {
    const double rest = std::max(1.0 - distance / burst.apron, 0.0);
    return rest * (0.55 + 0.45 * rest);
}

double streakLight(const Burst& burst, Vec3 bearing, double distance) {
    const double t = distance / burst.reach;
    const double rest = 1.0 - t;
    return smoothStep(0.0, 0.3, t) * rest * rest * streaks(burst, bearing, t);
}

void paintBurst(Plane& plane, const Burst& burst) {
    plane.forEachNear(burst.frame.centre, burst.reach, [&](Site& site, double distance) {
        const Vec3 bearing = bearingTo(burst, site);
        const double light =
            0.95 * apronLight(burst, distance) + 1.05 * streakLight(burst, bearing, distance);
        brighten(site, burst.strength * sector(burst, bearing) * patchiness(site) * light);
    });
}

/// A long ray made ready for painting.
struct Streak {
    Vec3 start;
    Vec3 forward; ///< direction of the ray at its start
    Vec3 side;    ///< pole of the great circle it follows
    double length;
    double halfWidth;
    double strength;
};

Streak streakOf(const LongRay& ray) {
    const Vec3 start = pointAt(ray.fromLatitude, ray.fromLongitude);
    const Vec3 end = pointAt(ray.toLatitude, ray.toLongitude);
    const Vec3 side = normalized(cross(start, end));
    return {.start = start,
            .forward = cross(side, start),
            .side = side,
            .length = length(end - start),
            .halfWidth = kmToUnits(ray.halfWidth),
            .strength = ray.strength};
}

/// Between the true point and the warped one: rays waver, but much less than shores do.
Vec3 wavering(const Site& site) {
    return site.point * 0.75 + site.warped * 0.25;
}

/// Brightness across a ray, which widens outwards from its crater.
double acrossRay(const Streak& streak, Vec3 p, double t) {
    const double width = streak.halfWidth * (0.6 + 0.9 * t);
    const double off = dot(p, streak.side) / width;
    return 1.0 / (1.0 + off * off * off * off + off * off);
}

double alongRay(double t) {
    return 1.0 - smoothStep(0.35, 1.0, t);
}

void paintStreak(Plane& plane, const Streak& streak) {
    plane.forEachNear(streak.start, streak.length, [&](Site& site, double distance) {
        const Vec3 p = wavering(site);
        const double ahead = smoothStep(0.0, 0.03, dot(p, streak.forward));
        const double t = distance / streak.length;
        const double light = ahead * acrossRay(streak, p, t) * alongRay(t);
        if (light > 0.02)
            brighten(site, streak.strength * patchiness(site) * light);
    });
}

void paintCollar(Plane& plane, const DarkCollar& collar) {
    const Vec3 centre = pointAt(collar.latitude, collar.longitude);
    const double radius = kmToUnits(collar.radius);
    const double halfWidth = kmToUnits(collar.halfWidth);
    plane.forEachNear(centre, radius + halfWidth, [&](Site& site, double distance) {
        const double off = (distance - radius) / halfWidth;
        site.tone -= collar.strength * std::max(1.0 - off * off, 0.0);
    });
}

} // namespace

void paintRays(Plane& plane) {
    std::uint32_t seed = 7000;
    for (const RaySystem& system : raySystems)
        paintBurst(plane, burstOf(system, seed += 10U));
    for (const LongRay& ray : longRays)
        paintStreak(plane, streakOf(ray));
    paintCollar(plane, tychoCollar);
}

} // namespace moonpicture
