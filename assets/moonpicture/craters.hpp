// SPDX-License-Identifier: MIT
#pragma once

namespace moonpicture {

class Plane;

/// Strews the nameless small craters, from a fixed seed.
void paintSmallCraters(Plane& plane);

/// Paints those of the craters with names that rays run over.
void paintBuriedCraters(Plane& plane);

/// Paints those that show through the rays: the young, and the great walled plains.
void paintClearCraters(Plane& plane);

} // namespace moonpicture
