// SPDX-License-Identifier: MIT
#include "monthly/frmmonthlycal.h"

#include "changecals/changecals.h"
#include "changecals/closing.h"
#include "changecals/controltexts.h"
#include "changecals/opening.h"
#include "changecals/placing.h"
#include "changecals/saving.h"
#include "platform/settingsstore.h"
#include "platform/text.h"
#include "platform/twips.h"
#include "shared/flags.h"
#include "shared/look.h"
#include "shared/settings.h"
#include "shared/texts.h"

#include <QEvent>
#include <QFrame>
#include <algorithm>

namespace {

// In pixels.
constexpr int margin = 20;
constexpr int emblemTop = 10;
constexpr int emblemSide = 32;
constexpr int gap = 6;
constexpr int commandAreaHeight = 56;

} // namespace

frmMonthlyCal::frmMonthlyCal() : MonthlyWindow(QStringLiteral("frmMonthlyCal")) {
    const Table<QString, calendarCount> emblems{QStringLiteral("julian"),
                                                QStringLiteral("gregorian"),
                                                QStringLiteral("jewish"), QStringLiteral("moslem")};
    for (int c = 1; c <= calendarCount; ++c)
        m_image1(c) = new Image(QStringLiteral("Image1_%1").arg(c),
                                QStringLiteral("emblems/") + emblems(c), this);
    for (int pane = 1; pane <= 4; ++pane) {
        m_panes(pane) = new Pane(pane, this);
        connect(m_panes(pane), &Pane::CalendarChosen, this, &frmMonthlyCal::exchangeCalendars);
        connect(&m_panes(pane)->Grid(), &MonthGrid::DayPicked, this,
                [this] { m_dayPicked = true; });
    }
    m_line1 = new QFrame(this);
    m_line1->setObjectName(QStringLiteral("Line1"));
    m_line1->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    m_common = new CommonInfo(this);
    createCommands();
    m_common->JulianDay()->SetLeavingControl(m_command1(Close));
    place();
    m_panes(1)->Grid().Control()->setFocus();
    SetTexts();
    ChangeCals::PlaceForm(*this, MonthlyWindowNumber);
}

void frmMonthlyCal::SetTexts() {
    SetCaption(Text(CalendarNames(monthlyCalendarsName)));
    for (int pane = 1; pane <= 4; ++pane)
        m_panes(pane)->SetTexts();
    m_common->SetTexts();
    const Table<int, 5> tips{YearCalendarsText, TodayText, OptionsText, AboutText, ExitText};
    for (int index = 1; index <= 5; ++index)
        ChangeCals::SetTip(m_command1(index), Text(StringTexts(tips(index))));
}

void frmMonthlyCal::SetCloseTip(const QString& tip) {
    ChangeCals::SetTip(m_command1(Close), tip);
}

void frmMonthlyCal::SetCal(int pane) {
    if (m_dayPicked) {
        m_dayPicked = false;
        m_panes(SourcePane)->Grid().Control()->setFocus();
    }
    m_panes(pane)->SetCal();
}

void frmMonthlyCal::SetGrid(int pane) {
    m_panes(pane)->Grid().Fill();
}

void frmMonthlyCal::SetCommonInfo() {
    m_common->Fill();
}

void frmMonthlyCal::ReSetForm() {
    Updating = true;
    for (int pane = 1; pane <= 4; ++pane)
        m_panes(pane)->Reset();
    placeEmblems();
    m_common->Reset();
    for (int pane = 1; pane <= 4; ++pane) {
        SetCal(pane);
        SetGrid(pane);
    }
    SetCommonInfo();
}

void frmMonthlyCal::Form_Unload() {
    ChangeCals::AfterWindowClosed();
}

void frmMonthlyCal::changeEvent(QEvent* event) {
    MonthlyWindow::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        place();
}

