// SPDX-License-Identifier: MIT
#include "endurance/year_actions.h"

#include "endurance/controls.h"
#include "endurance/expected.h"
#include "endurance/layout.h"
#include "platform/combobox.h"
#include "platform/flexgrid.h"

#include <QTest>

void YearActions::Play(int c) {
    // Of a year that is not shown only the buttons are left.
    const int what = m_hand.Below(m_expected.Shows(c) ? 100 : 13);
    if (what < 4)
        openOtherYear(c);
    else if (what < 6)
        m_hand.PressMoon(window(c));
    else if (what < 13)
        pressStep(c);
    else if (what < 55)
        pressCell(c);
    else if (what < 79)
        moveAndPress(c);
    else if (what < 83)
        page(c);
    else if (what < 89)
        goToEnd(c);
    else if (what < 97)
        useYears(c);
    else
        openMonthly(c);
}

MSFlexGrid& YearActions::grid(int c) {
    return m_hand.controls.Of<MSFlexGrid>(c, QStringLiteral("MSFlexGrid1"));
}

void YearActions::pressCell(int c) {
    const GridPlace cell = m_hand.AnyCell(grid(c));
    const bool right = m_hand.OneIn(10);
    m_hand.Say(right ? "right press" : "press", " in year ", c, " at ", cell.row, ", ",
               cell.column);
    const auto day = Layout::DayInYear(m_expected, c, cell);
    Hand::PressCell(grid(c), cell, right ? Qt::RightButton : Qt::LeftButton);
    if (!right)
        m_expected.day = day.value_or(m_expected.day);
}

void YearActions::moveAndPress(int c) {
    MSFlexGrid& days = grid(c);
    m_hand.Say("arrows in year ", c);
    m_hand.MoveAbout(days);
    // A press of the mouse may have left the current cell on a blank.
    const auto day = Layout::DayInYear(m_expected, c, {days.Row(), days.Col()});
    m_hand.PressByKey(days);
    m_expected.day = day.value_or(m_expected.day);
}

void YearActions::page(int c) {
    const int by = m_hand.OneIn(2) ? -1 : 1;
    m_hand.Say("page in year ", c, " by ", by);
    Hand::Key(grid(c), by < 0 ? Qt::Key_PageUp : Qt::Key_PageDown);
    step(c, by);
}

void YearActions::goToEnd(int c) {
    const bool first = m_hand.OneIn(2);
    m_hand.Say(first ? "first" : "last", " day of year ", c);
    Hand::Key(grid(c), first ? Qt::Key_Home : Qt::Key_End);
    const YearAndDay in = m_expected.In(c);
    m_expected.day = first ? in.firstDay : in.firstDay + in.days - 1;
}

void YearActions::openMonthly(int c) {
    MSFlexGrid& days = grid(c);
    m_hand.Say("double click in year ", c);
    if (m_hand.OneIn(2)) {
        Hand::Key(days, Qt::Key_Return, Qt::ControlModifier);
    } else {
        const GridPlace cell{12, 9};
        const auto day = Layout::DayInYear(m_expected, c, cell);
        Hand::PressCell(days, cell, Qt::LeftButton);
        QTest::mouseDClick(days.viewport(), Qt::LeftButton);
        m_expected.day = day.value_or(m_expected.day);
    }
    m_expected.Show(MonthlyWindowNumber);
}

void YearActions::useYears(int c) {
    const int first = Reckoning::FirstYear(c);
    const Reckoning::Date date = m_expected.In(c).date;
    auto& years = m_hand.controls.Of<ComboBox>(c, QStringLiteral("Combo1"));
    m_hand.Use({years, Reckoning::LastYear(c) - first + 1, date.year - first,
                [this, c, date, first](int position) {
                    m_expected.Choose(c, {date.day, date.month, first + position});
                },
                first});
}

// A button that is disabled takes no press.
void YearActions::pressStep(int c) {
    const bool back = m_hand.OneIn(2);
    m_hand.Press(window(c), back ? QStringLiteral("Command1_1") : QStringLiteral("Command1_2"));
    if (m_expected.Shows(c) || (back && m_expected.Rules().IsAfter(c, m_expected.day)))
        step(c, back ? -1 : 1);
}

void YearActions::openOtherYear(int c) {
    const int index = m_hand.Below(3);
    m_hand.Press(window(c), QStringLiteral("Command1_%1").arg(7 + index));
    m_expected.Show(index + 1 < c ? index + 1 : index + 2);
}

void YearActions::step(int c, int by) {
    const Reckoning::Date date = m_expected.In(c).date;
    const int year = date.year + by;
    if (by < 0 ? year >= Reckoning::FirstYear(c) : year <= Reckoning::LastYear(c))
        m_expected.Choose(c, {date.day, date.month, year});
}
