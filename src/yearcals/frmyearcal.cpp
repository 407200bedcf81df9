// SPDX-License-Identifier: MIT
#include "yearcals/frmyearcal.h"

#include "calc/range.h"
#include "calc/state.h"
#include "changecals/changecals.h"
#include "changecals/closing.h"
#include "changecals/opening.h"
#include "changecals/windowpositions.h"
#include "controls/dayinwords.h"
#include "controls/emblems.h"
#include "controls/tips.h"
#include "controls/yearlist.h"
#include "platform/combobox.h"
#include "platform/commandbutton.h"
#include "platform/text.h"
#include "platform/twips.h"
#include "shared/texts.h"
#include "yearcals/yeargrid.h"

#include <QEvent>

namespace {

// In pixels.
constexpr int controlsHeight = ToPixels({780});
constexpr int margin = 4;
constexpr int frame = 1;    // beside the grid
constexpr int leastGap = 2; // between groups

constexpr int buttonsInRow = 10; // Command1 and the moon
constexpr int groups = 4;

QSize around(const QSize& grid) {
    return grid + QSize(2 * frame, controlsHeight);
}

QString nameOf(int c) {
    static const Table<QString, calendarCount> names{
        QStringLiteral("frmJulian"), QStringLiteral("frmGregorian"), QStringLiteral("frmJewish"),
        QStringLiteral("frmMoslem")};
    return names(c);
}

} // namespace

frmYearCal::frmYearCal(int c)
    : YearWindow(nameOf(c)),
      m_calendar(c),
      m_commands(
          *this, YearWindowNumber(c), [this] { ChangeCals::CloseWindow(*this); },
          [c] { ChangeCals::Print(Paper::Year, c); }),
      m_combo1(new ComboBox(QStringLiteral("Combo1"), this)),
      m_command2(this),
      m_grid(new YearGrid(c, this)) {
    createControls();
    placeControls();
    Form_Resize();
    m_grid->setFocus(); // the days, not a list that would be filled at once
    SetTexts();
    ChangeCals::PlaceForm(*this, YearWindowNumber(c));
}

QSize frmYearCal::LargestSize(int c) {
    return around(YearGrid::LargestSize(c));
}

void frmYearCal::SetTexts() {
    SetCaption(Text(CalendarNames(m_calendar)));
    const auto setTip = [this](QWidget* control, int text) {
        Controls::SetTip(control, text, m_calendar);
    };
    setTip(m_combo1, YearText);
    setTip(m_command1(PreviousYear), PreviousYearText);
    setTip(m_command1(NextYear), NextYearText);
    for (int index = TodayButton; index <= CloseButton; ++index)
        setTip(m_command1(index), Commands::TextOf(commandOf(index)));
    for (int index = FirstOtherCalendar; index <= buttonCount; ++index)
        Controls::SetTip(m_command1(index), Text(CalendarNames(otherCalendar(index))), m_calendar);
    m_command2.SetTexts(m_calendar);
    setTip(m_grid, YearGridText);
}

void frmYearCal::SetCloseTip(int text) {
    Controls::SetTip(m_command1(CloseButton), text, m_calendar);
}

QString frmYearCal::Answer() const {
    return SpokenChosenDay(m_calendar);
}

void frmYearCal::ShowYear() {
    YearCals::ShowYear(arranged(), m_calendar);
}

void frmYearCal::ForgetYear() {
    m_grid->ForgetYear();
}

void frmYearCal::Form_Unload() {
    ChangeCals::AfterWindowClosed();
}

void frmYearCal::resizeEvent(QResizeEvent* event) {
    YearWindow::resizeEvent(event);
    Form_Resize();
}

void frmYearCal::changeEvent(QEvent* event) {
    YearWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange)
        Form_Resize();
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        placeControls();
}

void frmYearCal::Combo1_Click() {
    Controls::ChooseYearOf(*m_combo1, m_calendar, YearWindowNumber(m_calendar));
}

void frmYearCal::Command1_Click(int index) {
    if (index == PreviousYear)
        StepYear(-1);
    else if (index == NextYear)
        StepYear(+1);
    else if (index >= FirstOtherCalendar)
        ChangeCals::OpenYearWindow(otherCalendar(index));
    else
        m_commands.Run(commandOf(index));
}

