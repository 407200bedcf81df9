// SPDX-License-Identifier: MIT
#include "sphere.hpp"

#include <array>
#include <numbers>

namespace moonpicture {

namespace {

/// Brings any angle into -90..90 degrees without changing its sine.
double foldForSine(double degrees) {
    const double turned = degrees - 360.0 * std::floor((degrees + 180.0) / 360.0);
    if (turned > 90.0)
        return 180.0 - turned;
    return turned < -90.0 ? -180.0 - turned : turned;
}

/// Taylor series of sin(x) / x in x squared, by Horner's rule; good to 1e-11 up to a right angle.
double sineSeries(double xSquared) {
    constexpr std::array<double, 7> divisors{14 * 15, 12 * 13, 10 * 11, 8 * 9, 6 * 7, 4 * 5, 2 * 3};
    double sum = 1.0;
    for (const double divisor : divisors)
        sum = 1.0 - sum * xSquared / divisor;
    return sum;
}

} // namespace

double sinDegrees(double degrees) {
    const double x = foldForSine(degrees) * (std::numbers::pi / 180.0);
    return x * sineSeries(x * x);
}

double cosDegrees(double degrees) {
    return sinDegrees(degrees + 90.0);
}

Vec3 pointAt(double latitudeDeg, double longitudeDeg) {
    const double ring = cosDegrees(latitudeDeg);
    return {ring * sinDegrees(longitudeDeg), sinDegrees(latitudeDeg),
            ring * cosDegrees(longitudeDeg)};
}

Frame frameAt(double latitudeDeg, double longitudeDeg) {
    const Vec3 centre = pointAt(latitudeDeg, longitudeDeg);
    const Vec3 east{cosDegrees(longitudeDeg), 0.0, -sinDegrees(longitudeDeg)};
    return {centre, east, cross(centre, east)};
}

Vec3 heading(const Frame& frame, double bearingDeg) {
    return frame.north * cosDegrees(bearingDeg) + frame.east * sinDegrees(bearingDeg);
}

} // namespace moonpicture
