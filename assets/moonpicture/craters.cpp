// SPDX-License-Identifier: MIT
#include "craters.hpp"

#include "craters_table.hpp"
#include "noise.hpp"

#include <algorithm>

namespace moonpicture {

namespace {

/// How much a crater changes the tone of its parts, and how much it stands out in relief.
struct Profile {
    double floor;  ///< added inside
    double rim;    ///< added on the ring
    double apron;  ///< added just outside, fading to nothing at twice the radius
    double relief; ///< depth relative to that of a worn crater
    double lava;   ///< 0 to 1: how far the floor takes on the tone of lava
};

constexpr double lavaTone = 0.37;

constexpr Profile profileOf(Look look) {
    switch (look) {
    case Look::Brilliant:
        return {.floor = 0.15, .rim = 0.17, .apron = 0.12, .relief = 0.8, .lava = 0.0};
    case Look::Fresh:
        return {.floor = 0.02, .rim = 0.12, .apron = 0.05, .relief = 1.0, .lava = 0.0};
    case Look::Worn:
        return {.floor = -0.030, .rim = 0.060, .apron = 0.012, .relief = 1.0, .lava = 0.0};
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
           profile.apron * apron(t);
}

void paintBowl(Site& site, const Bowl& bowl, double distance, double weight) {
    const double t = distance / bowl.radius * (1.0 + 0.07 * site.clumps + 0.03 * site.grain);
    const double lava = bowl.profile.lava * lavaCover(t);
    site.tone += (lavaTone + 0.02 * site.clumps - site.tone) * lava;
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
    return {profile.floor * k, profile.rim * k, profile.apron * k, profile.relief * k, 0.0};
}

void strewWorn(Plane& plane, Generator& chance, int count) {
    for (int i = 0; i < count; ++i) {
        const Vec3 centre = anyVisiblePoint(chance);
        const double radius = kmToUnits(anyDiameterKm(chance, 13.0, 120.0)) / 2.0;
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
        const double radius = kmToUnits(anyDiameterKm(chance, 8.0, 30.0));
        const double strength = chance.between(0.03, 0.17);
        plane.forEachNear(centre, radius, [&](Site& site, double distance) {
            const double rest = 1.0 - distance / radius;
            site.tone += strength * rest * rest * (1.0 - 0.4 * site.sea);
        });
    }
}

} // namespace

void paintSmallCraters(Plane& plane) {
    Generator chance(1969);
    strewWorn(plane, chance, 5200);
    strewDots(plane, chance, 2600);
}

void paintNamedCraters(Plane& plane) {
    for (const Crater& crater : namedCraters) {
        const Vec3 centre = pointAt(crater.latitude, crater.longitude);
        const Bowl bowl{centre, kmToUnits(crater.diameter) / 2.0, profileOf(crater.look)};
        plane.forEachNear(centre, 2.0 * bowl.radius, [&](Site& site, double distance) {
            paintBowl(site, bowl, distance, 1.0);
        });
    }
}

} // namespace moonpicture
