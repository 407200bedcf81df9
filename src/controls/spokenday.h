// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What an assistive tool says of a day in a grid, "Friday, 20 November 2026,
/// Gregorian calendar": a day of the current year of calendar c, in the language
/// now chosen.
QString SpokenDay(int c, int weekday, const QString& day, int month);

/// The chosen day in calendar c; nothing before the calendar's range.
QString SpokenChosenDay(int c);
