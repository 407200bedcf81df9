// SPDX-License-Identifier: MIT
#include "yearcals/yearwindow.h"

#include "calc/state.h"
#include "changecals/changecals.h"
#include "changecals/closing.h"
#include "changecals/controltexts.h"
#include "changecals/placing.h"
#include "platform/text.h"
#include "platform/twips.h"
#include "shared/flags.h"
#include "shared/settings.h"
#include "shared/texts.h"
#include "yearcals/yearcals.h"

#include <QEvent>
#include <array>

namespace {

/// What differs between the four windows.
struct Difference {
    const char* name;
    const char* emblem;
    int firstYear;                ///< of the selector's list
    Table<int, 3> otherCalendars; ///< opened by Command1(7..9)
    int gridColumns;
};

const Difference& differenceOf(int c) {
    static const Table<Difference, calendarCount> rows{
        {"frmJulian", "emblems/julian", 1, {Gregorian, Jewish, Moslem}, 19},
        {"frmGregorian", "emblems/gregorian", 1, {Julian, Jewish, Moslem}, 19},
        {"frmJewish", "emblems/jewish", 3761, {Julian, Gregorian, Moslem}, 25},
        {"frmMoslem", "emblems/moslem", 1, {Julian, Gregorian, Jewish}, 19}};
    return rows(c);
}

constexpr int gridRows = 32;
constexpr int digitPixels = 10;

// In pixels.
constexpr int selectorLeft = 3;
constexpr int selectorWidth = 66;
constexpr int buttonStep = CommandButton::side + 1;
constexpr int frame = 1;

// The controls from left to right after the selector; 0 stands for the moon.
constexpr int moonPlace = 0;
constexpr std::array commandOrder{
    int{PreviousYear},      int{NextYear},          int{TodayCommand},      moonPlace,
    FirstOtherCalendar + 0, FirstOtherCalendar + 1, FirstOtherCalendar + 2, int{OptionsCommand},
    int{AboutCommand},      int{CloseCommand}};

QString commandPicture(int c, int index) {
    static const Table<QString, FirstOtherCalendar - 1> pictures{
        QStringLiteral("previous"), QStringLiteral("next"),  QStringLiteral("today"),
        QStringLiteral("options"),  QStringLiteral("about"), QStringLiteral("close")};
    if (index < FirstOtherCalendar)
        return QStringLiteral("buttons/") + pictures(index);
    const int other = differenceOf(c).otherCalendars(index - FirstOtherCalendar + 1);
    return QString::fromLatin1(differenceOf(other).emblem);
}

} // namespace

frmYearCal::frmYearCal(int c)
    : YearWindow(QString::fromLatin1(differenceOf(c).name)),
      m_calendar(c),
      m_combo1(new ComboBox(QStringLiteral("Combo1"), this)),
      m_command2(this),
      m_grid(new MSFlexGrid(QStringLiteral("MSFlexGrid1"), gridRows, differenceOf(c).gridColumns,
                            this)) {
    createControls();
    connectControls();
    YearCals::InitYearGrid(*this, c);
    placeControls();
    m_grid->setFocus(); // the days, not a list that would be filled at once
    SetTexts();
    ChangeCals::PlaceForm(*this, c);
}

void frmYearCal::SetTexts() {
    SetCaption(Text(CalendarNames(m_calendar)));
    const auto setTip = [this](QWidget* control, const QString& tip) {
        ChangeCals::SetTip(control, tip, m_calendar);
    };
    setTip(m_combo1, Text(StringTexts(YearText)));
    const Table<int, FirstOtherCalendar - 1> tips{PreviousYearText, NextYearText, TodayText,
                                                  OptionsText,      AboutText,    ExitText};
    for (int index = 1; index < FirstOtherCalendar; ++index)
        setTip(m_command1(index), Text(StringTexts(tips(index))));
    for (int other = 1; other <= 3; ++other)
        setTip(m_command1(FirstOtherCalendar + other - 1),
               Text(CalendarNames(differenceOf(m_calendar).otherCalendars(other))));
    m_command2.SetTexts(m_calendar);
    setTip(m_grid, Text(StringTexts(YearGridText)));
}

void frmYearCal::SetCloseTip(const QString& tip) {
    ChangeCals::SetTip(m_command1(CloseCommand), tip, m_calendar);
}

