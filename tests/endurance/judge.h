// SPDX-License-Identifier: MIT
#pragma once

#include "endurance/reckoning.h"

class Controls;
class Expected;
class MSFlexGrid;
struct GridPlace;

/// Looks whether the program shows what it should; a difference is a failure of the
/// test.
class Judge {
public:
    Judge(const Expected& expected, Controls& controls)
        : m_expected(expected), m_controls(controls) {}

    /// The state and what the windows on the screen say of the day.
    void Look();

    /// All cells of their grids, their captions and tips as well.
    void LookClosely();

private:
    void lookAtState() const;
    void lookAtDate(int c) const;
    void lookAtWindows() const;
    void lookAtMonthly();
    void lookAtPane(int pane);
    void lookAtYear(int c);
    void lookAtMoon();
    void lookAtMoonButton(int number);
    void lookAtMark(MSFlexGrid& grid, GridPlace cell, int day) const;

    void lookAtCaptions() const;
    void lookAtCloseTips();
    void lookAtMonthCells(int pane);
    void lookAtYearCells(int c);
    void lookAtBlock(MSFlexGrid& grid, int c, const Reckoning::Date& month, GridPlace corner) const;
    void lookAtColors(MSFlexGrid& grid, int c, GridPlace marked) const;

    const Expected& m_expected;
    Controls& m_controls;
};
