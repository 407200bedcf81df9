// SPDX-License-Identifier: MIT
#include "monthly/pane.h"

#include "calc/calc.h"
#include "calc/range.h"
#include "calc/state.h"
#include "changecals/changecals.h"
#include "controls/tips.h"
#include "controls/yearlist.h"
#include "monthly/monthgrid.h"
#include "platform/availability.h"
#include "platform/combobox.h"
#include "platform/numbers.h"
#include "platform/text.h"
#include "shared/flags.h"
#include "shared/mainwindows.h"
#include "shared/settings.h"
#include "shared/texts.h"

#include <algorithm>

namespace {

constexpr int lineGap = 4; // pixels between controls

ComboBox* newCombo(int kind, int pane, QWidget* parent) {
    return new ComboBox(QStringLiteral("Combo%1_%2").arg(kind).arg(pane), parent);
}

// Entries. The number comes first: typed digits are matched with it, and from a day or a
// week that was chosen the pane reads it back.

QString fraction(int number, int of) {
    return QStringLiteral("%1/%2").arg(number).arg(of);
}

// "2/12  February"
QString numberedMonth(int month, int of, const std::string& name) {
    return fraction(month, of) + QStringLiteral("  ") + AmidNumbers(Text(name));
}

QString monthEntry(int c, int month) {
    return numberedMonth(month, Calc::MonthsInYear(c), MonthNames(c, month));
}

QString dayEntry(int c, int day) {
    return fraction(day, YearDays(c, DaysInYear));
}

QString weekEntry(int c, int week) {
    return fraction(week, YearDays(c, WeeksInYear));
}

QStringList calendarEntries() {
    QStringList names;
    for (const int c : {Julian, Gregorian, Jewish, Moslem})
        names.append(Text(CalendarNames(c)));
    return names;
}

// Of every month that any calendar can have, in any year.
QStringList entriesOfAllMonths() {
    QStringList entries{numberedMonth(7, monthLimit, AdarName + AdarSuffixes(2))};
    for (int c = 1; c <= calendarCount; ++c) {
        for (int month = 1; month <= Calc::MonthsInYear(c); ++month)
            entries.append(monthEntry(c, month));
    }
    return entries;
}

ListEntries monthEntries(int c) {
    return NumberedEntries(1, Calc::MonthsInYear(c), CurDate(c, Month),
                           [c](int month) { return monthEntry(c, month); });
}

ListEntries dayEntries(int c) {
    return NumberedEntries(1, YearDays(c, DaysInYear), CurDate(c, DayNumber),
                           [c](int day) { return dayEntry(c, day); });
}

ListEntries weekEntries(int c) {
    return NumberedEntries(1, YearDays(c, WeeksInYear), CurDate(c, WeekNumber),
                           [c](int week) { return weekEntry(c, week); });
}

} // namespace

Pane::Pane(int pane, QWidget* parent)
    : QObject(parent),
      m_pane(pane),
      m_combo1(newCombo(1, pane, parent)),
      m_combo2(newCombo(2, pane, parent)),
      m_combo3(newCombo(3, pane, parent)),
      m_grid(new MonthGrid(pane, parent)),
      m_combo4(newCombo(4, pane, parent)),
      m_combo5(newCombo(5, pane, parent)) {
    setFillers();
    connect(m_combo1, &ComboBox::Click, this, &Pane::Combo1_Click);
    connect(m_combo2, &ComboBox::Click, this, &Pane::Combo2_Click);
    connect(m_combo3, &ComboBox::Click, this, &Pane::Combo3_Click);
    connect(m_combo4, &ComboBox::Click, this, &Pane::Combo4_Click);
    connect(m_combo5, &ComboBox::Click, this, &Pane::Combo5_Click);
}

int Pane::Place(int left, int top) {
    const auto placeNext = [&](ComboBox* combo, const QStringList& names = {}) {
        const int height = combo->HeightFor(names, width);
        combo->setGeometry(left, top, width, height);
        top += height + lineGap;
    };
    placeNext(m_combo1, calendarEntries());
    placeNext(m_combo2);
    placeNext(m_combo3, entriesOfAllMonths());
    m_grid->move(left + (width - m_grid->width()) / 2, top + lineGap);
    top += m_grid->height() + 3 * lineGap;
    placeNext(m_combo4);
    placeNext(m_combo5);
    return top - lineGap;
}

void Pane::ShareLetterSizes(const Table<Pane*, paneCount>& panes) {
    for (ComboBox* Pane::*list :
         {&Pane::m_combo1, &Pane::m_combo2, &Pane::m_combo3, &Pane::m_combo4, &Pane::m_combo5}) {
        std::vector<ComboBox*> row;
        for (int pane = 1; pane <= paneCount; ++pane)
            row.push_back(panes(pane)->*list);
        ComboBox::ShareLetterSize(row);
    }
}

