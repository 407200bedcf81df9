// SPDX-License-Identifier: MIT
#include "yearcals/yearlayout.h"

#include "calc/calc.h"
#include "calc/state.h"

namespace {

bool hasAdarTwo(int c) {
    return c == Jewish && JewishLeap;
}

} // namespace

YearLayout::Cell YearLayout::BlockOf(int c, int month) {
    const bool shifted = hasAdarTwo(c) && month >= adarTwo;
    const int place = month - 1 - (shifted ? 1 : 0);
    const int extra = hasAdarTwo(c) && month == adarTwo ? monthColumns : 0;
    return {place / monthsInBand * bandRows + 1, extra + place % monthsInBand * monthColumns + 1};
}

YearLayout::Cell YearLayout::CellOf(int c, int month, int day) {
    const Cell block = BlockOf(c, month);
    const int place = Calc::LeadingBlanks(c, month) + day - 1;
    return {block.row + place % daysInWeek, block.column + place / daysInWeek};
}

int YearLayout::MonthOf(int c, Cell cell) {
    const int month = (cell.column - 1) / monthColumns + cell.row / bandRows * monthsInBand + 1;
    return hasAdarTwo(c) && cell.row >= 2 * bandRows + 1 ? month + 1 : month;
}

bool YearLayout::IsDayCell(Cell cell) {
    return cell.column > 0 && cell.row % bandRows != 0;
}
