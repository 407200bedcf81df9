// SPDX-License-Identifier: MIT
#pragma once

#include "controls/arrowkeys.h"
#include "platform/flexgrid.h"
#include "shared/mainwindows.h"

/// A grid of the days of one calendar's current year or of a part of it. It is
/// made of bands of seven weekday rows, each under a number of title rows; column
/// 0 holds the weekdays' names, the columns after it months, each a block of seven
/// rows by six columns whose days run downward. Where the months lie is the
/// derived grid's to say.
///
/// The chosen day is marked: white on red and bold, all others are in the colours
/// of their calendar.
class DayGrid : public MSFlexGrid {
    Q_OBJECT

public:
    /// Columns of a month: six weeks hold any month.
    static constexpr int monthColumns = 6;

    /// In `window` the days are chosen.
    DayGrid(const QString& name, int bands, int titleRows, int columns, MainWindowNumber window,
            QWidget* parent);

    /// The calendar whose colours the cells have, 0 before the first.
    int Calendar() const { return m_calendar; }

    /// The cell of a day of a month of the current year.
    GridPlace CellOf(int month, int day) const;

    /// The month of a cell that shows a day, 0 for every other cell.
    int MonthAt(GridPlace cell) const;

Q_SIGNALS:
    /// Page Up (-1) or Page Down (+1) was pressed, with Shift or without.
    void Paged(int direction, bool withShift);

protected:
    /// The upper left cell of a month's days.
    virtual GridPlace CornerOf(int month) const = 0;

    /// The month whose block holds a cell that is neither title nor name.
    virtual int MonthOf(GridPlace cell) const = 0;

    /// The months that are shown: Home and End choose their first and last day.
    virtual int FirstMonth() const = 0;
    virtual int LastMonth() const = 0;

    /// Gives every cell the look of calendar c and takes the mark away; white for
    /// a number that is no calendar.
    void SetCalendar(int c);

    void FillWeekdays();

    /// Writes a month's days into its block and blanks the rest of the block.
    void FillMonth(int month);

    /// Takes the mark from the cell that has it and gives it to the chosen day's, which is
    /// then the selected one.
    void MarkChosenDay();

    /// Makes the day of the current cell the chosen one. A blank cell, a title, a
    /// weekday or the marked day is left alone.
    void ChoosePressedDay();

    void keyPressEvent(QKeyEvent* event) override;

private:
    void setLook(GridPlace cell, int back, int fore, bool bold);
    void moveOn(int arrowKey);
    void chooseDay(int month, int day);
    void chooseEnd(int month, int day);
    QString spokenText(GridPlace cell) const;

    DayBands m_bands;
    MainWindowNumber m_window;
    int m_calendar = 0;
};
