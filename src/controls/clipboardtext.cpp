// SPDX-License-Identifier: MIT
#include "controls/clipboardtext.h"

#include "calc/range.h"
#include "calc/state.h"
#include "controls/spokenday.h"
#include "platform/numbers.h"
#include "platform/text.h"
#include "shared/texts.h"

#include <QStringList>

namespace {

QString line(const std::string& name, const QString& value) {
    return Text(name) + QStringLiteral(": ") + value;
}

QString dateIn(int c) {
    return DateInWords(c, QString::number(CurDate(c, Day)), CurDate(c, Month));
}

} // namespace

QString Controls::ChosenDayInWords() {
    QStringList lines;
    for (int c = 1; c <= calendarCount; ++c) {
        if (!Calc::IsBeforeRange(c) && !Calc::IsAfterRange(c))
            lines.append(line(CalendarNames(c), dateIn(c)));
    }
    lines.append(line(StringTexts(WeekDayText), Text(WeekDayNames(WeekDayNo))));
    lines.append(line(StringTexts(JulianDayText), QString::number(CurJD)));
    lines.append(line(StringTexts(MoonAgeText), FormatOneDecimal(MoonAge)));
    return lines.join(u'\n');
}
