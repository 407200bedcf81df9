// SPDX-License-Identifier: MIT
#include "controls/tips.h"

#include "platform/text.h"
#include "shared/settings.h"
#include "shared/texts.h"

#include <QLineEdit>

namespace {

void setTip(QWidget* control, const QString& tip, const QString& ownName, int c) {
    control->setToolTip(ShowTips != 0 ? PlainTip(tip) : QString());
    const QString name =
        IsCalendar(c) ? Text(CalendarNames(c)) + QStringLiteral(", ") + ownName : ownName;
    control->setAccessibleName(name);
    for (auto* field : control->findChildren<QLineEdit*>())
        field->setAccessibleName(name); // it is told beside the list that it belongs to
}

// Without what the mouse does, and without the scheme of a value that is told anyway.
QString spokenName(int text) {
    QString tip = Text(StringTexts(text));
    switch (text) {
    case MonthText:
        return tip.section(QStringLiteral(". "), -1);
    case DayOfYearText:
    case WeekOfYearText:
        return tip.section(u'/', 0, 0);
    case MonthGridText:
    case YearGridText:
    case MoonPictureText:
        return tip.section(QStringLiteral(" ("), 0, 0);
    case CloseOrExitText:
        return Text(StringTexts(CloseText));
    default:
        return tip;
    }
}

} // namespace

void Controls::SetTip(QWidget* control, int text, int c) {
    setTip(control, Text(StringTexts(text)), spokenName(text), c);
}

void Controls::SetTip(QWidget* control, const QString& text, int c) {
    setTip(control, text, text, c);
}
