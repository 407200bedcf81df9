// SPDX-License-Identifier: MIT
// How well one colour is told from another, as WCAG 2.1 reckons it.
#pragma once

#include <QColor>
#include <algorithm>
#include <cmath>

/// The least that it asks of graphical objects (1.4.11).
inline constexpr double enoughContrast = 3.0;

inline double linearChannel(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

inline double luminance(const QColor& color) {
    return 0.2126 * linearChannel(color.redF()) + 0.7152 * linearChannel(color.greenF()) +
           0.0722 * linearChannel(color.blueF());
}

/// 1 for colours of one luminance to 21 for black and white.
inline double contrast(const QColor& one, const QColor& other) {
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}
