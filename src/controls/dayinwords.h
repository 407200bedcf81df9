// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Days in words, in the language now chosen.

/// What an assistive tool says of a day in a grid, of a month of calendar c's current
/// year: "Friday, 20 November 2026, Gregorian calendar", and of the chosen one that it
/// is selected.
QString SpokenDay(int c, int weekday, const QString& day, int month, bool isSelected = false);

/// The chosen day in calendar c; nothing before the calendar's range.
QString SpokenChosenDay(int c);

/// The chosen day to be copied: a line for each calendar that can show it, then
/// weekday, Julian Day and the moon's age in days.
QString ChosenDayInWords();
