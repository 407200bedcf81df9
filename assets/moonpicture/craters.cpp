// SPDX-License-Identifier: MIT
#include "craters.hpp"

#include "craters_table.hpp"
#include "noise.hpp"
#include "site.hpp"

#include <algorithm>

namespace moonpicture {

namespace {

/// How much a crater changes the tone of its parts, and how much it stands out in relief.
struct Profile {
    double floor = 0.0;  ///< added inside
    double rim = 0.0;    ///< added on the ring
    double apron = 0.0;  ///< added just outside, fading to nothing at twice the radius
    double halo = 0.0;   ///< taken away from the ground around the ring
    double relief = 0.0; ///< depth relative to that of a worn crater
    double lava = 0.0;   ///< 0 to 1: how far the floor takes on the tone of lava
    double level = 0.0;  ///< 0 to 1: how far the floor is smoothed over
};

constexpr double lavaTone = 0.37;
constexpr double plainTone = 0.64; // of a smooth floor in the highlands

constexpr Profile profileOf(Look look) {
    switch (look) {
    case Look::Brilliant:
        return {.floor = 0.15, .rim = 0.17, .apron = 0.12, .relief = 0.8};
    case Look::Fresh:
        return {.floor = 0.02, .rim = 0.12, .apron = 0.05, .relief = 1.0};
    case Look::Haloed:
        return {
            .floor = 0.14, .rim = 0.17, .apron = 0.02, .halo = 0.22, .relief = 0.8, .level = 0.5};
    case Look::Worn:
        return {.floor = -0.030, .rim = 0.060, .apron = 0.012, .relief = 1.0};
    case Look::Walled:
        return {.floor = -0.025, .rim = 0.090, .apron = 0.0, .relief = 1.2, .level = 0.36};
    case Look::Flooded:
        return {.floor = -0.02, .rim = 0.040, .apron = 0.010, .relief = 0.5, .lava = 0.38};
    case Look::Dark:
        return {.floor = -0.02, .rim = 0.060, .apron = 0.010, .relief = 0.5, .lava = 0.90};
    }
    return {};
}

struct Bowl {
    Vec3 centre;
    double radius; ///< lunar radii
    Profile profile;
};

/// Bumps of these widths around t = 1 (t in crater radii) make up the ring.
double ring(double t) {
    const double off = (t - 0.93) / 0.24;
    return std::max(1.0 - off * off, 0.0);
}

double apron(double t) {
    const double rest = std::max(2.0 - t, 0.0);
    return t < 1.0 ? 0.0 : rest * rest;
}

/// Glass thrown out of a young crater lies around it, beyond the foot of its wall.
double halo(double t) {
    return smoothStep(0.95, 1.25, t) * (1.0 - smoothStep(1.35, 2.0, t));
}

double inside(double t) {
    return 1.0 - smoothStep(0.62, 0.98, t);
}

/// Lava laps higher up the walls than a floor of rubble does.
double lavaCover(double t) {
    return 1.0 - smoothStep(0.72, 0.98, t);
}

/// Height across a crater: a bowl, a rim at t = 1, and a slope down to the plain at t = 2.
double relief(double t) {
    return t < 1.0 ? 2.0 * t * t * t * t - 1.0 : apron(t);
}

/// Later impacts have battered the walls: a ring is brighter here, missing there.
double battered(const Site& site) {
    return std::clamp(0.75 + 0.7 * site.grain + 0.6 * site.clumps, 0.1, 1.5);
}

double toneChange(const Profile& profile, const Site& site, double t) {
    return profile.floor * inside(t) + profile.rim * ring(t) * battered(site) +
           profile.apron * apron(t) - profile.halo * halo(t);
}

void paintBowl(Site& site, const Bowl& bowl, double distance, double weight) {
    const double t = distance / bowl.radius * (1.0 + 0.08 * site.clumps + 0.05 * site.grain);
    const double lava = bowl.profile.lava * lavaCover(t);
    const double level = bowl.profile.level * inside(t);
    site.tone += (lavaTone + 0.02 * site.clumps - site.tone) * lava;
    site.tone += (plainTone + 0.03 * site.clumps - site.tone) * level;
    site.height *= 1.0 - level;
    site.tone += weight * toneChange(bowl.profile, site, t);
    site.height += weight * bowl.profile.relief * bowl.radius * relief(t);
}

/// Lava has drowned most of the old small craters of the plains.
double survival(const Site& site) {
    return 1.0 - 0.88 * site.sea;
}

/// An even choice among all directions that face the viewer: throw away what misses the ball.
Vec3 anyVisiblePoint(Generator& chance) {
    for (;;) {
        const Vec3 p{chance.between(-1, 1), chance.between(-1, 1), chance.unit()};
        const double square = dot(p, p);
        if (square > 0.01 && square < 1.0)
            return normalized(p);
    }
}

/// The number of craters above a diameter falls with its square, as counted on the highlands.
double anyDiameterKm(Generator& chance, double smallest, double largest) {
    const double spread = (largest / smallest) * (largest / smallest);
    const double tail = 1.0 / spread + (1.0 - 1.0 / spread) * chance.unit();
    return smallest / std::sqrt(tail);
}

/// Each crater is a little more or less pronounced than the next.
Profile scaled(const Profile& profile, double k) {
    return {.floor = profile.floor * k,
            .rim = profile.rim * k,
            .apron = profile.apron * k,
            .relief = profile.relief * k};
}

void strewWorn(Plane& plane, Generator& chance, int count) {
    for (int i = 0; i < count; ++i) {
        const Vec3 centre = anyVisiblePoint(chance);
        const double radius = kmToUnits(anyDiameterKm(chance, 9.0, 120.0)) / 2.0;
        const Profile profile = scaled(profileOf(Look::Worn), chance.between(0.2, 1.15));
        const Bowl bowl{centre, radius, profile};
        plane.forEachNear(centre, 2.0 * radius, [&](Site& site, double distance) {
            paintBowl(site, bowl, distance, survival(site));
        });
    }
}

/// Young craters too small for a ring: mere white dots, on plains and highlands alike.
void strewDots(Plane& plane, Generator& chance, int count) {
    for (int i = 0; i < count; ++i) {
        const Vec3 centre = anyVisiblePoint(chance);
        const double radius = kmToUnits(anyDiameterKm(chance, 5.5, 30.0));
        const double strength = chance.between(0.03, 0.17);
        plane.forEachNear(centre, radius, [&](Site& site, double distance) {
            const double rest = 1.0 - distance / radius;
            site.tone += strength * rest * rest * (1.0 - 0.4 * site.sea);
        });
    }
}

bool standsClear(Look look) {
    return look != Look::Worn && look != Look::Flooded && look != Look::Dark;
}

void paintCrater(Plane& plane, const Crater& crater) {
    const Vec3 centre = pointAt(crater.latitude, crater.longitude);
    const Bowl bowl{centre, kmToUnits(crater.diameter) / 2.0, profileOf(crater.look)};
    plane.forEachNear(centre, 2.0 * bowl.radius,
                      [&](Site& site, double distance) { paintBowl(site, bowl, distance, 1.0); });
}

} // namespace

void paintSmallCraters(Plane& plane) {
    Generator chance(1969);
    strewWorn(plane, chance, 9500);
    strewDots(plane, chance, 5200);
}

void paintBuriedCraters(Plane& plane) {
    for (const Crater& crater : namedCraters)
        if (!standsClear(crater.look))
            paintCrater(plane, crater);
}

void paintClearCraters(Plane& plane) {
    for (const Crater& crater : namedCraters)
        if (standsClear(crater.look))
            paintCrater(plane, crater);
}

} // namespace moonpicture
