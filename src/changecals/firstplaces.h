// SPDX-License-Identifier: MIT
#pragma once

#include "shared/settings.h"
#include "shared/table.h"

#include <QPoint>
#include <QRect>
#include <vector>

// Where the main windows stand before anybody has moved them. In pixels.

/// What a monitor must have for the monthly window and its frame.
inline constexpr int monthlyFrameWidth = 668;

/// A window anywhere in here has a position that fits in 16 bits of twips.
inline constexpr QRect storableDesk{QPoint(-2184, -2184), QPoint(2484, 2484)};

/// Of the monitors' desks, the primary one's first, the first on which the monthly
/// window finds room where positions can be stored; when none has room, what of
/// the primary one's is storable, and when nothing is, all that is.
QRect DeskOfFirstPlaces(const std::vector<QRect>& desks);

/// The upper left corners of the six frames, by window number, on a monitor that
/// has `desk` for windows. With room, the year windows stand side by side below
/// the monthly window or two and two beside it; otherwise they overlap, but each
/// lets the titles and selectors of those behind it be seen. `monthlyHeight` is
/// that of the monthly window's contents, which depends on the font.
Table<QPoint, mainWindowCount> FirstPlaces(const QRect& desk, int monthlyHeight);
