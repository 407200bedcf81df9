// SPDX-License-Identifier: MIT
// Where days stand in the grids, as the walk expects it.
#pragma once

#include "endurance/expected.h"
#include "support/yearsheet.h"

#include <optional>

namespace Layout {

/// The cell of a day of a month in a month's grid: weekdays downward, weeks to the
/// right of the weekdays' names.
inline GridPlace InMonth(const Expected& expected, int c, const Reckoning::Date& date) {
    const int place = expected.LeadingBlanks(c, date.year, date.month) + date.day - 1;
    return {place % daysInWeek, 1 + place / daysInWeek};
}

/// The Julian Day in a cell, of those of a month whose days begin at a corner.
inline std::optional<int> DayAt(const Expected& expected, int c, const Reckoning::Date& month,
                                GridPlace corner, GridPlace cell) {
    const GridPlace in{cell.row - corner.row, cell.column - corner.column};
    if (in.row < 0 || in.row >= 7 || in.column < 0 || in.column >= 6)
        return std::nullopt;
    const int blanks = expected.LeadingBlanks(c, month.year, month.month);
    const int day = in.column * 7 + in.row - blanks + 1;
    if (day < 1 || day > expected.Rules().DaysInMonth(c, month.year, month.month))
        return std::nullopt;
    return expected.Rules().DayOf(c, {day, month.month, month.year});
}

/// The Julian Day in a cell of a grid of the chosen month.
inline std::optional<int> DayInMonth(const Expected& expected, int c, GridPlace cell) {
    return DayAt(expected, c, expected.In(c).date, {0, 1}, cell);
}

/// The Julian Day in a cell of a grid of the chosen year.
inline std::optional<int> DayInYear(const Expected& expected, int c, GridPlace cell) {
    const YearAndDay in = expected.In(c);
    for (int month = 1; month <= in.months; ++month) {
        const GridPlace corner = cornerOnSheet(c, in.months, month);
        const auto day = DayAt(expected, c, {1, month, in.date.year}, corner, cell);
        if (day)
            return day;
    }
    return std::nullopt;
}

inline GridPlace InYear(const Expected& expected, int c, const Reckoning::Date& date) {
    const int months = expected.Rules().MonthsIn(c, date.year);
    const GridPlace corner = cornerOnSheet(c, months, date.month);
    const GridPlace cell = InMonth(expected, c, date);
    return {corner.row + cell.row, corner.column + cell.column - 1};
}

} // namespace Layout
