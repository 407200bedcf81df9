// SPDX-License-Identifier: MIT
#pragma once

#include "shared/calendars.h"
#include "shared/mainwindows.h"
#include "shared/table.h"

#include <string>

// The user's stored choices as the running program holds them. Numbers fit in
// 16 bits, since that is how they are stored; their values are otherwise as the
// store gave them and are checked where they are used. Reading the settings fills
// them first, from the table of the settings where nothing is stored.

/// Panes of the monthly window; each calendar has one.
inline constexpr int paneCount = calendarCount;

/// The calendar of each pane of the monthly window. Entry 1 may hold a number
/// that is no calendar: such a pane stands empty.
inline Table<int, paneCount> CalendarOrder;

/// The weekday that opens the week in each calendar, 1 Monday .. 7 Sunday; read
/// it through Calc::WeekStart, which makes a weekday of any stored number.
inline Table<int, calendarCount> FirstWeekDay;

/// A position that means "none stored".
inline constexpr int noPosition = 32737;

/// Positions of the main windows' frames in twips, as read at start and, at
/// exit, as saved.
inline Table<int, mainWindowCount> FormTop;
inline Table<int, mainWindowCount> FormLeft;

/// 1: era from 15 July 622, year 15 of the cycle long; any other value: era
/// from 16 July 622, year 16 long.
inline int MoslemType = 0;

/// 0 the monthly window, 1..4 the year window of that calendar; any other value
/// opens no window.
inline int StartupWindow = 0;

/// The base name of a language file in the program's folder, or englishLanguage.
inline std::string LanguageName;

/// Tool tips are shown when this is not 0.
inline int ShowTips = 0;
