// SPDX-License-Identifier: MIT
#include "monthly/paneentries.h"

#include "calc/calc.h"
#include "calc/state.h"
#include "platform/text.h"
#include "shared/texts.h"

namespace {

QString fraction(int number, int of) {
    return QStringLiteral("%1/%2").arg(number).arg(of);
}

} // namespace

QString MonthEntry(int c, int month) {
    return fraction(month, Calc::MonthsInYear(c)) + QStringLiteral("  ") +
           AmidNumbers(Text(MonthNames(c, month)));
}

QString DayEntry(int c, int day) {
    return fraction(day, YearDays(c, DaysInYear));
}

QString WeekEntry(int c, int week) {
    return fraction(week, YearDays(c, WeeksInYear));
}

QStringList CalendarEntries() {
    QStringList names;
    for (const int c : {Julian, Gregorian, Jewish, Moslem})
        names.append(Text(CalendarNames(c)));
    return names;
}

QStringList EntriesOfAllMonths() {
    QStringList entries;
    for (int c = 1; c <= calendarCount; ++c)
        entries += NumberedEntries(1, Calc::MonthsInYear(c), 1, [c](int month) {
                       return MonthEntry(c, month);
                   }).texts;
    return entries << fraction(7, 13) + QStringLiteral("  ") +
                          AmidNumbers(Text(AdarName + AdarSuffixes(2)));
}

ListEntries MonthEntries(int c) {
    return NumberedEntries(1, Calc::MonthsInYear(c), CurDate(c, Month),
                           [c](int month) { return MonthEntry(c, month); });
}

ListEntries DayEntries(int c) {
    return NumberedEntries(1, YearDays(c, DaysInYear), CurDate(c, DayNumber),
                           [c](int day) { return DayEntry(c, day); });
}

ListEntries WeekEntries(int c) {
    return NumberedEntries(1, YearDays(c, WeeksInYear), CurDate(c, WeekNumber),
                           [c](int week) { return WeekEntry(c, week); });
}
