// SPDX-License-Identifier: MIT
#pragma once

#include "shared/mainwindows.h"
#include "shared/table.h"

#include <QPoint>
#include <QRect>
#include <vector>

// Where the main windows stand before anybody has moved them. In pixels.

/// The contents of the main windows at their largest, by window number.
using WindowSizes = Table<QSize, mainWindowCount>;

/// A frame of at least 300 pixels in here has a position that fits in 16 bits of twips,
/// 2184 pixels either way.
inline constexpr QRect storableDesk{QPoint(-2184, -2184), QPoint(2484, 2484)};

/// Of the monitors' desks, the primary one's first, the first on which the monthly
/// window finds room where positions can be stored; when none has room, the
/// primary one's, and when positions cannot be stored there, all that is storable.
QRect DeskOfFirstPlaces(const std::vector<QRect>& desks, const WindowSizes& sizes);

/// The upper left corners of the six frames, by window number, on a monitor that
/// has `desk` for windows. All of them together stand in its middle, as far as
/// positions can be stored. With room, the year windows stand side by side below
/// the monthly window or two and two beside it; otherwise they overlap, but each
/// lets the titles and selectors of those behind it be seen.
Table<QPoint, mainWindowCount> FirstPlaces(const QRect& desk, const WindowSizes& sizes);
