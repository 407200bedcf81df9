// SPDX-License-Identifier: MIT
#pragma once

#include "controls/daygrid.h"
#include "shared/calendars.h"

/// Where the months of a year stand in the year grid: in bands of three, each
/// band a title row above seven weekday rows. In a Jewish leap year the second
/// band has a fourth month, Adar II, behind the third, and the months after it
/// stand one place earlier than their number says.
namespace YearLayout {

inline constexpr int bands = 4;
inline constexpr int titleRows = 1;
inline constexpr int bandRows = titleRows + daysInWeek;
inline constexpr int monthsInBand = 3;

/// The band, counted from 0, that Adar II is added to.
inline constexpr int adarTwoBand = 1;

/// Week columns without and with the fourth month of a band, which begins at
/// adarTwoColumn. Column 0 holds the weekdays' names.
inline constexpr int commonColumns = monthsInBand * DayGrid::monthColumns;
inline constexpr int leapColumns = commonColumns + DayGrid::monthColumns;
inline constexpr int adarTwoColumn = 1 + commonColumns;

/// The upper left cell of a month's days, below its title.
GridPlace BlockOf(int c, int month);

/// The month whose block holds a cell.
int MonthOf(int c, GridPlace cell);

} // namespace YearLayout
