// SPDX-License-Identifier: MIT
#pragma once

/// From now on the outlines of lists, fields, buttons and boxes to be ticked are seen
/// also in a theme that forces black or white windows. Nothing changes in other themes,
/// nor in styles that do not take outlines from the colour of the window. Called once,
/// after the application has been made.
void InstallControlOutlines();
