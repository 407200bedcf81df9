// SPDX-License-Identifier: MIT
#pragma once

#include "shared/calendars.h"
#include "shared/table.h"

/// Refills every visible window; the others are refilled when they are shown.
void RebuildVisibleWindows();

/// Refills the visible windows that show one of the calendars marked.
void RebuildVisibleWindowsOf(const Table<bool, calendarCount>& calendars);
