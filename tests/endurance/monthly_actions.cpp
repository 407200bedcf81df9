// SPDX-License-Identifier: MIT
#include "endurance/monthly_actions.h"

#include "changecals/windows.h"
#include "endurance/controls.h" // IWYU pragma: keep (used in a template)
#include "endurance/expected.h"
#include "endurance/layout.h"
#include "platform/combobox.h"
#include "platform/flexgrid.h"
#include "support/platform_test.h"

#include <QApplication>
#include <algorithm>

void MonthlyActions::Play() {
    const int what = m_hand.Below(100);
    if (what < 45)
        useGrid();
    else if (what < 85)
        useList();
    else if (what < 97)
        useJulianDay();
    else
        m_hand.PressMoon(*ChangeCals::LoadedWindow(MonthlyWindowNumber));
}

template <typename Widget>
Widget& MonthlyActions::control(const QString& name) {
    return m_hand.controls.Of<Widget>(MonthlyWindowNumber, name);
}

ComboBox& MonthlyActions::list(int kind, int pane) {
    return control<ComboBox>(QStringLiteral("Combo%1_%2").arg(kind).arg(pane));
}

MSFlexGrid& MonthlyActions::grid(int pane) {
    return control<MSFlexGrid>(QStringLiteral("MSFlexGrid1_%1").arg(pane));
}

void MonthlyActions::useGrid() {
    const int pane = 1 + m_hand.Below(paneCount);
    const int what = m_hand.Below(20);
    if (!m_expected.Shows(m_expected.order(pane)))
        return useChooser(pane);
    if (what < 9)
        pressCell(pane);
    else if (what < 14)
        moveAndPress(pane);
    else if (what < 17)
        page(pane);
    else if (what < 19)
        goToEnd(pane);
    else
        openYear(pane);
}

void MonthlyActions::pressCell(int pane) {
    const GridPlace cell = m_hand.AnyCell(grid(pane));
    const int c = m_expected.order(pane);
    const auto day = Layout::DayInMonth(m_expected, c, cell);
    static constexpr Qt::MouseButton buttons[] = {Qt::LeftButton, Qt::LeftButton, Qt::RightButton};
    m_hand.Say("press in pane ", pane, " at ", cell.row, ", ", cell.column);
    Hand::PressCell(grid(pane), cell, m_hand.AnyOf(buttons));
    m_expected.day = day.value_or(m_expected.day);
}

void MonthlyActions::moveAndPress(int pane) {
    MSFlexGrid& days = grid(pane);
    const int c = m_expected.order(pane);
    m_hand.Say("arrows in pane ", pane);
    m_hand.MoveAbout(days);
    // A press of the mouse may have left the current cell on a blank.
    const auto day = Layout::DayInMonth(m_expected, c, {days.Row(), days.Col()});
    m_hand.PressByKey(days);
    m_expected.day = day.value_or(m_expected.day);
}

void MonthlyActions::page(int pane) {
    const int by = m_hand.OneIn(2) ? -1 : 1;
    const bool byYear = m_hand.OneIn(3);
    const int c = m_expected.order(pane);
    m_hand.Say("page in pane ", pane, " by ", by, byYear ? " year" : " month");
    Hand::Key(grid(pane), by < 0 ? Qt::Key_PageUp : Qt::Key_PageDown,
              byYear ? Qt::ShiftModifier : Qt::NoModifier);
    const YearAndDay in = m_expected.In(c);
    Reckoning::Date to = in.date;
    (byYear ? to.year : to.month) += by;
    if (to.month < 1)
        to = {to.day, m_expected.Rules().MonthsIn(c, to.year - 1), to.year - 1};
    else if (!byYear && to.month > in.months)
        to = {to.day, 1, to.year + 1};
    if (to.year >= Reckoning::FirstYear(c) && to.year <= Reckoning::LastYear(c))
        m_expected.Choose(c, to);
}

void MonthlyActions::goToEnd(int pane) {
    const bool first = m_hand.OneIn(2);
    const int c = m_expected.order(pane);
    m_hand.Say(first ? "first" : "last", " day in pane ", pane);
    Hand::Key(grid(pane), first ? Qt::Key_Home : Qt::Key_End);
    const Reckoning::Date date = m_expected.In(c).date;
    m_expected.Choose(c, {first ? 1 : 31, date.month, date.year});
}

void MonthlyActions::openYear(int pane) {
    MSFlexGrid& days = grid(pane);
    const int c = m_expected.order(pane);
    m_hand.Say("double click in pane ", pane);
    if (m_hand.OneIn(2)) {
        Hand::Key(days, Qt::Key_Return, Qt::ControlModifier);
    } else {
        const auto day = Layout::DayInMonth(m_expected, c, {3, 3});
        Hand::PressCell(days, {3, 3}, Qt::LeftButton);
        QTest::mouseDClick(days.viewport(), Qt::LeftButton);
        m_expected.day = day.value_or(m_expected.day);
    }
    m_expected.Show(c);
}

void MonthlyActions::useList() {
    const int pane = 1 + m_hand.Below(paneCount);
    const int kind = 1 + m_hand.Below(12);
    if (kind == 6 || kind == 8)
        useWeekdays();
    else if (kind == 7 || kind == 9)
        useMoonAges();
    else if (kind == 1 || !m_expected.Shows(m_expected.order(pane)))
        useChooser(pane);
    else if (kind == 2)
        useYears(pane);
    else if (kind == 3 || kind == 10)
        useMonths(pane);
    else if (kind == 4 || kind == 11)
        useDays(pane);
    else
        useWeeks(pane);
}

