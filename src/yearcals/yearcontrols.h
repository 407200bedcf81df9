// SPDX-License-Identifier: MIT
#pragma once

class ButtonStack;
class ComboBox;
class CommandButton;
class QWidget;
class YearGrid;

/// Brings the controls of a year window up to date with the chosen day.
namespace YearCals {

/// The controls that it arranges, and the one to which the focus goes when none
/// of them can have it.
struct YearControls {
    YearGrid& grid;
    ComboBox& selector;
    CommandButton& previousYear;
    CommandButton& nextYear;
    ButtonStack& moon;
    QWidget& focusNext;
};

/// Shows the year and the moon's phase of the chosen day in calendar c. A day
/// before the calendar's range hides the grid, a day after it disables it.
void ShowYear(const YearControls& controls, int c);

} // namespace YearCals
