// SPDX-License-Identifier: MIT
#include "controls/controltexts.h"

#include "calc/state.h"
#include "platform/text.h"
#include "shared/settings.h"
#include "shared/texts.h"

#include <QLineEdit>

void Controls::SetTip(QWidget* control, const QString& tip, int c) {
    control->setToolTip(ShowTips != 0 ? PlainTip(tip) : QString());
    const QString name = IsCalendar(c) ? Text(CalendarNames(c)) + QStringLiteral(", ") + tip : tip;
    control->setAccessibleName(name);
    for (auto* field : control->findChildren<QLineEdit*>())
        field->setAccessibleName(name); // it is told beside the list that it belongs to
}

QString Controls::SpokenDate(int c, int weekday, const QString& day, int month) {
    return QStringLiteral("%1, %2 %3 %4, %5")
        .arg(Text(WeekDayNames(weekday)), day, Isolated(Text(MonthNames(c, month))),
             QString::number(CurDate(c, Year)), Text(CalendarNames(c)));
}
