// SPDX-License-Identifier: MIT
#pragma once

#include "controls/daygrid.h"

/// A month of one calendar, weekdays down and weeks across: column 0 holds the
/// weekdays' names, columns 1..6 the days.
class MonthGrid final : public DayGrid {
    Q_OBJECT

public:
    MonthGrid(int pane, QWidget* parent);

    /// Fills in the current month, in the colours of the pane's calendar.
    void Fill();

protected:
    GridPlace CornerOf(int month) const override;
    int MonthOf(GridPlace cell) const override;
    int FirstMonth() const override { return MonthOf({}); }
    int LastMonth() const override { return MonthOf({}); }

private:
    void MSFlexGrid1_DblClick();
    void page(int direction, bool byYear);

    int m_pane;
};
