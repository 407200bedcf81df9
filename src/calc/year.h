// SPDX-License-Identifier: MIT
#pragma once

// How the conversions of all four calendars finish: the lengths of the months
// and YearDays(c, DaysInYear) are set, the rest of the year follows from them.
namespace Calc {

/// Makes a day beyond its month's length the month's last day, and sets and
/// returns the day's number in the year.
int SetDayNumber(int c);

/// Sets month and day from the day's number in the year.
void SetMonthAndDay(int c, int dayNumber);

/// Sets the ends of the year that begins on Julian Day newYear, its weekdays and
/// its weeks.
void SetYearEnds(int c, int newYear);

/// Sets CurJD and the year from month and day of the year that begins on Julian
/// Day newYear.
void DateToJD(int c, int newYear);

} // namespace Calc
