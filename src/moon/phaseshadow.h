// SPDX-License-Identifier: MIT
#pragma once

struct Twips;

/// The one shape that covers the unlit part of the moon's picture. Positions and
/// sizes are in twips from the picture's upper left corner; a circle's height is
/// its diameter. Only the crescents' and halves' shapes are filled: the gibbous
/// moon's is a ring so thick that its inner edge is the terminator.
struct Shadow {
    enum class Shape { Rectangle, Circle };

    Shape shape;
    bool solid;
    int border; ///< width of the outline, in pixels of 15 twips, centred on it
    double left;
    double top;
    double width;
    double height;
};

/// The shadow at a moon age in days over a picture of the given size.
/// An age that no lunation has (negative, or near its end) is new moon.
Shadow ShadowOf(float age, Twips width, Twips height);
