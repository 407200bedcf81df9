// SPDX-License-Identifier: MIT
#include "moon.hpp"

#include "craters.hpp"
#include "maria.hpp"
#include "noise.hpp"
#include "rays.hpp"
#include "site.hpp"

#include <algorithm>
#include <cmath>

namespace moonpicture {

namespace {

/// Lunar-Lambert law of A. S. McEwen (1991) with the sun behind the viewer, where its
/// Lommel-Seeliger part is the same all over the disc and only the Lambert part falls off.
double limbFactor(const Site& site) {
    constexpr double seeliger = 0.80;
    return seeliger + (1.0 - seeliger) * std::sqrt(site.point.z);
}

/// The light comes from a little to the right, as shortly before the moon is quite full: slopes
/// that fall towards it are brighter.
double slopeLight(const Plane& plane, int column, int row) {
    constexpr double strength = 0.0025; // for a slope over one pixel of a picture one pixel wide
    constexpr double limit = 0.085;     // a full moon never shows strong shading
    const Site& left = plane.at(std::max(column - 1, 0), row);
    const Site& right = plane.at(std::min(column + 1, plane.size() - 1), row);
    return std::clamp(strength * plane.size() * (left.height - right.height), -limit, limit);
}

/// A gentle S around the middle tones, such as photographic paper has.
double develop(double tone) {
    const double t = std::clamp(tone, 0.0, 1.0);
    return 0.4 * t + 0.6 * smoothStep(0.0, 1.0, t);
}

double brightness(const Plane& plane, int column, int row) {
    const Site& site = plane.at(column, row);
    const double lit = (site.tone + slopeLight(plane, column, row)) * limbFactor(site);
    return develop(lit) * site.disc;
}

std::uint8_t quantised(double value) {
    return static_cast<std::uint8_t>(std::clamp(std::floor(value * 255.0 + 0.5), 0.0, 255.0));
}

/// A slight warm tint as a whole, bluer and redder where the ground is.
Colour coloured(double grey, double tint) {
    return {.red = quantised(grey * (1.0 + 0.022 * tint)),
            .green = quantised(grey * 0.985),
            .blue = quantised(grey * (0.950 - 0.060 * tint))};
}

Picture expose(const Plane& plane) {
    Picture picture{plane.size(), plane.size(), {}};
    for (int row = 0; row < plane.size(); ++row)
        for (int column = 0; column < plane.size(); ++column)
            picture.pixels.push_back(
                coloured(brightness(plane, column, row), plane.at(column, row).tint));
    return picture;
}

} // namespace

Picture fullMoon(int size) {
    Plane plane(size);
    paintGround(plane);
    paintSmallCraters(plane);
    paintBuriedCraters(plane);
    paintRays(plane);
    paintClearCraters(plane);
    return expose(plane);
}

} // namespace moonpicture
