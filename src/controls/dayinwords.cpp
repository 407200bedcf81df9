// SPDX-License-Identifier: MIT
#include "controls/dayinwords.h"

#include "calc/range.h"
#include "calc/state.h"
#include "platform/numbers.h"
#include "platform/text.h"
#include "shared/texts.h"

#include <QStringList>

namespace {

QString dateInWords(int c, const QString& day, int month) {
    return QStringLiteral("%1 %2 %3")
        .arg(day, AmidNumbers(Text(MonthNames(c, month))), QString::number(CurDate(c, Year)));
}

QString line(const std::string& name, const QString& value) {
    return Text(name) + QStringLiteral(": ") + value;
}

} // namespace

QString SpokenDay(int c, int weekday, const QString& day, int month, bool isSelected) {
    const QString words = Spoken(
        QStringLiteral("%1, %2, %3")
            .arg(Text(WeekDayNames(weekday)), dateInWords(c, day, month), Text(CalendarNames(c))));
    return isSelected ? words + QStringLiteral(", ") + Text(SelectedWord) : words;
}

QString SpokenChosenDay(int c) {
    if (!IsCalendar(c) || Calc::IsBeforeRange(c))
        return {};
    return SpokenDay(c, WeekDayNo, QString::number(CurDate(c, Day)), CurDate(c, Month));
}

QString ChosenDayInWords() {
    QStringList lines;
    for (int c = 1; c <= calendarCount; ++c) {
        const QString day = QString::number(CurDate(c, Day));
        if (!Calc::IsBeforeRange(c) && !Calc::IsAfterRange(c))
            lines.append(line(CalendarNames(c), dateInWords(c, day, CurDate(c, Month))));
    }
    lines.append(line(StringTexts(WeekDayText), Text(WeekDayNames(WeekDayNo))));
    lines.append(line(StringTexts(JulianDayText), QString::number(CurJD)));
    lines.append(line(StringTexts(MoonAgeText), FormatOneDecimal(MoonAge)));
    return lines.join(u'\n');
}
