// SPDX-License-Identifier: MIT
#include "monthly/monthgrid.h"

#include "calc/calc.h"
#include "calc/range.h"
#include "calc/state.h"
#include "changecals/changecals.h"
#include "changecals/opening.h"
#include "shared/flags.h"
#include "shared/mainwindows.h"
#include "shared/settings.h"

namespace {

constexpr int columns = 1 + DayGrid::monthColumns;
constexpr Twips weekWidth{255};
constexpr Twips firstRowHeight{345};
constexpr Twips otherRowHeight{300};
constexpr int digitPixels = 11;

// The tables do not hold the year before. Of a Jewish one 13 is asked for: where it has
// 12 months, the arithmetic takes the twelfth.
Date inNeighbour(int c, int direction) {
    const auto [day, month, year] = ChosenDate(c);
    const int last = c == Jewish ? 13 : 12;
    const int neighbour = month + direction;
    if (neighbour < 1)
        return {day, last, year - 1};
    if (neighbour > Calc::MonthsInYear(c))
        return {day, 1, year + 1};
    return {day, neighbour, year};
}

} // namespace

MonthGrid::MonthGrid(int pane, QWidget* parent)
    : DayGrid(QStringLiteral("MSFlexGrid1_%1").arg(pane), 1, 0, columns, MonthlyWindowNumber,
              parent),
      m_pane(pane) {
    SetFontPixelSize(digitPixels);
    for (int column = 0; column < columns; ++column)
        SetColWidth(column, weekWidth);
    SetRowHeight(0, firstRowHeight);
    for (int row = 1; row < daysInWeek; ++row)
        SetRowHeight(row, otherRowHeight);
    const Twips outline{30}; // on both sides
    SetSize(columns * weekWidth + outline, firstRowHeight + 6 * otherRowHeight + outline);
    connect(this, &MSFlexGrid::MouseDown, this, &MonthGrid::ChoosePressedDay); // of any button
    connect(this, &MSFlexGrid::DblClick, this, &MonthGrid::MSFlexGrid1_DblClick);
    connect(this, &DayGrid::Paged, this, &MonthGrid::page);
}

void MonthGrid::Fill() {
    const UpdatingGuard updating;
    const DrawingOff drawingOff(*this);
    if (Calendar() != CalendarOrder(m_pane))
        SetCalendar(CalendarOrder(m_pane));
    if (!IsCalendar(Calendar()))
        return;
    FillWeekdays();
    FillMonth(CurDate(Calendar(), Month));
    MarkChosenDay();
}

GridPlace MonthGrid::CornerOf(int) const {
    return {0, 1};
}

int MonthGrid::MonthOf(GridPlace) const {
    return CurDate(Calendar(), Month);
}

void MonthGrid::MSFlexGrid1_DblClick() {
    ChangeCals::OpenYearWindow(Calendar());
}

// To the month or year before or after, as far as the calendar goes.
void MonthGrid::page(int direction, bool byYear) {
    const int c = Calendar();
    const auto [day, month, year] = ChosenDate(c);
    const Date to = byYear ? Date{day, month, year + direction} : inNeighbour(c, direction);
    if (to.year >= MinYear(c) && to.year <= MaxYear(c))
        ChangeCals::ChooseDate(c, to, MonthlyWindowNumber);
}
