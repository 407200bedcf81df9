// SPDX-License-Identifier: MIT
#include "monthly/pane.h"

#include "calc/calc.h"
#include "calc/state.h"
#include "changecals/changecals.h"
#include "changecals/controltexts.h"
#include "platform/numbers.h"
#include "platform/pointer.h"
#include "platform/text.h"
#include "platform/twips.h"
#include "shared/flags.h"
#include "shared/look.h"
#include "shared/settings.h"
#include "shared/texts.h"

#include <QStringList>
#include <algorithm>

namespace {

constexpr int gap = 4; // pixels between controls

QString fraction(int number, int of) {
    return QStringLiteral("%1/%2").arg(number).arg(of);
}

// The entry of a number in each of the lists.
QString yearEntry(int, int year) {
    return QString::number(year);
}

QString monthEntry(int c, int month) {
    return fraction(month, Calc::MonthsInYear(c)) + QStringLiteral("  ") +
           Text(MonthNames(c, month));
}

QString dayEntry(int c, int day) {
    return fraction(day, YearDays(c, DaysInYear));
}

QString weekEntry(int c, int week) {
    return fraction(week, YearDays(c, WeeksInYear));
}

using Entry = QString (*)(int c, int number);

// Fills a list that holds less than two entries with those of first..last and
// selects the entry of `chosen`; a number outside the list leaves it as it is.
void fillOnUse(ComboBox* list, int c, Entry entry, int first, int last, int chosen) {
    if (list->ListCount() > 1 || chosen < first || chosen > last)
        return;
    const HourglassPointer hourglass;
    QStringList entries;
    entries.reserve(last - first + 1);
    for (int number = first; number <= last; ++number)
        entries.append(entry(c, number));
    Updating = true;
    list->SetItems(entries, chosen - first);
    Updating = false;
}

ComboBox* newCombo(int kind, int pane, QWidget* parent) {
    return new ComboBox(QStringLiteral("Combo%1_%2").arg(kind).arg(pane), parent);
}

} // namespace

Pane::Pane(int pane, QWidget* parent)
    : QObject(parent),
      m_pane(pane),
      m_combo1(newCombo(1, pane, parent)),
      m_combo2(newCombo(2, pane, parent)),
      m_combo3(newCombo(3, pane, parent)),
      m_grid(pane, parent),
      m_combo4(newCombo(4, pane, parent)),
      m_combo5(newCombo(5, pane, parent)) {
    fillWhenUsed(m_combo2, [this] {
        const int c = calendar();
        fillOnUse(m_combo2, c, yearEntry, MinYear(c), MaxYear(c), CurDate(c, Year));
    });
    fillWhenUsed(m_combo3, [this] {
        const int c = calendar();
        fillOnUse(m_combo3, c, monthEntry, 1, Calc::MonthsInYear(c), CurDate(c, Month));
    });
    fillWhenUsed(m_combo4, [this] {
        const int c = calendar();
        fillOnUse(m_combo4, c, dayEntry, 1, YearDays(c, DaysInYear), CurDate(c, DayNumber));
    });
    fillWhenUsed(m_combo5, [this] {
        const int c = calendar();
        fillOnUse(m_combo5, c, weekEntry, 1, YearDays(c, WeeksInYear), CurDate(c, WeekNumber));
    });
    connect(m_combo1, &ComboBox::Click, this, &Pane::Combo1_Click);
    connect(m_combo2, &ComboBox::Click, this, &Pane::Combo2_Click);
    connect(m_combo3, &ComboBox::Click, this, &Pane::Combo3_Click);
    connect(m_combo4, &ComboBox::Click, this, &Pane::Combo4_Click);
    connect(m_combo5, &ComboBox::Click, this, &Pane::Combo5_Click);
}

int Pane::Place(int top) {
    const int left = ToPixels(PaneLeft(m_pane));
    const int height = m_combo1->sizeHint().height();
    const auto placeNext = [&](ComboBox* combo) {
        combo->setGeometry(left, top, width, height);
        top += height + gap;
    };
    placeNext(m_combo1);
    placeNext(m_combo2);
    placeNext(m_combo3);
    MSFlexGrid* grid = m_grid.Control();
    grid->move(left + (width - grid->width()) / 2, top + gap);
    top += grid->height() + 3 * gap;
    placeNext(m_combo4);
    placeNext(m_combo5);
    return top - gap;
}

