// SPDX-License-Identifier: MIT
#pragma once

#include "site.hpp"

namespace moonpicture {

/// Paints the bright rays and aprons of the young craters.
void paintRays(Plane& plane);

} // namespace moonpicture
