// SPDX-License-Identifier: MIT
// Weekdays, and the weeks that a year touches.
#include "calc/calc.h"
#include "calc/state.h"
#include "shared/settings.h"

namespace {

// Days beyond whole weeks, 0..6. Stored weekdays are 16-bit numbers and may be
// negative: the weeks that are added are more than they can take away.
int daysBeyondWeeks(int days) {
    constexpr int manyWeeks = 10000 * daysInWeek;
    return (days + manyWeeks) % daysInWeek;
}

int weeksTouchedBy(int days) {
    return (days + daysInWeek - 1) / daysInWeek;
}

} // namespace

// No Julian Day is negative, and the remainder of a plain number takes less time.
int Calc::WeekdayOf(int julianDay) {
    return static_cast<int>(static_cast<unsigned>(julianDay) % daysInWeek) + Monday;
}

void Calc::SetMonthStarts(int c) {
    int firstDay = YearJD(c, FirstDay);
    for (int month = 1; month <= monthLimit; ++month) {
        MonthDays(c, weekdayRow + month) = WeekdayOf(firstDay);
        firstDay += MonthDays(c, month);
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