void Pane::SetCal() {
    const UpdatingGuard updating;
    m_combo1->SetItems(calendarEntries(), calendar() - 1); // none for a number that is no calendar
    if (IsCalendar(calendar()))
        showOnlyChosenDay();
    setAvailable();
}

bool Pane::ShowsDay() const {
    const int c = calendar();
    return IsCalendar(c) && !Calc::IsBeforeRange(c) && !Calc::IsAfterRange(c);
}

bool Pane::HasFocus() const {
    const QWidget* focus = m_grid->window()->focusWidget();
    const QWidget* const controls[] = {m_combo1, m_combo2, m_combo3, m_grid, m_combo4, m_combo5};
    return std::ranges::find(controls, focus) != std::end(controls);
}

void Pane::TakeFocus() {
    QWidget* focusNext = ShowsDay() ? static_cast<QWidget*>(m_grid) : m_combo1;
    focusNext->setFocus(Qt::ShortcutFocusReason);
}

void Pane::SetTexts() {
    const auto setTip = [this](QWidget* control, int text) {
        Controls::SetTip(control, text, calendar());
    };
    setTip(m_combo1, CalendarText);
    setTip(m_combo2, YearText);
    setTip(m_combo3, MonthText);
    setTip(m_grid, MonthGridText);
    setTip(m_combo4, DayOfYearText);
    setTip(m_combo5, WeekOfYearText);
}

void Pane::Combo1_Click() {
    const int chosen = m_combo1->ListIndex() + 1;
    if (!Updating && chosen != calendar())
        Q_EMIT CalendarChosen(m_pane, chosen);
}

void Pane::Combo2_Click() {
    Controls::ChooseYearOf(*m_combo2, calendar(), MonthlyWindowNumber);
}

void Pane::Combo3_Click() {
    const int c = calendar();
    const int month = m_combo3->ListIndex() + 1;
    if (Updating || m_combo3->ListCount() < 2 || month == CurDate(c, Month))
        return;
    // The only number that begins another is that of the first month, which cuts no day.
    ChangeCals::ChooseDate(c, {CurDate(c, Day), month, CurDate(c, Year)}, MonthlyWindowNumber);
}

void Pane::Combo4_Click() {
    const double days = Val(m_combo4->Text()) - CurDate(calendar(), DayNumber);
    if (!Updating && days != 0)
        ChangeCals::ChooseJulianDay(CLng(days + CurJD).value_or(CurJD), MonthlyWindowNumber);
}

void Pane::Combo5_Click() {
    const int c = calendar();
    const double week = Val(m_combo5->Text());
    if (Updating || week == CurDate(c, WeekNumber))
        return;
    ChangeCals::DeriveDay(m_combo5->Origin());
    const double weeks = week - CurDate(c, WeekNumber);
    const int sameWeekday = CLng(weeks * daysInWeek + CurJD).value_or(CurJD);
    ChangeCals::ChooseJulianDay(std::clamp(sameWeekday, YearJD(c, FirstDay), YearJD(c, LastDay)),
                                MonthlyWindowNumber);
}

void Pane::setFillers() {
    const auto fill = [this](ComboBox* list, ListEntries (*entries)(int c)) {
        list->SetFiller([this, entries] {
            return IsCalendar(calendar()) ? entries(calendar()) : ListEntries();
        });
        list->SetOrigin([] { return CurJD; });
    };
    fill(m_combo2, Controls::YearEntries);
    fill(m_combo3, monthEntries);
    fill(m_combo4, dayEntries);
    fill(m_combo5, weekEntries);
}

int Pane::calendar() const {
    return CalendarOrder(m_pane);
}

void Pane::showOnlyChosenDay() {
    const int c = calendar();
    m_combo2->SetOnlyItem(QString::number(CurDate(c, Year)));
    m_combo3->SetOnlyItem(monthEntry(c, CurDate(c, Month)));
    m_combo4->SetOnlyItem(dayEntry(c, CurDate(c, DayNumber)));
    m_combo5->SetOnlyItem(weekEntry(c, CurDate(c, WeekNumber)));
}

// The chooser always stays, as the way to another calendar.
void Pane::setAvailable() {
    const int c = calendar();
    const bool visible = IsCalendar(c) && !Calc::IsBeforeRange(c);
    const bool enabled = ShowsDay();
    SetAvailable(*m_grid, visible, enabled, *m_combo1);
    QWidget& focusNext = enabled ? static_cast<QWidget&>(*m_grid) : *m_combo1;
    for (ComboBox* list : {m_combo2, m_combo3, m_combo4, m_combo5})
        SetAvailable(*list, visible, enabled, focusNext);
}
