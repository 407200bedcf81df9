// SPDX-License-Identifier: MIT
#pragma once

#include "controls/daygrid.h"

/// A whole year of one calendar: twelve months (thirteen in a Jewish leap year),
/// each under its title.
class YearGrid final : public DayGrid {
    Q_OBJECT

public:
    YearGrid(int c, QWidget* parent);

    /// Brings the grid up to date with the chosen day: moves the mark when the day
    /// is in the year already filled in, refills the grid otherwise.
    void ShowYear();

    /// The next ShowYear refills the grid.
    void ForgetYear();

    /// Of a year without a thirteenth month, in pixels.
    static int NarrowestWidth();

    /// Of calendar c's longest year, in pixels.
    static QSize LargestSize(int c);

Q_SIGNALS:
    /// The grid has another size: a Jewish leap year is wider.
    void Fitted();

protected:
    GridPlace CornerOf(int month) const override;
    int MonthOf(GridPlace cell) const override;
    int FirstMonth() const override { return 1; }
    int LastMonth() const override;

private:
    void PickYearCell(Qt::MouseButton button);
    void InitYearGrid(int c);
    void BuildYearGrid();
    void fitYear();
    void setTitle(int month);
    void blankAdarTwo();

    /// First and last Julian Day of the year that the grid is filled with, both 0
    /// when it holds none.
    int m_shownFirstJD = 0;
    int m_shownLastJD = 0;
};
