// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// A day of a month of calendar c's current year, "20 November 2026", in the language
/// now chosen.
QString DateInWords(int c, const QString& day, int month);

/// What an assistive tool says of a day in a grid, "Friday, 20 November 2026,
/// Gregorian calendar".
QString SpokenDay(int c, int weekday, const QString& day, int month);

/// The chosen day in calendar c; nothing before the calendar's range.
QString SpokenChosenDay(int c);