void frmMonthlyCal::Command1_Click(int index) {
    switch (index) {
    case YearCalendars:
        ChangeCals::OpenYearWindowsOfPanes();
        break;
    case GoToday:
        ChangeCals::GoToToday(0);
        break;
    case Options:
        ChangeCals::ShowOptions();
        break;
    case About:
        ChangeCals::ShowAbout();
        break;
    case Close:
        ChangeCals::CloseWindow(*this);
        break;
    default:
        break;
    }
}

void frmMonthlyCal::Command1_MouseDown(int index, Qt::MouseButton button) {
    if (index == Close && button == Qt::RightButton)
        ChangeCals::ExitProgram();
}

void frmMonthlyCal::createCommands() {
    const Table<QString, 5> pictures{QStringLiteral("years"), QStringLiteral("today"),
                                     QStringLiteral("options"), QStringLiteral("about"),
                                     QStringLiteral("close")};
    for (int index = 1; index <= 5; ++index) {
        auto* button = new CommandButton(QStringLiteral("Command1_%1").arg(index),
                                         QStringLiteral("buttons/") + pictures(index), this);
        m_command1(index) = button;
        connect(button, &CommandButton::clicked, this, [this, index] { Command1_Click(index); });
        connect(button, &CommandButton::MouseDown, this,
                [this, index](Qt::MouseButton pressed) { Command1_MouseDown(index, pressed); });
    }
}

void frmMonthlyCal::place() {
    int bottom = 0;
    for (int pane = 1; pane <= 4; ++pane)
        bottom = m_panes(pane)->Place(emblemTop + emblemSide + gap);
    placeEmblems();
    const int right = ToPixels(PaneLeft(4)) + Pane::width;
    m_line1->setGeometry(margin, bottom + gap, right - margin, 2 * gap);
    const int middle = bottom + 3 * gap + commandAreaHeight / 2;
    m_common->Place(margin, middle);
    placeCommands(middle);
    setFixedSize(right + margin, middle + commandAreaHeight / 2);
}

void frmMonthlyCal::placeCommands(int middle) {
    int left = ToPixels(PaneLeft(4)) + Pane::width - 5 * CommandButton::side - 4 * gap;
    for (int index = 1; index <= 5; ++index) {
        m_command1(index)->move(left, middle - CommandButton::side / 2);
        left += CommandButton::side + gap;
    }
}

// Each calendar's emblem stands above the last pane that shows the calendar.
void frmMonthlyCal::placeEmblems() {
    for (int c = 1; c <= calendarCount; ++c)
        m_image1(c)->hide();
    for (int pane = 1; pane <= 4; ++pane) {
        if (!isCalendar(CalendarOrder(pane)))
            continue;
        Image* emblem = m_image1(CalendarOrder(pane));
        emblem->setGeometry(ToPixels(PaneLeft(pane)), emblemTop, emblemSide, emblemSide);
        emblem->show();
    }
}

// The pane that shows calendar c, where there is one, takes this pane's in its
// place.
void frmMonthlyCal::exchangeCalendars(int pane, int c) {
    int other = 0;
    for (int candidate = 1; candidate <= 4 && other == 0; ++candidate)
        other = CalendarOrder(candidate) == c ? candidate : 0;
    if (other != 0)
        CalendarOrder(other) = CalendarOrder(pane);
    CalendarOrder(pane) = c;
    saveCalendarOrder();
    placeEmblems();
    refill(pane);
    if (other != 0)
        refill(other);
}

void frmMonthlyCal::saveCalendarOrder() {
    for (int pane = 1; pane <= 4; ++pane)
        SaveSetting(QStringLiteral("Startup"), QStringLiteral("Calendar%1").arg(pane),
                    QString::number(CalendarOrder(pane)));
    ChangeCals::FlushSettingsOrTell();
}

void frmMonthlyCal::refill(int pane) {
    m_panes(pane)->SetTexts();
    SetCal(pane);
    SetGrid(pane);
}
