// SPDX-License-Identifier: MIT
// Weekdays, and the weeks that a year touches.
#include "calc/calc.h"
#include "calc/state.h"
#include "shared/settings.h"

#include <cstdint>

namespace {

// The circle of all 32-bit numbers stands for a week and a seventh of it, rounded
// up, for a day. So days add up round the circle with no remainder to take, and
// where they end tells the weekday: over some hundred millions of days, what the
// rounding adds stays within the day that is meant. The compiler would take many
// of these remainders by dividing, which took a fifth of the time of a new day.
// After D. Lemire, O. Kaser, N. Kurz, "Faster remainder by direct computation",
// Software: Practice and Experience 49 (2019).
constexpr std::uint32_t seventhOfCircle = 613566757;

std::uint32_t onCircle(int days) {
    return static_cast<std::uint32_t>(days) * seventhOfCircle;
}

// Days gone since the beginning of the week, 0..6.
int daysOfWeekAt(std::uint32_t place) {
    return static_cast<int>(std::uint64_t{place} * daysInWeek >> 32);
}

// Days beyond whole weeks, 0..6. Stored weekdays have 16 bits and may be negative;
// the weeks that are added are more than they can take away.
int daysBeyondWeeks(int days) {
    constexpr int manyWeeks = 10000 * daysInWeek;
    return daysOfWeekAt(onCircle(days + manyWeeks));
}

int wholeWeeks(int days) {
    return static_cast<int>(static_cast<std::uint64_t>(days) * seventhOfCircle >> 32);
}

int weeksTouchedBy(int days) {
    return wholeWeeks(days + daysInWeek - 1);
}

} // namespace

int Calc::WeekdayOf(int julianDay) {
    return daysOfWeekAt(onCircle(julianDay)) + 1;
}

void Calc::SetMonthStarts(int c) {
    std::uint32_t place = onCircle(YearJD(c, FirstDay));
    for (int month = 1; month <= monthLimit; ++month) {
        MonthDays(c, weekdayRow + month) = daysOfWeekAt(place) + 1;
        place += onCircle(MonthDays(c, month));
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
