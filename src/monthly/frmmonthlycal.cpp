// SPDX-License-Identifier: MIT
#include "monthly/frmmonthlycal.h"

#include "changecals/closing.h"
#include "changecals/windowpositions.h"
#include "controls/dayinwords.h"
#include "controls/emblems.h"
#include "controls/tips.h"
#include "monthly/juliandayfield.h"
#include "monthly/monthgrid.h"
#include "monthly/pane.h"
#include "monthly/panecalendars.h"
#include "monthly/weekdayandmoon.h"
#include "platform/commandbutton.h"
#include "platform/image.h"
#include "platform/line.h"
#include "platform/text.h"
#include "settings/usersettings.h"
#include "shared/mainwindows.h"
#include "shared/settings.h"
#include "shared/texts.h"

#include <QEvent>
#include <QShortcut>
#include <algorithm>

namespace {

// In pixels.
constexpr int margin = 20;
constexpr int emblemTop = 10;
constexpr int emblemSide = 32;
constexpr int gap = 6;
constexpr int commandAreaHeight = 56;
const Table<int, paneCount> PaneLeft{20, 176, 332, 488};

constexpr int closeButton = frmMonthlyCal::commandCount;

// Of Command1, by its index.
const Table<Command, frmMonthlyCal::commandCount> commands{
    Command::YearCalendars, Command::Today, Command::Options, Command::About, Command::Close};

} // namespace

frmMonthlyCal::frmMonthlyCal()
    : MonthlyWindow(QStringLiteral("frmMonthlyCal")),
      m_commands(
          *this, MonthlyWindowNumber,
          [this] {
              m_common->JulianDay()->Leave();
              ChangeCals::CloseWindow(*this);
          },
          [this] { ChangeCals::Print(Paper::Month, calendarToPrint()); }) {
    for (int c = 1; c <= calendarCount; ++c)
        m_image1(c) = new Image(QStringLiteral("Image1_%1").arg(c), Emblems(c), this);
    for (int pane = 1; pane <= paneCount; ++pane) {
        m_panes(pane) = new Pane(pane, this);
        connect(m_panes(pane), &Pane::CalendarChosen, this, &frmMonthlyCal::exchangeCalendars);
    }
    Pane::ShareLetterSizes(m_panes);
    m_line1 = new Line(QStringLiteral("Line1"), this);
    m_common = new WeekdayAndMoon(this);
    createCommands();
    m_common->JulianDay()->SetLeavingControl(m_command1(closeButton));
    addPaneKeys();
    m_panes(1)->Grid().setFocus();
    SetTexts();
    ChangeCals::PlaceForm(*this, MonthlyWindowNumber);
}

void frmMonthlyCal::SetTexts() {
    SetCaption(Text(CalendarNames(monthlyCalendarsName)));
    for (int pane = 1; pane <= paneCount; ++pane)
        m_panes(pane)->SetTexts();
    m_common->SetTexts();
    place();
    for (int index = 1; index <= commandCount; ++index)
        Controls::SetTip(m_command1(index), Commands::TextOf(commands(index)));
}

void frmMonthlyCal::SetCloseTip(int text) {
    Controls::SetTip(m_command1(closeButton), text);
}

// In the calendar of the first pane that shows the day.
QString frmMonthlyCal::Answer() const {
    QString day;
    for (int pane = 1; pane <= paneCount && day.isEmpty(); ++pane)
        day = SpokenChosenDay(CalendarOrder(pane));
    return day;
}

void frmMonthlyCal::SetCal(int pane) {
    m_panes(pane)->SetCal();
}

void frmMonthlyCal::SetGrid(int pane) {
    m_panes(pane)->Grid().Fill();
}

void frmMonthlyCal::SetCommonInfo() {
    m_common->Fill();
}

void frmMonthlyCal::ReSetForm() {
    placeEmblems();
    Refill();
}

void frmMonthlyCal::Form_Unload() {
    m_common->JulianDay()->Leave();
    ChangeCals::AfterWindowClosed();
}

void frmMonthlyCal::changeEvent(QEvent* event) {
    MonthlyWindow::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        place();
}

