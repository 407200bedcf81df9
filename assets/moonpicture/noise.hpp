// SPDX-License-Identifier: MIT
//
// Seeded noise and chance. All of it rests on integer hashing, so a seed means the same picture on
// every machine.
#pragma once

#include <cstdint>

namespace moonpicture {

struct Vec3;

/// Smooth noise in space, about -1 to 1, with features one unit of `p` wide
/// (gradient noise after K. Perlin, 1985, with the smoother fade of 2002).
double gradientNoise(Vec3 p, std::uint32_t seed);

/// What a fractal sum of gradient noise looks like.
struct Fractal {
    double frequency = 1.0; ///< features per lunar radius in the coarsest octave
    int octaves = 1;        ///< each following octave is twice as fine
    double gain = 0.5;      ///< strength of an octave relative to the one before
    std::uint32_t seed = 0;
};

double fractalNoise(Vec3 p, const Fractal& fractal);

/// 0 up to `low`, 1 from `high`, and a smooth S between them.
double smoothStep(double low, double high, double x);

/// A small sequential generator (S. Vigna's SplitMix64 recurrence).
class Generator {
public:
    explicit Generator(std::uint64_t seed) : state_(seed) {}

    /// Evenly distributed in 0 <= u < 1.
    double unit();
    double between(double low, double high) { return low + (high - low) * unit(); }

private:
    std::uint64_t state_;
};

} // namespace moonpicture
