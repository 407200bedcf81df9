// SPDX-License-Identifier: MIT
#pragma once

#include "platform/combobox.h"

// What the month, day and week lists of a pane hold: each entry says the number
// and how many there are in the current year of calendar c. The number comes
// first: typed digits are matched with it, and from a day or a week that was chosen
// the pane reads it back.

/// "2/12  February": the names of the language now chosen.
QString MonthEntry(int c, int month);
/// "41/366", the day of the year.
QString DayEntry(int c, int day);
/// "7/53", the week of the year.
QString WeekEntry(int c, int week);

/// The four calendars' names.
QStringList CalendarEntries();

/// The entries of every month that any calendar can have, in any year.
QStringList EntriesOfAllMonths();

/// All entries of each list, the chosen day's chosen.
ListEntries MonthEntries(int c);
ListEntries DayEntries(int c);
ListEntries WeekEntries(int c);
