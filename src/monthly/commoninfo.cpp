// SPDX-License-Identifier: MIT
#include "monthly/commoninfo.h"

#include "calc/state.h"
#include "changecals/changecals.h"
#include "changecals/controltexts.h"
#include "platform/beep.h"
#include "platform/numbers.h"
#include "platform/text.h"
#include "shared/flags.h"
#include "shared/texts.h"

#include <QLocale>
#include <cmath>

namespace {

constexpr int gap = 6; // pixels between controls
constexpr int weekdayWidth = 132;
constexpr int moonAgeWidth = 76;
constexpr int julianDayWidth = 112;

// One decimal, of which a zero is dropped together with the separator.
QString moonAgeText(double age) {
    QString text = FormatOneDecimal(age);
    if (text.endsWith(u'0'))
        text.chop(2);
    return text;
}

} // namespace

CommonInfo::CommonInfo(QWidget* parent)
    : QObject(parent),
      m_combo6(new ComboBox(QStringLiteral("Combo6"), parent)),
      m_combo7(new ComboBox(QStringLiteral("Combo7"), parent)),
      m_command2(parent),
      m_combo8(new JulianDayField(QStringLiteral("Combo8"), parent)) {
    connect(m_combo6, &ComboBox::Click, this, &CommonInfo::Combo6_Click);
    connect(m_combo7, &ComboBox::Click, this, &CommonInfo::Combo7_Click);
    connect(m_combo7, &ComboBox::GotFocus, this, &CommonInfo::fillMoonAges);
    connect(m_combo7, &ComboBox::BeforeUse, this, &CommonInfo::fillMoonAges);
}

void CommonInfo::Place(int left, int middle) {
    const int height = m_combo6->sizeHint().height();
    const int top = middle - height / 2;
    m_combo6->setGeometry(left, top, weekdayWidth, height);
    left += weekdayWidth + gap;
    m_combo7->setGeometry(left, top, moonAgeWidth, height);
    left += moonAgeWidth + gap;
    m_command2.Move(left, middle - CommandButton::side / 2);
    left += CommandButton::side + gap;
    m_combo8->setGeometry(left, top, julianDayWidth, height);
}

void CommonInfo::Reset() {
    m_combo6->Clear();
    for (int weekday = Monday; weekday <= Sunday; ++weekday)
        m_combo6->AddItem(Text(WeekDayNames(weekday)));
}

void CommonInfo::Fill() {
    Updating = true;
    if (m_combo6->ListIndex() != WeekDayNo - 1)
        m_combo6->SetListIndex(WeekDayNo - 1);
    m_command2.BringToFront(MoonPhase);
    m_moonAge = moonAgeText(MoonAge);
    m_combo7->SetOnlyItem(m_moonAge);
    m_combo8->Show(CurJD);
    Updating = false;
}

void CommonInfo::SetTexts() {
    ChangeCals::SetTip(m_combo6, Text(StringTexts(WeekDayText)));
    ChangeCals::SetTip(m_combo7, Text(StringTexts(MoonAgeText)));
    ChangeCals::SetTip(m_combo8, Text(StringTexts(JulianDayText)));
    m_command2.SetTexts();
}

void CommonInfo::Combo6_Click() {
    const int days = m_combo6->ListIndex() - (WeekDayNo - 1);
    if (!Updating && days != 0)
        moveBy(days);
}

void CommonInfo::Combo7_Click() {
    if (!Updating && m_combo7->Text() != m_moonAge)
        moveBy(MyVal(m_combo7->Text()) - MyVal(m_moonAge));
}

// The ages of the whole days of the present lunation.
void CommonInfo::fillMoonAges() {
    if (Updating || m_combo7->ListCount() > 1)
        return;
    const int daysPassed = static_cast<int>(MoonAge);
    const float firstAge = MoonAge - static_cast<float>(daysPassed);
    QStringList ages;
    const int wholeDays = static_cast<int>(ChangeCals::lunation - firstAge);
    for (int day = 0; day <= wholeDays; ++day)
        ages.append(moonAgeText(firstAge + static_cast<float>(day)));
    Updating = true;
    m_combo7->SetItems(ages, daysPassed);
    Updating = false;
}

// No day below the lowest can be reached; above, the way is open on purpose. In
// either case the refill puts the lists right.
void CommonInfo::moveBy(double days) {
    const int moved = CLng(days + CurJD).value_or(CurJD);
    if (moved < MinJD(Jewish))
        Beep();
    else
        CurJD = moved;
    ChangeCals::ChangeJD();
}

float MyVal(const QString& text) {
    if (text.contains(u','))
        return static_cast<float>(QLocale().toDouble(text));
    return static_cast<float>(Val(text));
}
