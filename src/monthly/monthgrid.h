// SPDX-License-Identifier: MIT
#pragma once

#include "platform/flexgrid.h"
#include "shared/calendars.h"
#include "shared/table.h"

/// The cells that show the chosen day as red, remembered per calendar: rows in
/// entries 1..4, columns in 5..8. Two panes of the same calendar share a cell.
struct ChosenCells {
    int& Row(int c) { return m_entries(c); }
    int& Col(int c) { return m_entries(calendarCount + c); }

private:
    Table<int, 2 * calendarCount> m_entries;
};

/// A month of one calendar, weekdays down and weeks across: column 0 holds the
/// weekdays' names, columns 1..6 the days.
class MonthGrid : public QObject {
    Q_OBJECT

public:
    MonthGrid(int pane, ChosenCells& chosen, QWidget* parent);

    MSFlexGrid* Control() const { return m_grid; }

    /// Every cell in the colours of the pane's calendar, none marked.
    void Recolor();

    /// Fills in the current month. Sets Updating and clears it.
    void Fill();

Q_SIGNALS:
    /// A day is about to be chosen by a press in this grid.
    void DayPicked();

private:
    void MSFlexGrid1_MouseDown();
    void MSFlexGrid1_DblClick();

    int calendar() const;
    void mark(int row, int column);
    void unmarkRemembered();
    void remember(int row, int column);
    void fillWeekdays();
    void fillDays();
    void blankFrom(int row, int column);
    QString accessibleText(int row, int column) const;

    int m_pane;
    ChosenCells& m_chosen;
    MSFlexGrid* m_grid;
};