void MonthlyActions::useChooser(int pane) {
    m_hand.Use({list(1, pane), calendarCount, m_expected.order(pane) - 1,
                [this, pane](int position) { m_expected.Exchange(pane, position + 1); }});
}

void MonthlyActions::useYears(int pane) {
    const int c = m_expected.order(pane);
    const int first = Reckoning::FirstYear(c);
    const Reckoning::Date date = m_expected.In(c).date;
    m_hand.Use({list(2, pane), Reckoning::LastYear(c) - first + 1, date.year - first,
                [this, c, date, first](int position) {
                    m_expected.Choose(c, {date.day, date.month, first + position});
                },
                first});
}

void MonthlyActions::useMonths(int pane) {
    const int c = m_expected.order(pane);
    const YearAndDay in = m_expected.In(c);
    m_hand.Use({list(3, pane), in.months, in.date.month - 1,
                [this, c, in](int position) {
                    m_expected.Choose(c, {in.date.day, position + 1, in.date.year});
                },
                1});
}

void MonthlyActions::useDays(int pane) {
    const YearAndDay in = m_expected.In(m_expected.order(pane));
    m_hand.Use({list(4, pane), in.days, in.dayNumber - 1,
                [this, in](int position) { m_expected.day = in.firstDay + position; }, 1});
}

void MonthlyActions::useWeeks(int pane) {
    const int c = m_expected.order(pane);
    const YearAndDay in = m_expected.In(c);
    m_hand.Use({list(5, pane), in.weeks, in.week - 1,
                [this, c, in](int position) {
                    m_expected.MoveWithinYear(c, 7 * (position + 1 - in.week));
                },
                1});
}

void MonthlyActions::useWeekdays() {
    const int chosen = Reckoning::WeekdayOf(m_expected.day) - 1;
    m_hand.Use({control<ComboBox>(QStringLiteral("Combo6")), daysInWeek, chosen,
                [this, chosen](int position) { m_expected.MoveBy(position - chosen); }});
}

// The days of the lunation, as far as its mean length goes.
void MonthlyActions::useMoonAges() {
    const double age = Reckoning::MoonAge(m_expected.day);
    const int chosen = static_cast<int>(age);
    const int last = static_cast<int>(Reckoning::lunation - (age - chosen));
    m_hand.Use({control<ComboBox>(QStringLiteral("Combo7")), last + 1, chosen,
                [this, chosen](int position) { m_expected.MoveBy(position - chosen); }});
}

void MonthlyActions::useJulianDay() {
    const int what = m_hand.Below(12);
    control<ComboBox>(QStringLiteral("Combo8")).setFocus();
    if (what == 0)
        typeJulianDayOutside();
    else if (what == 1)
        typeLetters();
    else
        typeJulianDay();
}

void MonthlyActions::typeJulianDay() {
    // Besides any day, those near which a calendar begins or ends.
    static constexpr int ends[] = {1721319, 1721424, 1948439, 2817152, 2817345, 2817404};
    const int range = Reckoning::highestDay - Reckoning::lowestDay + 1;
    const int any = Reckoning::lowestDay + m_hand.Below(range);
    const int near = m_expected.day - 20 + m_hand.Below(41);
    const int atEnd = m_hand.AnyOf(ends) - 10 + m_hand.Below(21);
    const int asked = m_hand.OneIn(6) ? atEnd : m_hand.OneIn(4) ? any : near;
    const int day = std::clamp(asked, Reckoning::lowestDay, Reckoning::highestDay);
    auto& field = control<ComboBox>(QStringLiteral("Combo8"));
    m_hand.Say("Julian Day ", day);
    Hand::Key(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&field, QString::number(day));
    Hand::Key(field, m_hand.OneIn(3) ? Qt::Key_Tab : Qt::Key_Return);
    m_expected.day = day;
}

// The warning is answered, then Escape takes the number back.
void MonthlyActions::typeJulianDayOutside() {
    auto& field = control<ComboBox>(QStringLiteral("Combo8"));
    const int day = m_hand.OneIn(2) ? Reckoning::lowestDay - 1 - m_hand.Below(1000)
                                    : Reckoning::highestDay + 1 + m_hand.Below(1000);
    m_hand.Say("Julian Day outside, ", day);
    Hand::Key(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&field, QString::number(day));
    Hand::Key(field, Qt::Key_Return);
    QStringList told;
    EXPECT_TRUE(waitUntil([this, &told] {
        told += m_hand.messages.take();
        return !told.isEmpty() && QApplication::activeModalWidget() == nullptr;
    }));
    EXPECT_TRUE(told.join(u'\n').contains(QStringLiteral("1721319 \u2014 2817404")));
    Hand::Key(field, Qt::Key_Escape);
}

// Refused with a beep, and what was accepted stays.
void MonthlyActions::typeLetters() {
    auto& field = control<ComboBox>(QStringLiteral("Combo8"));
    m_hand.Say("letters for a Julian Day");
    QTest::keyClicks(&field, QStringLiteral("a.,"));
    Hand::Key(field, Qt::Key_Return);
}
