// SPDX-License-Identifier: MIT
#pragma once

/// Where the days of a year stand in the year grid. Rows and columns count from
/// 0; month blocks are 8 rows (a title and seven weekdays) by 6 columns; column 0
/// holds the weekdays' names. In a Jewish leap year the second band has a fourth
/// block, Adar II, in columns 19..24, and the months after it stand one place
/// earlier than their number says.
namespace YearLayout {

inline constexpr int rows = 32;
inline constexpr int bandRows = 8;
inline constexpr int monthColumns = 6;
inline constexpr int monthsInBand = 3;
inline constexpr int adarTwo = 7;
inline constexpr int adarTwoColumn = 19;

struct Cell {
    int row;
    int column;
    bool operator==(const Cell& other) const = default;
};

/// The first weekday row and first column of a month's block.
Cell BlockOf(int c, int month);

/// The cell of a day of the current year of calendar c.
Cell CellOf(int c, int month, int day);

/// The month whose block holds a cell.
int MonthOf(int c, Cell cell);

/// Whether a cell can hold a day: neither weekday name nor title.
bool IsDayCell(Cell cell);

} // namespace YearLayout
