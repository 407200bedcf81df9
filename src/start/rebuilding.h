// SPDX-License-Identifier: MIT
#pragma once

#include "shared/calendars.h"
#include "shared/table.h"

/// What the year windows are filled with is out of date.
void ForgetFilledYears();

/// Refills every visible window; the others are refilled when they are shown.
void RebuildVisibleWindows();

/// Refills the visible windows that show one of the calendars marked.
void RebuildVisibleWindowsOf(const Table<bool, calendarCount>& calendars);