void Pane::Reset() {
    m_combo1->Clear();
    for (const int c : {Julian, Gregorian, Jewish, Moslem})
        m_combo1->AddItem(Text(CalendarNames(c)));
    selectCalendar();
    m_combo3->Clear();
}

void Pane::SetCal() {
    Updating = true;
    selectCalendar();
    if (isCalendar(calendar()))
        showOnlyChosenDay();
    setAvailable();
}

void Pane::SetTexts() {
    const auto setTip = [this](QWidget* control, int text) {
        ChangeCals::SetTip(control, Text(StringTexts(text)), calendar());
    };
    setTip(m_combo1, CalendarText);
    setTip(m_combo2, YearText);
    setTip(m_combo3, MonthText);
    setTip(m_grid.Control(), MonthGridText);
    setTip(m_combo4, DayOfYearText);
    setTip(m_combo5, WeekOfYearText);
}

void Pane::Combo1_Click() {
    const int chosen = m_combo1->ListIndex() + 1;
    if (!Updating && chosen != calendar())
        Q_EMIT CalendarChosen(m_pane, chosen);
}

void Pane::Combo2_Click() {
    const int c = calendar();
    const int year = m_combo2->ListIndex() + MinYear(c);
    if (Updating || m_combo2->ListCount() < 2 || year == CurDate(c, Year))
        return;
    CurDate(c, Year) = year;
    ChangeCals::ChangeCal(c);
}

void Pane::Combo3_Click() {
    const int c = calendar();
    const int month = m_combo3->ListIndex() + 1;
    if (Updating || m_combo3->ListCount() < 2 || month == CurDate(c, Month))
        return;
    CurDate(c, Month) = month;
    ChangeCals::ChangeCal(c);
}

void Pane::Combo4_Click() {
    const double days = Val(m_combo4->Text()) - CurDate(calendar(), DayNumber);
    if (Updating || days == 0)
        return;
    CurJD = CLng(days + CurJD).value_or(CurJD);
    ChangeCals::ChangeJD();
}

void Pane::Combo5_Click() {
    const int c = calendar();
    const double weeks = Val(m_combo5->Text()) - CurDate(c, WeekNumber);
    if (Updating || weeks == 0)
        return;
    const int sameWeekday = CLng(weeks * daysInWeek + CurJD).value_or(CurJD);
    CurJD = std::clamp(sameWeekday, YearJD(c, FirstDay), YearJD(c, LastDay));
    ChangeCals::ChangeJD();
}

// A list may get the focus in the middle of a refill, when the control before it
// is hidden; it is then filled later, when it is used.
void Pane::fillWhenUsed(ComboBox* list, const std::function<void()>& fill) {
    const auto fillNow = [this, fill] {
        if (!Updating && isCalendar(calendar()))
            fill();
    };
    connect(list, &ComboBox::GotFocus, this, fillNow);
    connect(list, &ComboBox::BeforeUse, this, fillNow);
}

int Pane::calendar() const {
    return CalendarOrder(m_pane);
}

void Pane::selectCalendar() {
    m_combo1->SetListIndex(isCalendar(calendar()) ? calendar() - 1 : -1);
}

void Pane::showOnlyChosenDay() {
    const int c = calendar();
    m_combo2->SetOnlyItem(yearEntry(c, CurDate(c, Year)));
    m_combo3->SetOnlyItem(monthEntry(c, CurDate(c, Month)));
    m_combo4->SetOnlyItem(dayEntry(c, CurDate(c, DayNumber)));
    m_combo5->SetOnlyItem(weekEntry(c, CurDate(c, WeekNumber)));
}

// The chooser always stays, as the way to another calendar.
void Pane::setAvailable() {
    const int c = calendar();
    const bool visible = isCalendar(c) && !Calc::IsBeforeRange(c);
    const bool enabled = visible && !Calc::IsAfterRange(c);
    const std::initializer_list<QWidget*> controls{m_combo2, m_combo3, m_grid.Control(), m_combo4,
                                                   m_combo5};
    for (QWidget* control : controls) {
        control->setVisible(visible);
        control->setEnabled(enabled);
    }
}
