// SPDX-License-Identifier: MIT
#pragma once

namespace moonpicture {

class Plane;

/// Paints the bright rays and aprons of the young craters.
void paintRays(Plane& plane);

} // namespace moonpicture