void frmYearCal::Command1_MouseDown(int index, Qt::MouseButton button) {
    if (index == CloseButton)
        ChangeCals::MouseDownOnClose(button);
}

// What a Jewish year asked for while the window was minimised it gets afterwards.
void frmYearCal::Form_Resize() {
    if (WindowState() == Normal)
        SetSize(around(m_grid->size()));
}

// Each way has its own end, so that a year beyond the last one has a way back.
void frmYearCal::StepYear(int by) {
    const auto [day, month, shown] = ChosenDate(m_calendar);
    const int year = shown + by;
    if (by < 0 ? year >= MinYear(m_calendar) : year <= MaxYear(m_calendar))
        ChangeCals::ChooseDate(m_calendar, {day, month, year}, YearWindowNumber(m_calendar));
}

void frmYearCal::createControls() {
    m_combo1->SetFiller([c = m_calendar] { return Controls::YearEntries(c); });
    m_combo1->SetOrigin([] { return CurJD; });
    connect(m_combo1, &ComboBox::Click, this, &frmYearCal::Combo1_Click);
    connect(m_grid, &MSFlexGrid::DblClick, this, &ChangeCals::ShowMonthlyWindow);
    connect(m_grid, &DayGrid::Paged, this, &frmYearCal::StepYear);
    connect(m_grid, &YearGrid::Fitted, this, &frmYearCal::Form_Resize);
    for (int index = 1; index <= buttonCount; ++index) {
        auto* button =
            new CommandButton(QStringLiteral("Command1_%1").arg(index), pictureOf(index), this);
        m_command1(index) = button;
        connect(button, &CommandButton::clicked, this, [this, index] { Command1_Click(index); });
        connect(button, &CommandButton::MouseDown, this,
                [this, index](Qt::MouseButton pressed) { Command1_MouseDown(index, pressed); });
    }
}

// The row of controls above the grid, in the order in which Tab goes through it:
// the year, its steps, the moon and the other calendars, the program. The groups
// share what room the narrowest year leaves.
void frmYearCal::placeControls() {
    const int room =
        YearGrid::NarrowestWidth() + 2 * frame - 2 * margin - buttonsInRow * CommandButton::side;
    const int selectorWidth =
        m_combo1->FitWidth(QString::number(MaxYear(m_calendar)), room - (groups - 1) * leastGap);
    const int comboHeight = m_combo1->sizeHint().height();
    m_combo1->setGeometry(margin, (controlsHeight - comboHeight) / 2, selectorWidth, comboHeight);
    const int gap = (room - selectorWidth) / (groups - 1);
    int left = margin + selectorWidth;
    QWidget* before = m_combo1;
    const int top = (controlsHeight - CommandButton::side) / 2;
    const auto placeNext = [&](QWidget* control) {
        control->move(left, top);
        setTabOrder(before, control);
        before = control;
        left += CommandButton::side;
    };
    const auto placeGroup = [&](int first, int last) {
        for (int index = first; index <= last; ++index)
            placeNext(m_command1(index));
    };
    left += gap;
    placeGroup(PreviousYear, TodayButton);
    left += gap;
    m_command2.Place(left, top, CommandButton::side);
    placeNext(m_command2.Front());
    placeGroup(FirstOtherCalendar, buttonCount);
    left += gap;
    placeGroup(OptionsButton, CloseButton);
    m_grid->move(frame, controlsHeight - frame);
}

// The commands that both kinds of calendar window have.
Command frmYearCal::commandOf(int index) {
    constexpr Command commands[] = {Command::Today, Command::Options, Command::About,
                                    Command::Close};
    return commands[index - TodayButton];
}

QString frmYearCal::pictureOf(int index) const {
    if (index < TodayButton)
        return index == PreviousYear ? QStringLiteral("buttons/previous")
                                     : QStringLiteral("buttons/next");
    return index < FirstOtherCalendar ? Commands::PictureOf(commandOf(index))
                                      : Emblems(otherCalendar(index));
}

// The calendars but this window's, in their order.
int frmYearCal::otherCalendar(int index) const {
    const int place = index - FirstOtherCalendar + 1;
    return place < m_calendar ? place : place + 1;
}

YearCals::YearControls frmYearCal::arranged() {
    return {*m_grid,
            *m_combo1,
            *m_command1(PreviousYear),
            *m_command1(NextYear),
            m_command2,
            *m_command1(FirstOtherCalendar)};
}
