// SPDX-License-Identifier: MIT
#pragma once

/// A length as positions and sizes are written down, fifteen to a device-independent
/// pixel. It becomes pixels only here.
struct Twips {
    int count;
    bool operator==(const Twips& other) const = default;
};

inline constexpr int twipsPerPixel = 15;

constexpr Twips operator+(Twips one, Twips other) {
    return {one.count + other.count};
}

constexpr Twips operator*(int times, Twips length) {
    return {times * length.count};
}

constexpr int ToPixels(Twips length) {
    constexpr int half = twipsPerPixel / 2;
    return (length.count + (length.count < 0 ? -half : half)) / twipsPerPixel;
}

constexpr Twips ToTwips(int pixels) {
    return {pixels * twipsPerPixel};
}
