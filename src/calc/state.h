// SPDX-License-Identifier: MIT
#pragma once

#include "shared/calendars.h"
#include "shared/table.h"

// The chosen day: one in the process, written by the procedures of Calc and
// ChangeCals, read by every window. After each change all four calendars
// describe the same day.

/// Julian Day number of the chosen day: the whole number of the day at whose
/// noon the astronomical Julian Day begins. 1 January 1 Julian is 1721424.
inline int CurJD = 0;

/// CurDate(c, Day .. WeekNumber): the chosen day in calendar c.
inline Table<int, calendarCount, 5> CurDate;

/// A date of a calendar.
struct Date {
    int day;
    int month;
    int year;
    bool operator==(const Date& other) const = default;
};

/// The chosen day in calendar c.
inline Date ChosenDate(int c) {
    return {CurDate(c, Day), CurDate(c, Month), CurDate(c, Year)};
}

/// MonthDays(c, m), m = 1..monthLimit: length in days of month m in the current
/// year of calendar c, 0 where there is no such month. MonthDays(c, weekdayRow +
/// m): the weekday of that month's first day. The Jewish row follows the layout
/// of the year, as MonthNames does.
inline Table<int, calendarCount, weekdayRow + monthLimit> MonthDays;

/// YearDays(c, DaysInYear) and YearDays(c, WeeksInYear): the days of the current
/// year and the weeks that it touches.
inline Table<int, calendarCount, 2> YearDays;

/// YearJD(c, FirstDay) and YearJD(c, LastDay): Julian Days of the ends of the
/// current year.
inline Table<int, calendarCount, 2> YearJD;

/// Lengths of the 30 years of the Moslem cycle: 354 or 355 days. Years 15 and 16
/// are set by Calc::SetMoslemType.
inline Table<int, 30> MoslemCycle;

/// The Jewish row of MonthDays and MonthNames is in the layout of 13 months.
/// Written only by Calc::SetJewishMonths and Calc::ArrangeJewishNames.
inline bool JewishLeap = false;

/// Weekday of the chosen day.
inline int WeekDayNo = 0;

/// Days since the last mean new moon, 0 <= MoonAge < one lunation.
inline float MoonAge = 0;

/// Eighths of a lunation, 0..8: 0 and 8 new moon, 4 full moon.
inline int MoonPhase = 0;
