// SPDX-License-Identifier: MIT
#include "rays.hpp"

#include "noise.hpp"
#include "rays_table.hpp"
#include "site.hpp"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace moonpicture {

namespace {

constexpr double rayTone = 0.99;

/// Fresh ejecta brighten dark ground more than ground that is bright already.
void brighten(Site& site, double amount) {
    site.tone += std::max(rayTone - site.tone, 0.0) * std::clamp(amount, 0.0, 1.0);
}

/// Rays are chains of smudges rather than strokes of a pen.
double patchiness(const Site& site) {
    return std::clamp(0.80 + 0.55 * site.clumps + 0.45 * site.grain, 0.05, 1.6);
}

/// The ground that is bright all over, nearest to the crater.
void paintApron(Plane& plane, const RaySystem& system) {
    const Vec3 centre = pointAt(system.latitude, system.longitude);
    const double radius = kmToUnits(system.apron);
    plane.forEachNear(centre, radius, [&](Site& site, double distance) {
        const double rest = 1.0 - distance / radius;
        brighten(site, 0.75 * system.strength * patchiness(site) * rest * (0.4 + 0.6 * rest));
    });
}

/// One feather of a ray: a short stroke along a great circle.
struct Feather {
    Vec3 start;
    Vec3 forward; ///< direction at its start
    double length;
    double halfWidth;
    double strength;
};

/// Between the true point and the warped one: rays waver, but much less than shores do.
Vec3 wavering(const Site& site) {
    return site.point * 0.68 + site.warped * 0.32;
}

/// Narrow where it starts, wider and fading where it ends; `t` and `off` are shares of its length
/// and of its width there.
double lightWithin(double t, double off) {
    const double across = std::max(1.0 - off * off, 0.0);
    return across * across * smoothStep(0.0, 0.20, t) * (1.0 - smoothStep(0.30, 1.0, t));
}

void paintFeather(Plane& plane, const Feather& feather) {
    const Vec3 side = cross(feather.start, feather.forward);
    const Vec3 middle = feather.start + feather.forward * (0.5 * feather.length);
    const double reach = 0.6 * feather.length + feather.halfWidth;
    plane.forEachNear(normalized(middle), reach, [&](Site& site, double) {
        const Vec3 p = wavering(site);
        const double t = dot(p, feather.forward) / feather.length;
        const double off = dot(p, side) / (feather.halfWidth * (0.5 + t));
        if (t > 0.0 && t < 1.0 && std::abs(off) < 1.0)
            brighten(site, feather.strength * patchiness(site) * lightWithin(t, off));
    });
}

/// A place on the ground and a direction along it.
struct Course {
    Vec3 place;
    Vec3 forward;
};

/// Goes `angle` degrees along the great circle.
Course advanced(const Course& course, double angle) {
    const double c = cosDegrees(angle);
    const double s = sinDegrees(angle);
    return {course.place * c + course.forward * s, course.forward * c - course.place * s};
}

/// Turns to the right of the course.
Course turned(const Course& course, double angle) {
    const Vec3 right = cross(course.forward, course.place);
    return {course.place, course.forward * cosDegrees(angle) + right * sinDegrees(angle)};
}

constexpr double degreesOf(double km) {
    return km / (moonRadiusKm * std::numbers::pi / 180.0);
}

// No call below draws chance for two of its arguments, whose order is the compiler's choice.

/// Short feathers all around, out of which the uneven edge of the bright ground is made.
void paintFringe(Plane& plane, const RaySystem& system, const Course& north, Generator& chance) {
    const int feathers = 10 * system.rays;
    const double apron = degreesOf(system.apron);
    for (int i = 0; i < feathers; ++i) {
        const Course outward = turned(north, chance.between(0.0, 360.0));
        const Course place = advanced(outward, apron * chance.between(0.1, 0.8));
        const Course start = turned(place, chance.between(-12.0, 12.0));
        paintFeather(plane, {.start = start.place,
                             .forward = start.forward,
                             .length = kmToUnits(system.apron) * chance.between(0.4, 1.3),
                             .halfWidth = kmToUnits(system.apron) * chance.between(0.07, 0.20),
                             .strength = 0.32 * system.strength * chance.unit()});
    }
}

/// One ray, of feathers that lie a little askew.
void paintRay(Plane& plane, const RaySystem& system, const Course& course, Generator& chance) {
    const double reach = degreesOf(system.reach) * chance.between(0.35, 1.0);
    const double strength = 0.5 * system.strength * chance.between(0.2, 1.0);
    constexpr int feathers = 9;
    for (int i = 0; i < feathers; ++i) {
        const double t = chance.between(0.08, 0.85);
        const Course outward = turned(course, chance.between(-5.0, 5.0));
        const Course start = turned(advanced(outward, reach * t), chance.between(-10.0, 10.0));
        paintFeather(plane,
                     {.start = start.place,
                      .forward = start.forward,
                      .length = kmToUnits(system.reach) * chance.between(0.12, 0.34),
                      .halfWidth = kmToUnits(system.reach * chance.between(0.010, 0.030) + 5.0),
                      .strength = strength * (1.0 - 0.7 * t)});
    }
}

bool isAvoided(const RaySystem& system, double bearing) {
    return cosDegrees(bearing - system.avoidedCentre) > cosDegrees(system.avoidedHalf) &&
           system.avoidedHalf > 0.0;
}

void paintSystem(Plane& plane, const RaySystem& system, Generator& chance) {
    const Frame frame = frameAt(system.latitude, system.longitude);
    const Course north{frame.centre, frame.north};
    paintApron(plane, system);
    paintFringe(plane, system, north, chance);
    for (int i = 0; i < system.rays; ++i) {
        const double bearing = (i + chance.between(-0.45, 0.45)) * 360.0 / system.rays;
        if (!isAvoided(system, bearing))
            paintRay(plane, system, turned(north, bearing), chance);
    }
}

/// A long ray made ready for painting; lengths in lunar radii.
struct Streak {
    Vec3 start;
    Vec3 chord; ///< from its start to its end
    Vec3 side;  ///< pole of the great circle that it follows
    double length;
    double halfWidth;
    double strength;
};

Streak streakOf(const LongRay& ray) {
    const Vec3 start = pointAt(ray.fromLatitude, ray.fromLongitude);
    const Vec3 end = pointAt(ray.toLatitude, ray.toLongitude);
    return {.start = start,
            .chord = end - start,
            .side = normalized(cross(start, end)),
            .length = length(end - start),
            .halfWidth = kmToUnits(ray.halfWidth),
            .strength = ray.strength};
}

/// A place on a streak, `t` of the way along it and some way aside of its middle.
Course courseOn(const Streak& streak, double t, double aside) {
    const Vec3 place = normalized(streak.start + streak.chord * t + streak.side * aside);
    return {place, normalized(cross(streak.side, place))};
}

void paintStreak(Plane& plane, const Streak& streak, Generator& chance) {
    const int feathers = static_cast<int>(streak.length * 120.0);
    const double longest = std::min(0.4 * streak.length, kmToUnits(330.0));
    for (int i = 0; i < feathers; ++i) {
        const double t = (i + chance.unit()) / feathers;
        const double aside = streak.halfWidth * chance.between(-0.9, 0.9);
        const Course start = turned(courseOn(streak, t, aside), chance.between(-6.0, 6.0));
        paintFeather(plane, {.start = start.place,
                             .forward = start.forward,
                             .length = longest * chance.between(0.4, 1.0),
                             .halfWidth = streak.halfWidth * chance.between(0.30, 1.0),
                             .strength = 0.54 * streak.strength * (1.0 - 0.75 * t * t)});
    }
}

} // namespace

void paintRays(Plane& plane) {
    Generator chance(7000);
    for (const RaySystem& system : raySystems)
        paintSystem(plane, system, chance);
    for (const LongRay& ray : longRays)
        paintStreak(plane, streakOf(ray), chance);
}

} // namespace moonpicture
