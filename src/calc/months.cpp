// SPDX-License-Identifier: MIT
// What the four calendars have in common: months, weekdays and weeks of a year.
#include "calc/calc.h"
#include "calc/state.h"
#include "shared/settings.h"

namespace {

constexpr int monthLimit = 13;

int weekdayOf(int julianDay) {
    return julianDay % daysInWeek + 1;
}

int weeksTouchedBy(int days) {
    return (days + daysInWeek - 1) / daysInWeek;
}

void fillMonthLengths(int c, const Table<int, 12>& lengths) {
    for (int month = 1; month <= 12; ++month)
        MonthDays(c, month) = lengths(month);
}

} // namespace

void Calc::FillConstantRows() {
    const Table<int, 12> roman{31, 30, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const int byYear = 0;
    MonthDays = {};
    fillMonthLengths(Julian, roman);
    fillMonthLengths(Gregorian, roman);
    fillMonthLengths(Jewish, {30, byYear, byYear, 29, 30, byYear, 30, 29, 30, 29, 30, 29});
    fillMonthLengths(Moslem, {30, 29, 30, 29, 30, 29, 30, 29, 30, 29, 30, 29});

    for (int year = 1; year <= 30; ++year)
        MoslemCycle(year) = 354;
    for (const int longYear : {2, 5, 7, 10, 13, 18, 21, 24, 26, 29})
        MoslemCycle(longYear) = 355;
}

int Calc::DayOfYear(int c, int month, int day) {
    for (int before = 1; before < month; ++before)
        day += MonthDays(c, before);
    return day;
}

void Calc::DayToMonth(int c, int& month, int& day) {
    month = 1;
    while (month <= monthLimit && day - MonthDays(c, month) >= 1) {
        day -= MonthDays(c, month);
        ++month;
    }
}

void Calc::SetMonthStarts(int c) {
    int firstDay = YearJD(c, FirstDay);
    MonthDays(c, weekdayRow + 1) = weekdayOf(firstDay);
    for (int month = 2; month <= monthLimit; ++month) {
        firstDay += MonthDays(c, month - 1);
        MonthDays(c, weekdayRow + month) = weekdayOf(firstDay);
    }
    SetWeeks(c);
}

void Calc::SetWeeks(int c) {
    const int daysBefore = LeadingBlanks(c, 1);
    YearDays(c, WeeksInYear) = weeksTouchedBy(daysBefore + YearDays(c, DaysInYear));
    CurDate(c, WeekNumber) = weeksTouchedBy(daysBefore + CurDate(c, DayNumber));
}

int Calc::WeekStart(int c) {
    const int fromMonday = (FirstWeekDay(c) - Monday) % daysInWeek;
    return (fromMonday + daysInWeek) % daysInWeek + Monday;
}

int Calc::WeekdayOfRow(int c, int row) {
    return (WeekStart(c) + row - 1) % daysInWeek + 1;
}

int Calc::LeadingBlanks(int c, int month) {
    return (MonthDays(c, weekdayRow + month) - WeekStart(c) + daysInWeek) % daysInWeek;
}

int Calc::MonthsInYear(int c) {
    return c == Jewish && JewishLeap ? 13 : 12;
}

bool Calc::IsBeforeRange(int c) {
    return CurJD < MinJD(c);
}

bool Calc::IsAfterRange(int c) {
    return CurJD > MaxJD(c);
}
