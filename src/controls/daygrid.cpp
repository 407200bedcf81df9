// SPDX-License-Identifier: MIT
#include "controls/daygrid.h"

#include "calc/calc.h"
#include "calc/state.h"
#include "changecals/changecals.h"
#include "controls/dayinwords.h"
#include "platform/text.h"
#include "shared/colors.h"
#include "shared/texts.h"

#include <QKeyEvent>

namespace {

constexpr int noCalendarColor = 0xFFFFFF;

int backgroundOf(int c) {
    return IsCalendar(c) ? CalendarColors(c) : noCalendarColor;
}

} // namespace

DayGrid::DayGrid(const QString& name, int bands, int titleRows, int columns,
                 MainWindowNumber window, QWidget* parent)
    : MSFlexGrid(name, bands * (titleRows + daysInWeek), columns, parent),
      m_bands{titleRows, columns},
      m_window(window) {
    SetAccessibleText([this](int row, int column) { return spokenText({row, column}); });
}

GridPlace DayGrid::CellOf(int month, int day) const {
    const GridPlace corner = CornerOf(month);
    const int place = Calc::LeadingBlanks(m_calendar, month) + day - 1;
    return {corner.row + place % daysInWeek, corner.column + place / daysInWeek};
}

int DayGrid::MonthAt(GridPlace cell) const {
    const bool canHoldDay = cell.column > 0 && m_bands.WeekRow(cell.row) >= 0;
    return canHoldDay && !TextMatrix(cell.row, cell.column).isEmpty() ? MonthOf(cell) : 0;
}

void DayGrid::SetCalendar(int c) {
    m_calendar = c;
    SetBackColor(backgroundOf(c));
    SetAllCellColors(backgroundOf(c), TextColors(OrdinaryText));
    SetSelectedCell({-1, -1});
}

void DayGrid::FillWeekdays() {
    for (int row = 0; row < Rows(); ++row) {
        const int week = m_bands.WeekRow(row);
        if (week >= 0)
            SetTextMatrix(row, 0, Text(WeekDayAbbrs(Calc::WeekdayOfRow(m_calendar, week))));
    }
}

void DayGrid::FillMonth(int month) {
    const GridPlace corner = CornerOf(month);
    const int lead = Calc::LeadingBlanks(m_calendar, month);
    for (int place = 0; place < monthColumns * daysInWeek; ++place) {
        const int day = place - lead + 1;
        const bool inMonth = day >= 1 && day <= MonthDays(m_calendar, month);
        SetTextMatrix(corner.row + place % daysInWeek, corner.column + place / daysInWeek,
                      inMonth ? QString::number(day) : QString());
    }
}

void DayGrid::MarkChosenDay() {
    const DrawingOff drawingOff(*this);
    const GridPlace chosen = CellOf(CurDate(m_calendar, Month), CurDate(m_calendar, Day));
    setLook(SelectedCell(), backgroundOf(m_calendar), TextColors(OrdinaryText), false);
    setLook(chosen, CalendarColors(ChosenDayBackground), TextColors(ChosenDayText), true);
    SetSelectedCell(chosen);
}

void DayGrid::ChoosePressedDay() {
    const GridPlace cell{Row(), Col()};
    const int month = MonthAt(cell);
    if (month != 0 && cell != SelectedCell())
        chooseDay(month, TextMatrix(cell.row, cell.column).toInt());
}

void DayGrid::keyPressEvent(QKeyEvent* event) {
    if (event->key() >= Qt::Key_Left && event->key() <= Qt::Key_Down)
        moveOn(event->key());
    else if (event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown)
        Q_EMIT Paged(event->key() == Qt::Key_PageUp ? -1 : 1,
                     event->modifiers().testFlag(Qt::ShiftModifier));
    else if (event->key() == Qt::Key_Home)
        chooseEnd(FirstMonth(), 1);
    else if (event->key() == Qt::Key_End)
        chooseEnd(LastMonth(), MonthDays(m_calendar, LastMonth()));
    else
        MSFlexGrid::keyPressEvent(event);
}

// Leaves the cell current.
void DayGrid::setLook(GridPlace cell, int back, int fore, bool bold) {
    SetRow(cell.row);
    SetCol(cell.column);
    SetCellBackColor(back);
    SetCellForeColor(fore);
    SetCellFontBold(bold);
}

// To the next day, over blanks, titles and names; where there is none the current
// cell stays.
void DayGrid::moveOn(int arrowKey) {
    GridPlace cell = NextBy(arrowKey, {Row(), Col()}, m_bands);
    while (Contains(cell) && MonthAt(cell) == 0)
        cell = NextBy(arrowKey, cell, m_bands);
    if (Contains(cell))
        MoveTo(cell);
}

void DayGrid::chooseDay(int month, int day) {
    ChangeCals::ChooseDate(m_calendar, {day, month, CurDate(m_calendar, Year)}, m_window);
}

void DayGrid::chooseEnd(int month, int day) {
    if (CellOf(month, day) == SelectedCell())
        MoveTo(SelectedCell());
    else
        chooseDay(month, day);
}

QString DayGrid::spokenText(GridPlace cell) const {
    const int month = MonthAt(cell);
    if (month == 0)
        return {};
    const int weekday = Calc::WeekdayOfRow(m_calendar, m_bands.WeekRow(cell.row));
    return SpokenDay(m_calendar, weekday, TextMatrix(cell.row, cell.column), month,
                     cell == SelectedCell());
}
