// SPDX-License-Identifier: MIT
#include "noise.hpp"

#include "sphere.hpp"

#include <algorithm>
#include <cmath>

namespace moonpicture {

namespace {

/// A corner of the noise lattice; unsigned, since its arithmetic is meant to wrap.
struct Corner {
    std::uint32_t x;
    std::uint32_t y;
    std::uint32_t z;
};

std::uint32_t latticeCoordinate(double floored) {
    return static_cast<std::uint32_t>(static_cast<std::int32_t>(floored));
}

/// Multiplications by odd numbers spread every bit upwards, the shifts bring them down again.
std::uint32_t hashCorner(Corner c, std::uint32_t seed) {
    std::uint32_t h = seed * 0x9E3779B1U;
    h ^= c.x * 0x8DA6B343U ^ c.y * 0xD8163841U ^ c.z * 0xCB1AB31FU;
    h = (h ^ (h >> 15U)) * 0x2C1B3C6DU;
    h = (h ^ (h >> 13U)) * 0x297A2D39U;
    return h ^ (h >> 16U);
}

/// A number in -1..1 from the ten bits of `h` starting at `shift`.
double signedBits(std::uint32_t h, unsigned shift) {
    return static_cast<double>((h >> shift) & 1023U) * (2.0 / 1023.0) - 1.0;
}

/// The slope a corner contributes, measured at `d` from that corner.
double slopeAt(Corner corner, Vec3 d, std::uint32_t seed) {
    const std::uint32_t h = hashCorner(corner, seed);
    return signedBits(h, 0) * d.x + signedBits(h, 10) * d.y + signedBits(h, 20) * d.z;
}

double fade(double t) {
    return t * t * t * (t * (t * 6.0 - 15.0) + 10.0);
}

double mix(double a, double b, double t) {
    return a + (b - a) * t;
}

/// The two corners of one lattice edge along x, blended.
double alongX(Corner c, Vec3 d, double fadeX, std::uint32_t seed) {
    const double near = slopeAt(c, d, seed);
    const double far = slopeAt({c.x + 1U, c.y, c.z}, {d.x - 1.0, d.y, d.z}, seed);
    return mix(near, far, fadeX);
}

/// The four corners of one lattice face of constant z, blended.
double acrossFace(Corner c, Vec3 d, Vec3 faded, std::uint32_t seed) {
    const double near = alongX(c, d, faded.x, seed);
    const double far = alongX({c.x, c.y + 1U, c.z}, {d.x, d.y - 1.0, d.z}, faded.x, seed);
    return mix(near, far, faded.y);
}

/// A turn about a slanting axis (an orthogonal matrix of plain decimals). Gradient noise favours
/// the directions of its lattice; turned for every octave, they no longer show.
Vec3 turned(Vec3 p) {
    return {0.36 * p.x + 0.48 * p.y - 0.80 * p.z, 0.60 * p.y - 0.80 * p.x,
            0.48 * p.x + 0.64 * p.y + 0.60 * p.z};
}

} // namespace

double gradientNoise(Vec3 p, std::uint32_t seed) {
    const Vec3 base{std::floor(p.x), std::floor(p.y), std::floor(p.z)};
    const Vec3 d = p - base;
    const Vec3 faded{fade(d.x), fade(d.y), fade(d.z)};
    const Corner c{latticeCoordinate(base.x), latticeCoordinate(base.y), latticeCoordinate(base.z)};
    const double near = acrossFace(c, d, faded, seed);
    const double far = acrossFace({c.x, c.y, c.z + 1U}, {d.x, d.y, d.z - 1.0}, faded, seed);
    constexpr double stretch = 1.6; // spreads the usual values over about -1..1
    return stretch * mix(near, far, faded.z);
}

double fractalNoise(Vec3 p, const Fractal& fractal) {
    double sum = 0.0;
    double strength = 1.0;
    Vec3 scaled = p * fractal.frequency;
    for (int octave = 0; octave < fractal.octaves; ++octave) {
        scaled = turned(scaled);
        sum += strength * gradientNoise(scaled, fractal.seed + static_cast<unsigned>(octave));
        strength *= fractal.gain;
        scaled = scaled * 2.03; // not quite 2, lest the lattices of two octaves coincide
    }
    return sum;
}

double smoothStep(double low, double high, double x) {
    const double t = std::clamp((x - low) / (high - low), 0.0, 1.0);
    return t * t * (3.0 - 2.0 * t);
}

double Generator::unit() {
    state_ += 0x9E3779B97F4A7C15U;
    std::uint64_t z = state_;
    z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9U;
    z = (z ^ (z >> 27U)) * 0x94D049BB133111EBU;
    z ^= z >> 31U;
    return static_cast<double>(z >> 11U) * 0x1.0p-53;
}

} // namespace moonpicture
