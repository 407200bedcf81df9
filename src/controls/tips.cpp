// SPDX-License-Identifier: MIT
#include "controls/tips.h"

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
