// SPDX-License-Identifier: MIT
#pragma once

namespace ChangeCals {

/// One lunation in days, in single precision as the moon's age is counted.
inline constexpr float lunation = 29.530588F;

/// Weekday, age and phase of the moon on the chosen day, by a mean lunation from a mean
/// new moon on Julian Day 1720993.
void SetMoonAge();

} // namespace ChangeCals