void frmYearCal::ShowYear() {
    YearCals::ShowYear(*this, m_calendar);
}

void frmYearCal::ShowMoonPhase(int phase) {
    m_command2.BringToFront(phase);
    setTabOrder(m_command1(TodayCommand), m_command2.Front());
    setTabOrder(m_command2.Front(), m_command1(FirstOtherCalendar));
}

void frmYearCal::Form_Unload() {
    YearCals::CloseYearWindow(*this, m_calendar);
}

void frmYearCal::resizeEvent(QResizeEvent* event) {
    YearWindow::resizeEvent(event);
    Form_Resize();
}

void frmYearCal::changeEvent(QEvent* event) {
    YearWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange)
        Form_Resize();
}

void frmYearCal::Combo1_GotFocus() {
    if (!Updating && m_combo1->ListCount() == 1)
        YearCals::FillYearList(*this, m_calendar);
}

// Measured against the chosen day, so that no earlier text can go stale.
void frmYearCal::Combo1_Click() {
    const int year = m_combo1->ListIndex() + differenceOf(m_calendar).firstYear;
    if (Updating || m_combo1->ListCount() < 2 || year == CurDate(m_calendar, Year))
        return;
    CurDate(m_calendar, Year) = year;
    CurrentWindow = m_calendar;
    ChangeCals::ChangeCal(m_calendar);
}

void frmYearCal::MSFlexGrid1_MouseDown(Qt::MouseButton button) {
    if (button == Qt::LeftButton)
        YearCals::PickYearCell(*this, m_calendar);
}

void frmYearCal::Command1_Click(int index) {
    if (index >= FirstOtherCalendar)
        ChangeCals::OpenYearWindow(
            differenceOf(m_calendar).otherCalendars(index - FirstOtherCalendar + 1));
    else
        YearCals::StepYear(*this, m_calendar, index);
}

void frmYearCal::Command1_MouseDown(int index, Qt::MouseButton button) {
    if (index == CloseCommand && button == Qt::RightButton)
        ChangeCals::ExitProgram();
}

// Only the Jewish year changes its width.
void frmYearCal::Form_Resize() {
    if (m_calendar == Jewish)
        YearCals::FitJewishWindow(*this);
}

void frmYearCal::createControls() {
    for (const int index : commandOrder) {
        if (index != moonPlace)
            m_command1(index) = new CommandButton(QStringLiteral("Command1_%1").arg(index),
                                                  commandPicture(m_calendar, index), this);
    }
    m_grid->SetFontPixelSize(digitPixels);
}

void frmYearCal::placeControls() {
    const int height = ToPixels(controlsHeight);
    const int comboHeight = m_combo1->sizeHint().height();
    m_combo1->setGeometry(selectorLeft, (height - comboHeight) / 2, selectorWidth, comboHeight);
    int left = selectorLeft + selectorWidth + 4;
    const int top = (height - CommandButton::side) / 2;
    QWidget* before = m_combo1;
    for (const int index : commandOrder) {
        QWidget* control = index == moonPlace ? m_command2.Front() : m_command1(index);
        if (index == moonPlace)
            m_command2.Move(left, top);
        else
            control->move(left, top);
        setTabOrder(before, control);
        before = control;
        left += buttonStep;
    }
    setTabOrder(before, m_grid);
    m_grid->move(frame, height - frame);
}

void frmYearCal::connectControls() {
    connect(m_combo1, &ComboBox::GotFocus, this, &frmYearCal::Combo1_GotFocus);
    connect(m_combo1, &ComboBox::BeforeUse, this, &frmYearCal::Combo1_GotFocus);
    connect(m_combo1, &ComboBox::Click, this, &frmYearCal::Combo1_Click);
    connect(m_grid, &MSFlexGrid::MouseDown, this, &frmYearCal::MSFlexGrid1_MouseDown);
    connect(m_grid, &MSFlexGrid::DblClick, this, &YearCals::ShowMonthlyWindow);
    for (int index = 1; index <= yearCommands; ++index) {
        CommandButton* button = m_command1(index);
        connect(button, &CommandButton::clicked, this, [this, index] { Command1_Click(index); });
        connect(button, &CommandButton::MouseDown, this,
                [this, index](Qt::MouseButton pressed) { Command1_MouseDown(index, pressed); });
    }
}
