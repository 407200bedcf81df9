// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QRect>

// What is drawn where, in pixels of the picture.

/// The least rectangle around the pixels of which `differs(x, y)` is true.
template <class Differs>
QRect PixelsThat(const QImage& image, Differs differs) {
    QRect found;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (differs(x, y))
                found |= QRect(x, y, 1, 1);
    return found;
}

/// Around all pixels in which two pictures of one size differ.
inline QRect DifferingPixels(const QImage& one, const QImage& other) {
    if (one == other)
        return {}; // found quickly
    return PixelsThat(one, [&](int x, int y) { return one.pixel(x, y) != other.pixel(x, y); });
}

/// Around all pixels that are not as the upper left one.
inline QRect InkOf(const QImage& image) {
    return PixelsThat(image, [&](int x, int y) { return image.pixel(x, y) != image.pixel(0, 0); });
}
