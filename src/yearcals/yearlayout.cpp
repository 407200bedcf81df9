// SPDX-License-Identifier: MIT
#include "yearcals/yearlayout.h"

#include "calc/state.h"
#include "shared/calendars.h"

namespace {

constexpr int adarTwo = 7;

bool hasAdarTwo(int c) {
    return c == Jewish && JewishLeap;
}

} // namespace

GridPlace YearLayout::BlockOf(int c, int month) {
    const bool shifted = hasAdarTwo(c) && month >= adarTwo;
    const int place = month - 1 - (shifted ? 1 : 0);
    const int extra = hasAdarTwo(c) && month == adarTwo ? DayGrid::monthColumns : 0;
    return {place / monthsInBand * bandRows + titleRows,
            extra + place % monthsInBand * DayGrid::monthColumns + 1};
}

int YearLayout::MonthOf(int c, GridPlace cell) {
    const int band = cell.row / bandRows;
    const int month = (cell.column - 1) / DayGrid::monthColumns + band * monthsInBand + 1;
    return hasAdarTwo(c) && band > adarTwoBand ? month + 1 : month;
}
