// SPDX-License-Identifier: MIT
#pragma once

#include "platform/gridmodel.h"
#include "shared/calendars.h"

/// The upper left cell of a month's days on the sheet of a year of so many months, by
/// the month's place and not by the layout's own rules: three months beside one
/// another, in a Jewish leap year a fourth in the second band.
inline GridPlace cornerOnSheet(int c, int months, int month) {
    const bool leap = c == Jewish && months == 13;
    if (leap && month == 7)
        return {9, 19};
    const int place = leap && month > 7 ? month - 2 : month - 1;
    return {place / 3 * 8 + 1, place % 3 * 6 + 1};
}
