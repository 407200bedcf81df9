// SPDX-License-Identifier: MIT
#pragma once

/// Lets a pane show calendar c. No two panes show the same: the first that showed c takes
/// this pane's former calendar and is returned, 0 where there is none.
int ExchangeCalendars(int pane, int c);
