// SPDX-License-Identifier: MIT
#pragma once

#include "changecals/opening.h"

class frmYearCal;

/// Lays out and fills the year windows: twelve months (thirteen in a Jewish leap
/// year) in four bands of three, each month a block of seven weekday rows by six
/// week columns under a title.
namespace YearCals {

/// Once, when the window is loaded: caption, sizes, merged title rows, colours.
void InitYearGrid(frmYearCal& form, int c);

/// Brings the window up to date with the chosen day: moves the mark when the
/// day is in the year already filled in, refills the grid otherwise. A day
/// before the calendar's range hides the grid, a day after it disables it.
void ShowYear(frmYearCal& form, int c);

/// Refills the grid for the chosen year. Called by ShowYear only.
void BuildYearGrid(frmYearCal& form, int c);

/// A press with the left button: makes the day of the current cell the chosen
/// one. A blank cell, a title, a weekday or the marked day is left alone.
void PickYearCell(frmYearCal& form, int c);

/// Fills the selector with every year, the shown one selected.
void FillYearList(frmYearCal& form, int c);

/// Command1(1..6).
void StepYear(frmYearCal& form, int c, int index);

/// The window is being unloaded.
void CloseYearWindow(frmYearCal& form, int c);

/// Makes the Jewish window as wide as its year asks for, unless it is minimised
/// or maximised.
void FitJewishWindow(frmYearCal& form);

/// The next ShowYear of every calendar refills its grid.
void ForgetShownYears();

using ChangeCals::ShowMonthlyWindow;
using ChangeCals::ShowMoonWindow;

} // namespace YearCals
