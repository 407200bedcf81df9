// SPDX-License-Identifier: MIT
#pragma once

#include "site.hpp"

namespace moonpicture {

/// Strews the nameless small craters, from a fixed seed.
void paintSmallCraters(Plane& plane);

/// Paints the craters that have names, over everything else.
void paintNamedCraters(Plane& plane);

} // namespace moonpicture
