// SPDX-License-Identifier: MIT
#pragma once

#include "shared/table.h"

// What the windows share of their look. Colours are 0x00BBGGRR numbers.

/// The entry of CalendarColors behind the calendars' own.
inline constexpr int ChosenDayBackground = 5;

/// Entries of TextColors.
enum TextColor : int { OrdinaryText = 1, TitleText, ChosenDayText };

/// Cell backgrounds: Julian white, Gregorian light cyan, Jewish light yellow,
/// Moslem light green, and red for the chosen day.
inline const Table<int, 5> CalendarColors{0xFFFFFF, 0xFFFFC0, 0xC0FFFF, 0xC0FFC0, 0x0000FF};

/// Navy for ordinary text, brown for month titles, white for the chosen day.
inline const Table<int, 3> TextColors{0x800000, 0x404080, 0xFFFFFF};
