// SPDX-License-Identifier: MIT
#pragma once

#include "shared/mainwindows.h"
#include "shared/settings.h"

struct Date;

/// Carries a change of the chosen day to all calendars and then to all windows.
/// Nothing here checks ranges: the window that takes the user's input does.
namespace ChangeCals {

/// The day, month and year of calendar c were written into CurDate: brings
/// everything else up to date.
void ChangeCal(int c);

/// The same after CurJD was written.
void ChangeJD();

/// The user has chosen a day of calendar c in a window, which is redrawn first: the one
/// way from a window to all the others. Meanwhile no change of a list is the user's.
void ChooseDate(int c, const Date& date, MainWindowNumber window);

/// The same by its Julian Day.
void ChooseJulianDay(int day, MainWindowNumber window);

/// Makes `day` the chosen day in the tables only, and leaves the moon. From there a
/// choice that replaces an earlier one is measured; it then tells the windows.
void DeriveDay(int day);

/// The user's choices by which days are derived.
struct Rules {
    int moslemType = MoslemType;
    Table<int, calendarCount> firstWeekDay = FirstWeekDay;
};

/// MoslemType and FirstWeekDay were written: derives anew what is not as by the
/// rules before, and tells of which calendars.
Table<bool, calendarCount> ChangeRules(const Rules& before);

/// Redraws what is visible: first the window named by CurrentWindow, which is
/// then 0 again.
void UpdateWindows();

/// Texts or rules have changed: refills the visible windows that show one of the
/// calendars marked, the moon where all of them are. Year windows refill all of their
/// year when they are shown next.
void RebuildWindows(const Table<bool, calendarCount>& calendars);

/// Chooses today in a window. Nothing happens when it is chosen already.
void GoToToday(MainWindowNumber window);

} // namespace ChangeCals
