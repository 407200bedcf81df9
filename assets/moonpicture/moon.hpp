// SPDX-License-Identifier: MIT
#pragma once

#include "bmp.hpp"

namespace moonpicture {

/// The full moon, north up, on a black sky.
Picture fullMoon(int size);

} // namespace moonpicture
