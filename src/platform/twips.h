// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>

/// Twips in one device-independent pixel. Positions and sizes are kept in twips
/// and become pixels only here.
inline constexpr int twipsPerPixel = 15;

inline int ToPixels(double twips) {
    return static_cast<int>(std::lround(twips / twipsPerPixel));
}

constexpr int ToTwips(int pixels) {
    return pixels * twipsPerPixel;
}
