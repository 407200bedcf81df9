// SPDX-License-Identifier: MIT
#include "monthly/commoninfo.h"

#include "calc/state.h"
#include "changecals/changecals.h"
#include "changecals/opening.h"
#include "platform/beep.h"
#include "platform/numbers.h"
#include "platform/text.h"
#include "shared/flags.h"
#include "shared/settings.h"
#include "shared/texts.h"

#include <QLocale>
#include <cmath>

namespace {

constexpr int gap = 6; // pixels between controls
constexpr int weekdayWidth = 132;
constexpr int moonAgeWidth = 76;
constexpr int julianDayWidth = 112;

QStringList phasePictures() {
    QStringList pictures;
    for (int phase = 0; phase <= 8; ++phase)
        pictures.append(QStringLiteral("moon/phase%1").arg(phase));
    return pictures;
}

// One decimal, of which a zero is dropped together with the separator.
QString moonAgeText(double age) {
    QString text = FormatOneDecimal(age);
    if (text.endsWith(u'0'))
        text.chop(2);
    return text;
}

void setTip(QWidget* control, int text) {
    const QString tip = Text(StringTexts(text));
    control->setToolTip(ShowTips != 0 ? PlainTip(tip) : QString());
    control->setAccessibleName(tip);
}

} // namespace

CommonInfo::CommonInfo(QWidget* parent)
    : QObject(parent),
      m_combo6(new ComboBox(QStringLiteral("Combo6"), parent)),
      m_combo7(new ComboBox(QStringLiteral("Combo7"), parent)),
      m_command2(QStringLiteral("Command2"), phasePictures(), parent),
      m_combo8(new JulianDayField(QStringLiteral("Combo8"), parent)) {
    connect(m_combo6, &ComboBox::Click, this, &CommonInfo::Combo6_Click);
    connect(m_combo7, &ComboBox::Click, this, &CommonInfo::Combo7_Click);
    connect(m_combo7, &ComboBox::GotFocus, this, &CommonInfo::fillMoonAges);
    connect(m_combo7, &ComboBox::BeforeUse, this, &CommonInfo::fillMoonAges);
    connect(&m_command2, &ButtonStack::Click, this, &ChangeCals::ShowMoonWindow);
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
    setTip(m_combo6, WeekDayText);
    setTip(m_combo7, MoonAgeText);
    setTip(m_combo8, JulianDayText);
    const QString moon = Text(StringTexts(MoonText));
    m_command2.SetTips(ShowTips != 0 ? moon : QString(), moon);
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
