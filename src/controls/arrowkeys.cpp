// SPDX-License-Identifier: MIT
#include "controls/arrowkeys.h"

#include "shared/calendars.h"

#include <Qt>

namespace {

GridPlace nextInColumns(GridPlace cell, bool down, const DayBands& bands) {
    const int step = down ? 1 : -1;
    const int bandRows = bands.titleRows + daysInWeek;
    const int first = down ? bands.titleRows : bandRows - 1; // of the rows of a band
    const int top = cell.row - cell.row % bandRows;
    const int week = bands.WeekRow(cell.row) + step;
    const int column = cell.column + step;
    if (week >= 0 && week < daysInWeek)
        return {cell.row + step, cell.column};
    if (column >= 0 && column < bands.columns)
        return {top + first, column};
    return {top + step * bandRows + first, down ? 0 : bands.columns - 1};
}

} // namespace

int DayBands::WeekRow(int row) const {
    return row % (titleRows + daysInWeek) - titleRows;
}

GridPlace NextBy(int arrowKey, GridPlace cell, const DayBands& bands) {
    switch (arrowKey) {
    case Qt::Key_Left:
        return {cell.row, cell.column - 1};
    case Qt::Key_Right:
        return {cell.row, cell.column + 1};
    default:
        return nextInColumns(cell, arrowKey == Qt::Key_Down, bands);
    }
}
