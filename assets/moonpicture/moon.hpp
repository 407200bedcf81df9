// SPDX-License-Identifier: MIT
#pragma once

#include "bmp.hpp"

#include <array>

namespace moonpicture {

/// The full moon, north up, on a black sky.
IndexedPicture fullMoon(int size);

/// Greys from black to white with a slight warm tint.
std::array<Colour, 256> moonPalette();

} // namespace moonpicture
