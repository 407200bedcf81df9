// SPDX-License-Identifier: MIT
#pragma once

/// The arithmetic of the four calendars on the shared tables. The procedures
/// named "XToJD" take the day, month and year of calendar X from CurDate and set
/// CurJD and the tables of X; those named "JDToX" take CurJD and set the date
/// and the tables of X. A day beyond its month's length becomes the month's last
/// day; nothing else is checked.
namespace Calc {

/// Fills the rows that no date changes: the fixed month lengths (February at a
/// placeholder of 30 until the first conversion) and the Moslem cycle.
void FillConstantRows();

/// Julian Day of a date of the Julian calendar, by the classic formula with
/// products of 30.6 and 365.25, each truncated toward zero; in whole numbers they
/// are the same. Exact from year 1 on; one day high for January and February of
/// year 0, which no calendar here shows.
int JulianJD(int day, int month, int year);

/// Day number within the year of a day of a month of calendar c, by the current
/// lengths of its months.
int DayOfYear(int c, int month, int day);

/// The way back: on entry `day` is a day number within the year, on return the
/// day of `month`. `month` is 14 when the year has no such day.
void DayToMonth(int c, int& month, int& day);

void JulianToJD();
void JDToJulian();

void GregorianToJD();

/// The Gregorian date from the Julian date of the same day, by the difference
/// of the two calendars. CurJD must hold the day.
void JulianToGregorian();

/// Julian Day of 1 Tishri of a Jewish year, from the date of Passover by Gauss's
/// formula.
int JewishNewYear(int year);

/// Month 13 of a common year becomes month 12.
void JewishToJD();

/// Needs the Julian date of the same day.
void JDToJewish();

/// Puts the Jewish month names and lengths into the layout of a year of
/// YearDays(Jewish, DaysInYear) days.
void SetJewishMonths();

/// Brings new Jewish month names, which come in the layout of a common year, into
/// the layout of the current year. AdarName is to be set before.
void ArrangeJewishNames();

/// Applies MoslemType to the cycle and to the Moslem range. JDToMoslem brings
/// the date up to date afterwards.
void SetMoslemType();
void MoslemToJD();
void JDToMoslem();

/// The weekday of a Julian Day, 1..7.
int WeekdayOf(int julianDay);

/// Weekdays of the first days of the months of calendar c, then SetWeeks.
void SetMonthStarts(int c);

/// Number of weeks that the year touches and number of the chosen day's week.
/// Week 1 holds the first day of the year, however few days of it.
void SetWeeks(int c);

/// The weekday, 1..7, that opens the week in calendar c; a stored number outside
/// 1..7 counts in sevens.
int WeekStart(int c);

/// The weekday in row 0..6 of a week of calendar c that is written downward.
int WeekdayOfRow(int c, int row);

/// Days of the first week of month m that lie before the month: 0..6.
int LeadingBlanks(int c, int month);

/// Months of the current year of calendar c.
int MonthsInYear(int c);

} // namespace Calc
