// SPDX-License-Identifier: MIT
#pragma once

#include "shared/calendars.h"

#include <array>

/// The six main windows; 1..4 are the year windows by calendar number. Only
/// StartupWindow and CurrentWindow number windows otherwise.
enum MainWindowNumber : int { MonthlyWindowNumber = 5, MoonWindowNumber = 6 };
inline constexpr int mainWindowCount = 6;

constexpr MainWindowNumber YearWindowNumber(int c) {
    return static_cast<MainWindowNumber>(c);
}

/// All of them in the order of their stored positions.
inline constexpr std::array<MainWindowNumber, mainWindowCount> mainWindows{
    YearWindowNumber(Julian), YearWindowNumber(Gregorian), YearWindowNumber(Jewish),
    YearWindowNumber(Moslem), MonthlyWindowNumber,         MoonWindowNumber};
