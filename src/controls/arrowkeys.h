// SPDX-License-Identifier: MIT
#pragma once

#include "platform/gridmodel.h"

/// How a grid of days is laid out: bands of seven weekday rows, each under a number of
/// title rows.
struct DayBands {
    int titleRows;
    int columns;

    /// The row of the week from 0, below 0 for a title.
    int WeekRow(int row) const;
};

/// The cell to which an arrow key leads. Left and Right lead to the week before and after;
/// Up and Down to the day before and after: down the columns of a band, then through those
/// of the next. It need not be a cell of the grid.
GridPlace NextBy(int arrowKey, GridPlace cell, const DayBands& bands);
