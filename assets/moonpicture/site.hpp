// SPDX-License-Identifier: MIT
//
// The picture plane: which point of the moon every pixel shows, and what is known of it.
#pragma once

#include "sphere.hpp"

#include <cstddef>
#include <vector>

namespace moonpicture {

/// What one pixel of the disc shows. Later steps paint `tone` and `height` over one another.
struct Site {
    Vec3 point;          ///< on the unit sphere
    Vec3 warped;         ///< the same, displaced by noise: its shapes have irregular outlines
    double disc = 0.0;   ///< how much of the pixel the disc covers, 0 to 1
    double broad = 0.0;  ///< noise in wide patches, about -1 to 1
    double clumps = 0.0; ///< noise in patches of some 100 km
    double grain = 0.0;  ///< noise near the size of a pixel
    double sea = 0.0;    ///< 0 in the highlands, 1 on a dark plain
    double tone = 0.0;   ///< 0 black to 1 white
    double tint = 0.0;   ///< -1 bluish, as titanium makes lava, to 1 reddish
    double height = 0.0; ///< relief, in arbitrary units
};

/// A square picture with the moon's disc in its middle.
class Plane {
public:
    explicit Plane(int size);

    int size() const { return size_; }
    Site& at(int column, int row) { return sites_[index(column, row)]; }
    const Site& at(int column, int row) const { return sites_[index(column, row)]; }

    /// Calls `paint` for every site of the disc.
    template <typename Paint>
    void forEach(Paint paint) {
        for (Site& site : sites_)
            if (site.disc > 0.0)
                paint(site);
    }

    /// Calls `paint(site, distance)` for every site less than `reach` (straight, in lunar radii)
    /// from `centre`.
    template <typename Paint>
    void forEachNear(Vec3 centre, double reach, Paint paint);

private:
    std::size_t index(int column, int row) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(size_) +
               static_cast<std::size_t>(column);
    }
    double radius() const;
    int pixelAlong(double offset) const;
    Site siteAt(int column, int row) const;

    int size_;
    std::vector<Site> sites_;
};

template <typename Paint>
void Plane::forEachNear(Vec3 centre, double reach, Paint paint) {
    const int lastColumn = pixelAlong(centre.x + reach);
    const int lastRow = pixelAlong(-centre.y + reach);
    for (int row = pixelAlong(-centre.y - reach); row <= lastRow; ++row)
        for (int column = pixelAlong(centre.x - reach); column <= lastColumn; ++column) {
            Site& site = at(column, row);
            const double distance = length(site.point - centre);
            if (site.disc > 0.0 && distance < reach)
                paint(site, distance);
        }
}

} // namespace moonpicture
