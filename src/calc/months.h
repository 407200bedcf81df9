// SPDX-License-Identifier: MIT
#pragma once

// How the conversions of all four calendars finish: the year, the lengths of its months
// and YearDays(c, DaysInYear) are set, the rest of the date and of the year follows.
namespace Calc {

/// Sets CurJD from month and day of the year that begins on Julian Day newYear. A day
/// beyond its month's length becomes the month's last day.
void DateToJD(int c, int newYear);

/// Sets month and day from the day's number in that year.
void DateFromDayNumber(int c, int newYear, int dayNumber);

} // namespace Calc
