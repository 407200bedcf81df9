// SPDX-License-Identifier: MIT
#pragma once

#include "shared/calendars.h"
#include "shared/table.h"

#include <string>

// The user's stored choices: read at the start, saved in three groups. Saving
// tells the user, once since they were read, when they cannot be written.

/// Reads every setting into the shared tables; absent ones get their standard
/// values, all of them when the file cannot be read, which is told. False, after
/// a message that names the section, the key and the text, when a number cannot
/// be read: the program is then not to start.
bool ReadSettings();

/// The calendars of the four panes.
void SaveCalendarOrder();

/// What the options dialog stores, each with the meaning that it has in the
/// shared table of its name.
struct StoredOptions {
    int moslemType;
    Table<int, calendarCount> firstWeekDay;
    std::string languageName;
    int startupWindow;
    int showTips;
};

void SaveOptions(const StoredOptions& options);

/// FormTop and FormLeft.
void SavePositions();
