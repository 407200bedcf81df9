// SPDX-License-Identifier: MIT
//
// Vectors on a unit sphere. The picture's axes serve throughout: x points east (right), y north
// (up) and z towards the viewer, so the orthographic view of a point is simply its x and y.
#pragma once

#include <cmath>

namespace moonpicture {

struct Vec3 {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};

constexpr Vec3 operator+(Vec3 a, Vec3 b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
constexpr Vec3 operator-(Vec3 a, Vec3 b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
constexpr Vec3 operator*(Vec3 a, double k) {
    return {a.x * k, a.y * k, a.z * k};
}

constexpr double dot(Vec3 a, Vec3 b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

constexpr Vec3 cross(Vec3 a, Vec3 b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

inline double length(Vec3 a) {
    return std::sqrt(dot(a, a));
}
inline Vec3 normalized(Vec3 a) {
    return a * (1.0 / length(a));
}

/// Mean radius of the moon, by which kilometres on the ground become parts of the unit sphere.
inline constexpr double moonRadiusKm = 1737.4;

constexpr double kmToUnits(double km) {
    return km / moonRadiusKm;
}

/// Polynomial sine and cosine: unlike those of the C library they give the same bits everywhere.
double sinDegrees(double degrees);
double cosDegrees(double degrees);

/// The point at a selenographic latitude and (east positive) longitude.
Vec3 pointAt(double latitudeDeg, double longitudeDeg);

/// A point of the sphere with the directions of east and north there.
struct Frame {
    Vec3 centre;
    Vec3 east;
    Vec3 north;
};

Frame frameAt(double latitudeDeg, double longitudeDeg);

/// The direction lying `bearingDeg` from north, counted through east.
Vec3 heading(const Frame& frame, double bearingDeg);

} // namespace moonpicture
