// SPDX-License-Identifier: MIT
#include "changecals/controltexts.h"

#include "calc/state.h"
#include "platform/text.h"
#include "shared/settings.h"
#include "shared/texts.h"

#include <QWidget>

void ChangeCals::SetTip(QWidget* control, const QString& tip, int c) {
    control->setToolTip(ShowTips != 0 ? PlainTip(tip) : QString());
    control->setAccessibleName(isCalendar(c) ? Text(CalendarNames(c)) + QStringLiteral(", ") + tip
                                             : tip);
}

QString ChangeCals::SpokenDate(int c, int weekday, const QString& day, int month) {
    return QStringLiteral("%1, %2 %3 %4, %5")
        .arg(Text(WeekDayNames(weekday)), day, Text(MonthNames(c, month)),
             QString::number(CurDate(c, Year)), Text(CalendarNames(c)));
}
