// SPDX-License-Identifier: MIT
#include "calc/dayofyear.h"

#include "calc/calc.h"
#include "calc/state.h"

#include <algorithm>

namespace {

void setYearEnds(int c, int newYear) {
    YearJD(c, FirstDay) = newYear;
    YearJD(c, LastDay) = newYear + YearDays(c, DaysInYear) - 1;
    Calc::SetMonthStarts(c);
}

} // namespace

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
