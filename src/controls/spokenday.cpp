// SPDX-License-Identifier: MIT
#include "controls/spokenday.h"

#include "calc/range.h"
#include "calc/state.h"
#include "platform/text.h"
#include "shared/texts.h"

QString DateInWords(int c, const QString& day, int month) {
    return QStringLiteral("%1 %2 %3")
        .arg(day, AmidNumbers(Text(MonthNames(c, month))), QString::number(CurDate(c, Year)));
}

QString SpokenDay(int c, int weekday, const QString& day, int month) {
    return Spoken(
        QStringLiteral("%1, %2, %3")
            .arg(Text(WeekDayNames(weekday)), DateInWords(c, day, month), Text(CalendarNames(c))));
}

QString SpokenChosenDay(int c) {
    if (!IsCalendar(c) || Calc::IsBeforeRange(c))
        return {};
    return SpokenDay(c, WeekDayNo, QString::number(CurDate(c, Day)), CurDate(c, Month));
}
