// SPDX-License-Identifier: MIT
#include "site.hpp"

#include "noise.hpp"

#include <algorithm>

namespace moonpicture {

namespace {

constexpr double discRadius = 0.492; // of the picture's width

constexpr Fractal warpX{7.0, 6, 0.62, 101};
constexpr Fractal warpY{7.0, 6, 0.62, 201};
constexpr Fractal warpZ{7.0, 6, 0.62, 301};
constexpr double warpReach = 0.017; // lunar radii
constexpr Fractal broadNoise{3.0, 3, 0.60, 401};
constexpr Fractal clumpNoise{14.0, 3, 0.60, 501};
constexpr Fractal grainNoise{44.0, 4, 0.65, 601};

Vec3 warp(Vec3 p) {
    const Vec3 shift{fractalNoise(p, warpX), fractalNoise(p, warpY), fractalNoise(p, warpZ)};
    return normalized(p + shift * warpReach);
}

/// Pixels that straddle the edge show the very limb, where nothing faces the viewer.
Vec3 liftToSphere(double x, double y) {
    const double square = x * x + y * y;
    if (square < 1.0)
        return {x, y, std::sqrt(1.0 - square)};
    return normalized({x, y, 0.0});
}

void fillNoise(Site& site) {
    site.warped = warp(site.point);
    site.broad = fractalNoise(site.point, broadNoise);
    site.clumps = fractalNoise(site.point, clumpNoise);
    site.grain = fractalNoise(site.point, grainNoise);
}

} // namespace

Plane::Plane(int size) : size_(size) {
    sites_.reserve(static_cast<std::size_t>(size) * static_cast<std::size_t>(size));
    for (int row = 0; row < size; ++row)
        for (int column = 0; column < size; ++column)
            sites_.push_back(siteAt(column, row));
    forEach(fillNoise);
}

double Plane::radius() const {
    return discRadius * size_;
}

/// The column (or row) that shows a given distance right of (or below) the centre, within bounds.
int Plane::pixelAlong(double offset) const {
    const double pixel = std::floor(size_ * 0.5 + offset * radius());
    return static_cast<int>(std::clamp(pixel, 0.0, size_ - 1.0));
}

Site Plane::siteAt(int column, int row) const {
    const double x = (column + 0.5 - size_ * 0.5) / radius();
    const double y = (size_ * 0.5 - row - 0.5) / radius();
    const double inside = (1.0 - std::sqrt(x * x + y * y)) * radius(); // pixels from the edge
    Site site;
    site.point = liftToSphere(x, y);
    site.disc = std::clamp(inside + 0.5, 0.0, 1.0);
    return site;
}

} // namespace moonpicture
