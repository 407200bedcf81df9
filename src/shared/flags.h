// SPDX-License-Identifier: MIT
#pragma once

/// Set while a window refills its own controls; handlers that would change the
/// chosen day do nothing meanwhile. A plain flag: every refill sets it at its
/// start and clears it on every way out.
inline bool Updating = false;

/// The window in which a change is made: 0 the monthly window, 1..4 the year
/// window of that calendar. It is redrawn first. Other values count as 0.
inline int CurrentWindow = 0;

/// The pane whose grid is being pressed, 0 when none is.
inline int SourcePane = 0;
