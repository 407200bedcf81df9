// SPDX-License-Identifier: MIT
#pragma once

/// How windows bring up each other.
namespace ChangeCals {

/// Brings the year window of calendar c up to date and shows it in front. A
/// number that is no calendar opens nothing.
void OpenYearWindow(int c);

/// The same for the calendars of the four panes, from the last to the first, so
/// that the first pane's window ends in front.
void OpenYearWindowsOfPanes();

/// Shows the moon window in front, redrawn when it was not visible.
void ShowMoonWindow();

/// Shows the monthly window in front, out of the minimised state, rebuilt when
/// it was not visible.
void ShowMonthlyWindow();

/// Texts and tool tips of all loaded main windows.
void SetAllTexts();

} // namespace ChangeCals
