// SPDX-License-Identifier: MIT
#pragma once

#include "shared/calendars.h"
#include "shared/table.h"

#include <QStringList>
#include <functional>
#include <span>
#include <vector>

/// What the pages say of days.
namespace Printing {

/// A date in one calendar; with a day of 0 where the calendar has none.
struct PaperDate {
    int day = 0;
    int month = 0;
    int year = 0;
    int dayOfYear = 0;
    QString monthName;
};

struct PaperDay {
    int julianDay = 0;
    int weekday = 0;
    float moonAge = 0;
    Table<PaperDate, calendarCount> dates;
};

/// The days from one Julian Day to another. The chosen day and its tables stay.
std::vector<PaperDay> DaysBetween(int first, int last);

/// The months that days touch in calendar c, "December 2026 – January 2027", and
/// the years, "2026 – 2027"; empty where the calendar shows none of the days.
QString MonthsTouched(std::span<const PaperDay> days, int c);
QString YearsTouched(std::span<const PaperDay> days, int c);

/// All calendars: c, then the others as the panes have them.
std::vector<int> CalendarsFrom(int c);

/// What a page says of the calendars of a list but its first; nothing of those of
/// which there is nothing to be said.
QStringList InOthers(const std::vector<int>& calendars,
                     const std::function<QString(int c)>& textOf);

/// Texts of one rank in a line.
QString Joined(const QStringList& texts);

/// The name of a calendar and what is shown of it, "Jewish calendar 5787".
QString Titled(int c, const QString& shown);

} // namespace Printing
