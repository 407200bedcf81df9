// SPDX-License-Identifier: MIT
#include "printing/paperdays.h"

#include "calc/range.h"
#include "calc/state.h"
#include "changecals/changecals.h"
#include "changecals/moonage.h"
#include "platform/text.h"
#include "shared/settings.h"
#include "shared/texts.h"

#include <algorithm>

namespace {

using Printing::PaperDate;
using Printing::PaperDay;

PaperDate chosenDateIn(int c) {
    if (Calc::IsBeforeRange(c) || Calc::IsAfterRange(c))
        return {};
    const int month = CurDate(c, Month);
    return {CurDate(c, Day), month, CurDate(c, Year), CurDate(c, DayNumber),
            Text(MonthNames(c, month))};
}

PaperDay deriveDay(int julianDay) {
    ChangeCals::DeriveDay(julianDay);
    ChangeCals::SetMoonAge();
    PaperDay day{julianDay, WeekDayNo, MoonAge, {}};
    for (int c = 1; c <= calendarCount; ++c)
        day.dates(c) = chosenDateIn(c);
    return day;
}

// Those that calendar c has.
std::vector<PaperDate> datesIn(std::span<const PaperDay> days, int c) {
    std::vector<PaperDate> dates;
    for (const PaperDay& day : days) {
        if (day.dates(c).day != 0)
            dates.push_back(day.dates(c));
    }
    return dates;
}

QString dashed(const QString& from, const QString& to) {
    return QStringLiteral("%1 \u2013 %2").arg(from, to);
}

QString withYear(const QString& months, int year) {
    return QStringLiteral("%1 %2").arg(months, QString::number(year));
}

} // namespace

std::vector<PaperDay> Printing::DaysBetween(int first, int last) {
    const int chosen = CurJD;
    std::vector<PaperDay> days;
    for (int julianDay = first; julianDay <= last; ++julianDay)
        days.push_back(deriveDay(julianDay));
    deriveDay(chosen); // the tables follow from the day alone
    return days;
}

QString Printing::MonthsTouched(std::span<const PaperDay> days, int c) {
    const std::vector<PaperDate> dates = datesIn(days, c);
    if (dates.empty())
        return {};
    const PaperDate& first = dates.front();
    const PaperDate& last = dates.back();
    if (first.year != last.year)
        return dashed(withYear(first.monthName, first.year), withYear(last.monthName, last.year));
    if (first.month != last.month)
        return withYear(dashed(first.monthName, last.monthName), last.year);
    return withYear(last.monthName, last.year);
}

QString Printing::YearsTouched(std::span<const PaperDay> days, int c) {
    const std::vector<PaperDate> dates = datesIn(days, c);
    if (dates.empty())
        return {};
    const QString first = QString::number(dates.front().year);
    const QString last = QString::number(dates.back().year);
    return first == last ? first : dashed(first, last);
}

std::vector<int> Printing::CalendarsFrom(int c) {
    std::vector<int> calendars{c};
    const auto add = [&calendars](int other) {
        if (IsCalendar(other) && std::ranges::find(calendars, other) == calendars.end())
            calendars.push_back(other);
    };
    for (int pane = 1; pane <= paneCount; ++pane)
        add(CalendarOrder(pane));
    for (int other = 1; other <= calendarCount; ++other)
        add(other); // a pane may hold none
    return calendars;
}

QStringList Printing::InOthers(const std::vector<int>& calendars,
                               const std::function<QString(int c)>& textOf) {
    QStringList texts;
    for (const int c : std::span(calendars).subspan(1))
        texts.append(textOf(c));
    texts.removeAll(QString());
    return texts;
}

QString Printing::Joined(const QStringList& texts) {
    return texts.join(QStringLiteral(" \u00b7 "));
}

QString Printing::Titled(int c, const QString& shown) {
    return Text(CalendarNames(c)) + u' ' + shown;
}
