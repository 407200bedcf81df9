// SPDX-License-Identifier: MIT
#pragma once

namespace moonpicture {

class Plane;

/// Lays the ground: highlands and dark plains with their shores and shades. Sets each site's tone,
/// and how far it belongs to a plain.
void paintGround(Plane& plane);

} // namespace moonpicture
