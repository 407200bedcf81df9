// SPDX-License-Identifier: MIT
#pragma once

/// Calendar numbers. They index every table that has an entry per calendar and
/// are the numbers in the settings file.
enum Calendar : int { Julian = 1, Gregorian = 2, Jewish = 3, Moslem = 4 };
inline constexpr int calendarCount = 4;

/// Whether c is one of the four calendar numbers; a stored number need not be.
constexpr bool IsCalendar(int c) {
    return c >= Julian && c <= Moslem;
}

/// Fields of CurDate.
enum DateField : int { Day = 1, Month = 2, Year = 3, DayNumber = 4, WeekNumber = 5 };

/// Fields of YearDays.
enum YearLength : int { DaysInYear = 1, WeeksInYear = 2 };

/// Fields of YearJD.
enum YearBound : int { FirstDay = 1, LastDay = 2 };

/// No year of any calendar has more months.
inline constexpr int monthLimit = 13;

/// Rows of MonthDays: 1..monthLimit hold the months' lengths; row weekdayRow + m
/// holds the weekday of the first day of month m.
inline constexpr int weekdayRow = monthLimit;

/// Weekday numbers, 1..7 from Monday.
enum Weekday : int { Monday = 1, Tuesday, Wednesday, Thursday, Friday, Saturday, Sunday };
inline constexpr int daysInWeek = 7;
