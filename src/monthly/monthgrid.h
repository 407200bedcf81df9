// SPDX-License-Identifier: MIT
#pragma once

#include "platform/flexgrid.h"

/// A month of one calendar, weekdays down and weeks across: column 0 holds the
/// weekdays' names, columns 1..6 the days.
class MonthGrid : public QObject {
    Q_OBJECT

public:
    MonthGrid(int pane, QWidget* parent);

    MSFlexGrid* Control() const { return m_grid; }

    /// Fills in the current month, in the colours of the pane's calendar. Sets
    /// Updating and clears it.
    void Fill();

Q_SIGNALS:
    /// A day is about to be chosen by a press in this grid.
    void DayPicked();

private:
    void MSFlexGrid1_MouseDown();
    void MSFlexGrid1_DblClick();

    int calendar() const;
    void recolor();
    void moveMark(int row, int column);
    void setCellLook(int row, int column, int back, int fore, bool bold);
    void fillWeekdays();
    void fillDays();
    void blankFrom(int row, int column);
    QString accessibleText(int row, int column) const;

    int m_pane;
    MSFlexGrid* m_grid;
    int m_shownCalendar = 0; ///< whose colours the cells have
    int m_markedRow = 0;
    int m_markedCol = 0;
};
