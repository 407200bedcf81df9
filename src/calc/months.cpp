// SPDX-License-Identifier: MIT
// The months of a year, their lengths, and the days in them.
#include "calc/months.h"

#include "calc/calc.h"
#include "calc/state.h"

#include <algorithm>

namespace {

void fillMonthLengths(int c, const Table<int, 12>& lengths) {
    for (int month = 1; month <= 12; ++month)
        MonthDays(c, month) = lengths(month);
}

void setYearEnds(int c, int newYear) {
    YearJD(c, FirstDay) = newYear;
    YearJD(c, LastDay) = newYear + YearDays(c, DaysInYear) - 1;
    Calc::SetMonthStarts(c);
}

} // namespace

void Calc::FillConstantRows() {
    const Table<int, 12> roman{31, 30, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const int byYear = 0;
    fillMonthLengths(Julian, roman);
    fillMonthLengths(Gregorian, roman);
    fillMonthLengths(Jewish, {30, byYear, byYear, 29, 30, byYear, 30, 29, 30, 29, 30, 29});
    fillMonthLengths(Moslem, {30, 29, 30, 29, 30, 29, 30, 29, 30, 29, 30, 29});

    for (int year = 1; year <= 30; ++year)
        MoslemCycle(year) = 354;
    for (const int longYear : {2, 5, 7, 10, 13, 18, 21, 24, 26, 29})
        MoslemCycle(longYear) = 355;
}

int Calc::MonthsInYear(int c) {
    return c == Jewish && JewishLeap ? monthLimit : 12;
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

void Calc::DateToJD(int c, int newYear) {
    int& day = CurDate(c, Day);
    const int month = CurDate(c, Month);
    day = std::min(day, MonthDays(c, month));
    const int dayNumber = DayOfYear(c, month, day);
    CurDate(c, DayNumber) = dayNumber;
    CurJD = newYear + dayNumber - 1;
    setYearEnds(c, newYear);
}

void Calc::DateFromDayNumber(int c, int newYear, int dayNumber) {
    int month = 1;
    int day = dayNumber;
    DayToMonth(c, month, day);
    CurDate(c, DayNumber) = dayNumber;
    CurDate(c, Month) = month;
    CurDate(c, Day) = day;
    setYearEnds(c, newYear);
}
