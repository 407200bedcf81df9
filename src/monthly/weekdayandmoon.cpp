// SPDX-License-Identifier: MIT
#include "monthly/weekdayandmoon.h"

#include "calc/range.h"
#include "calc/state.h"
#include "changecals/changecals.h"
#include "changecals/moonage.h"
#include "controls/tips.h"
#include "monthly/juliandayfield.h"
#include "platform/beep.h"
#include "platform/combobox.h"
#include "platform/commandbutton.h"
#include "platform/numbers.h"
#include "platform/text.h"
#include "shared/flags.h"
#include "shared/mainwindows.h"
#include "shared/texts.h"

#include <algorithm>

namespace {

constexpr int controlGap = 6; // pixels between controls

const QString widestAge = QStringLiteral("28.8");

// One decimal, of which a zero is dropped together with the separator.
QString moonAgeText(double age) {
    QString text = FormatOneDecimal(age);
    if (text.endsWith(u'0'))
        text.chop(2);
    return text;
}

// The ages of the whole days of the present lunation.
ListEntries moonAges() {
    const int daysPassed = static_cast<int>(MoonAge);
    const float firstAge = MoonAge - static_cast<float>(daysPassed);
    const int wholeDays = static_cast<int>(ChangeCals::lunation - firstAge);
    return NumberedEntries(0, wholeDays, daysPassed, [firstAge](int day) {
        return moonAgeText(firstAge + static_cast<float>(day));
    });
}

QStringList weekdays() {
    QStringList names;
    for (int weekday = Monday; weekday <= Sunday; ++weekday)
        names.append(Text(WeekDayNames(weekday)));
    return names;
}

int widestWeekday(const ComboBox& list) {
    int width = 0;
    for (const QString& name : weekdays())
        width = std::max(width, list.WidthFor(name));
    return width;
}

} // namespace

WeekdayAndMoon::WeekdayAndMoon(QWidget* parent)
    : QObject(parent),
      m_combo6(new ComboBox(QStringLiteral("Combo6"), parent)),
      m_combo7(new ComboBox(QStringLiteral("Combo7"), parent)),
      m_command2(parent),
      m_combo8(new JulianDayField(QStringLiteral("Combo8"), parent)) {
    connect(m_combo6, &ComboBox::Click, this, &WeekdayAndMoon::Combo6_Click);
    connect(m_combo7, &ComboBox::Click, this, &WeekdayAndMoon::Combo7_Click);
    m_combo7->SetFiller(moonAges);
}

int WeekdayAndMoon::Width() const {
    return widestWeekday(*m_combo6) + m_combo7->WidthFor(widestAge) + Height() +
           m_combo8->OwnWidth() + 3 * controlGap;
}

int WeekdayAndMoon::Height() const {
    return std::max(m_combo6->sizeHint().height(), CommandButton::side);
}

void WeekdayAndMoon::Place(int left, int middle, int width) {
    const int height = m_combo6->sizeHint().height();
    const int top = middle - height / 2;
    const auto placeNext = [&left, top, height](ComboBox* list, int listWidth) {
        list->setGeometry(left, top, listWidth, height);
        left += listWidth + controlGap;
    };
    placeNext(m_combo6, widestWeekday(*m_combo6) - std::max(0, Width() - width));
    placeNext(m_combo7, m_combo7->WidthFor(widestAge));
    m_command2.Place(left, middle - Height() / 2, Height());
    left += Height() + controlGap;
    placeNext(m_combo8, m_combo8->OwnWidth());
}

void WeekdayAndMoon::Fill() {
    const UpdatingGuard updating;
    m_combo6->SetItems(weekdays(), WeekDayNo - 1);
    m_command2.BringToFront(MoonPhase);
    m_moonAge = moonAgeText(MoonAge);
    m_combo7->SetOnlyItem(m_moonAge);
    m_combo8->Show(CurJD);
}

void WeekdayAndMoon::TakeFocus() {
    m_combo6->setFocus(Qt::ShortcutFocusReason);
}

void WeekdayAndMoon::SetTexts() {
    Controls::SetTip(m_combo6, WeekDayText);
    Controls::SetTip(m_combo7, MoonAgeText);
    Controls::SetTip(m_combo8, JulianDayText);
    m_command2.SetTexts();
}

void WeekdayAndMoon::Combo6_Click() {
    const int days = m_combo6->ListIndex() - (WeekDayNo - 1);
    if (!Updating && days != 0)
        moveBy(days);
}

void WeekdayAndMoon::Combo7_Click() {
    if (!Updating && m_combo7->Text() != m_moonAge)
        moveBy(MyVal(m_combo7->Text()) - MyVal(m_moonAge));
}

// No day below the lowest can be reached; above, the way is open on purpose. In
// either case the refill puts the lists right.
void WeekdayAndMoon::moveBy(double days) {
    const int moved = CLng(days + CurJD).value_or(CurJD);
    const bool isTooLow = moved < Calc::LowestDay();
    if (isTooLow)
        Beep();
    ChangeCals::ChooseJulianDay(isTooLow ? CurJD : moved, MonthlyWindowNumber);
}