// That of the pane with the focus, else of the first pane, as far as they show the
// chosen day.
int frmMonthlyCal::calendarToPrint() const {
    int first = 0;
    for (int pane = paneCount; pane >= 1; --pane) {
        if (m_panes(pane)->ShowsDay())
            first = CalendarOrder(pane);
        if (m_panes(pane)->ShowsDay() && m_panes(pane)->HasFocus())
            return CalendarOrder(pane);
    }
    return first;
}

void frmMonthlyCal::createCommands() {
    for (int index = 1; index <= commandCount; ++index) {
        const Command command = commands(index);
        auto* button = new CommandButton(QStringLiteral("Command1_%1").arg(index),
                                         Commands::PictureOf(command), this);
        m_command1(index) = button;
        connect(button, &CommandButton::clicked, this,
                [this, command] { m_commands.Run(command); });
        if (command == Command::Close)
            connect(button, &CommandButton::MouseDown, this, &ChangeCals::MouseDownOnClose);
    }
}

void frmMonthlyCal::place() {
    int bottom = 0;
    for (int pane = 1; pane <= paneCount; ++pane)
        bottom = m_panes(pane)->Place(PaneLeft(pane), emblemTop + emblemSide + gap);
    const int right = PaneLeft(paneCount) + Pane::width;
    m_line1->setGeometry(margin, bottom + gap, right - margin, 2 * gap);
    bottom = placeCommon(bottom + 3 * gap, right - margin);
    SetSize({right + margin, bottom});
}

// The commands stand beside what the calendars have in common where `width` has
// room for both, else below. Returns the lower edge.
int frmMonthlyCal::placeCommon(int top, int width) {
    const int rowHeight = std::max(commandAreaHeight, m_common->Height() + 4 * gap);
    const int middle = top + rowHeight / 2;
    m_common->Place(margin, middle, width);
    const int side = m_common->Height();
    const int commandsWidth = commandCount * (side + gap) - gap;
    const bool fits = m_common->Width() + margin + commandsWidth <= width;
    const int commandsMiddle = fits ? middle : middle + rowHeight / 2 + side / 2;
    placeCommands(margin + width - commandsWidth, commandsMiddle, side);
    return commandsMiddle + rowHeight / 2;
}

void frmMonthlyCal::placeCommands(int left, int middle, int side) {
    for (int index = 1; index <= commandCount; ++index) {
        m_command1(index)->SetSide(side);
        m_command1(index)->move(left, middle - side / 2);
        left += side + gap;
    }
}

// Each calendar's emblem stands above the last pane that shows the calendar.
void frmMonthlyCal::placeEmblems() {
    for (int c = 1; c <= calendarCount; ++c)
        m_image1(c)->hide();
    for (int pane = 1; pane <= paneCount; ++pane) {
        if (!IsCalendar(CalendarOrder(pane)))
            continue;
        Image* emblem = m_image1(CalendarOrder(pane));
        emblem->setGeometry(PaneLeft(pane), emblemTop, emblemSide, emblemSide);
        emblem->show();
    }
}

void frmMonthlyCal::addPaneKeys() {
    const auto add = [this](QKeyCombination key, int step) {
        auto* shortcut = new QShortcut(key, this);
        connect(shortcut, &QShortcut::activated, this, [this, step] { goToPane(step); });
    };
    add(Qt::Key_F6, +1);
    add(Qt::SHIFT | Qt::Key_F6, -1);
}

// What the calendars have in common comes after the last pane and before the first.
void frmMonthlyCal::goToPane(int step) {
    int place = 0;
    for (int pane = 1; pane <= paneCount; ++pane) {
        if (m_panes(pane)->HasFocus())
            place = pane;
    }
    place = (place + step + paneCount + 1) % (paneCount + 1);
    if (place == 0)
        m_common->TakeFocus();
    else
        m_panes(place)->TakeFocus();
}

void frmMonthlyCal::exchangeCalendars(int pane, int c) {
    const int other = ExchangeCalendars(pane, c);
    placeEmblems();
    for (const int changed : {pane, other}) {
        if (changed == 0)
            continue;
        m_panes(changed)->SetTexts();
        RefillPane(changed);
    }
    SaveSettings(
        SettingGroup::PaneCalendars); // last: a message that it failed stands over a whole window
}
