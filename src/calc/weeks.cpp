// SPDX-License-Identifier: MIT
// Weekdays, and the weeks that a year touches.
#include "calc/calc.h"
#include "calc/state.h"
#include "shared/settings.h"

namespace {

constexpr int fourWeeks = 4 * daysInWeek;

// The weekday of the day after a month: every month has four weeks and up to three
// days more. Counted without a branch, since none could foresee which months pass
// the end of a week.
int weekdayAfterMonth(int weekday, int days) {
    const int next = weekday + days - fourWeeks;
    return next - daysInWeek * static_cast<int>(next > daysInWeek);
}

// Days beyond whole weeks, 0..6. Stored weekdays have 16 bits and may be negative;
// the weeks that are added are more than they can take away.
int daysBeyondWeeks(int days) {
    constexpr int manyWeeks = 10000 * daysInWeek;
    return (days + manyWeeks) % daysInWeek;
}

int weeksTouchedBy(int days) {
    return (days + daysInWeek - 1) / daysInWeek;
}

} // namespace

int Calc::WeekdayOf(int julianDay) {
    return julianDay % daysInWeek + 1;
}

void Calc::SetMonthStarts(int c) {
    int weekday = WeekdayOf(YearJD(c, FirstDay));
    for (int month = 1; month <= monthLimit; ++month) {
        MonthDays(c, weekdayRow + month) = weekday;
        weekday = weekdayAfterMonth(weekday, MonthDays(c, month));
    }
    SetWeeks(c);
}

void Calc::SetWeeks(int c) {
    const int daysBefore = LeadingBlanks(c, 1);
    YearDays(c, WeeksInYear) = weeksTouchedBy(daysBefore + YearDays(c, DaysInYear));
    CurDate(c, WeekNumber) = weeksTouchedBy(daysBefore + CurDate(c, DayNumber));
}

int Calc::WeekStart(int c) {
    return daysBeyondWeeks(FirstWeekDay(c) - Monday) + Monday;
}

int Calc::WeekdayOfRow(int c, int row) {
    return daysBeyondWeeks(FirstWeekDay(c) - Monday + row) + Monday;
}

int Calc::LeadingBlanks(int c, int month) {
    return daysBeyondWeeks(MonthDays(c, weekdayRow + month) - FirstWeekDay(c));
}
