// SPDX-License-Identifier: MIT
#include "calc/year.h"

#include "calc/calc.h"
#include "calc/state.h"

#include <algorithm>

int Calc::SetDayNumber(int c) {
    int& day = CurDate(c, Day);
    const int month = CurDate(c, Month);
    day = std::min(day, MonthDays(c, month));
    return CurDate(c, DayNumber) = DayOfYear(c, month, day);
}

void Calc::SetMonthAndDay(int c, int dayNumber) {
    int month = 1;
    int day = dayNumber;
    DayToMonth(c, month, day);
    CurDate(c, DayNumber) = dayNumber;
    CurDate(c, Month) = month;
    CurDate(c, Day) = day;
}

void Calc::SetYearEnds(int c, int newYear) {
    YearJD(c, FirstDay) = newYear;
    YearJD(c, LastDay) = newYear + YearDays(c, DaysInYear) - 1;
    SetMonthStarts(c);
}

void Calc::DateToJD(int c, int newYear) {
    CurJD = newYear + SetDayNumber(c) - 1;
    SetYearEnds(c, newYear);
}
