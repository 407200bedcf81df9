// SPDX-License-Identifier: MIT
#include "monthly/monthgrid.h"

#include "calc/calc.h"
#include "calc/state.h"
#include "changecals/changecals.h"
#include "changecals/controltexts.h"
#include "changecals/opening.h"
#include "platform/numbers.h"
#include "platform/text.h"
#include "shared/flags.h"
#include "shared/look.h"
#include "shared/settings.h"
#include "shared/texts.h"

namespace {

constexpr int rows = 7;
constexpr int columns = 7;
constexpr int columnWidth = 255;    // twips
constexpr int firstRowHeight = 345; // twips
constexpr int rowHeight = 300;      // twips
constexpr int digitPixels = 11;
constexpr int noCalendarColor = 0xFFFFFF;

void step(int& row, int& column) {
    if (++row == rows) {
        row = 0;
        ++column;
    }
}

} // namespace

MonthGrid::MonthGrid(int pane, QWidget* parent)
    : m_pane(pane),
      m_grid(new MSFlexGrid(QStringLiteral("MSFlexGrid1_%1").arg(pane), rows, columns, parent)) {
    m_grid->SetFontPixelSize(digitPixels);
    m_grid->SetSelectedColor(CalendarColors(ChosenDayBackground));
    for (int column = 0; column < columns; ++column)
        m_grid->SetColWidth(column, columnWidth);
    m_grid->SetRowHeight(0, firstRowHeight);
    for (int row = 1; row < rows; ++row)
        m_grid->SetRowHeight(row, rowHeight);
    m_grid->SetSize(m_grid->ColWidth(0) * 7 + 30,
                    m_grid->RowHeight(0) + 6 * (m_grid->RowHeight(1) + 5));
    recolor();
    m_grid->SetAccessibleText([this](int row, int column) { return accessibleText(row, column); });
    connect(m_grid, &MSFlexGrid::MouseDown, this, &MonthGrid::MSFlexGrid1_MouseDown);
    connect(m_grid, &MSFlexGrid::DblClick, this, &MonthGrid::MSFlexGrid1_DblClick);
}

void MonthGrid::Fill() {
    Updating = true;
    m_grid->SetRedraw(false);
    if (m_shownCalendar != calendar())
        recolor();
    if (isCalendar(calendar())) {
        fillWeekdays();
        fillDays();
    }
    m_grid->SetRedraw(true);
    m_grid->Refresh();
    Updating = false;
}

// Any mouse button, on the cell that the press has made current.
void MonthGrid::MSFlexGrid1_MouseDown() {
    const int column = m_grid->Col();
    const int row = m_grid->Row();
    const QString text = m_grid->TextMatrix(row, column);
    if (column == 0 || text.isEmpty())
        return;
    if (m_grid->CellBackColor() == CalendarColors(ChosenDayBackground))
        return;
    const int c = calendar();
    Q_EMIT DayPicked();
    SourcePane = m_pane;
    m_grid->SetRedraw(false);
    moveMark(row, column);
    m_grid->SetRedraw(true);
    m_grid->Refresh();
    CurDate(c, Day) = CLng(Val(text)).value_or(1);
    ChangeCals::ChangeCal(c);
    SourcePane = 0;
}

void MonthGrid::MSFlexGrid1_DblClick() {
    ChangeCals::OpenYearWindow(calendar());
}

int MonthGrid::calendar() const {
    return CalendarOrder(m_pane);
}

void MonthGrid::recolor() {
    m_shownCalendar = calendar();
    const int back = isCalendar(calendar()) ? CalendarColors(calendar()) : noCalendarColor;
    m_grid->SetBackColor(back);
    m_grid->SetAllCellColors(back, TextColors(OrdinaryText));
}

void MonthGrid::moveMark(int row, int column) {
    setCellLook(m_markedRow, m_markedCol, CalendarColors(calendar()), TextColors(OrdinaryText),
                false);
    setCellLook(row, column, CalendarColors(ChosenDayBackground), TextColors(ChosenDayText), true);
    m_markedRow = row;
    m_markedCol = column;
}

// Leaves the cell current.
void MonthGrid::setCellLook(int row, int column, int back, int fore, bool bold) {
    m_grid->SetRow(row);
    m_grid->SetCol(column);
    m_grid->SetCellBackColor(back);
    m_grid->SetCellForeColor(fore);
    m_grid->SetCellFontBold(bold);
}

void MonthGrid::fillWeekdays() {
    for (int row = 0; row < rows; ++row)
        m_grid->SetTextMatrix(row, 0, Text(WeekDayAbbrs(Calc::WeekdayOfRow(calendar(), row))));
}

void MonthGrid::fillDays() {
    const int c = calendar();
    const int month = CurDate(c, Month);
    int row = Calc::LeadingBlanks(c, month);
    int column = 1;
    for (int before = 0; before < row; ++before)
        m_grid->SetTextMatrix(before, column, QString());
    for (int day = 1; day <= MonthDays(c, month); ++day) {
        m_grid->SetTextMatrix(row, column, QString::number(day));
        if (day == CurDate(c, Day))
            moveMark(row, column);
        step(row, column);
    }
    blankFrom(row, column);
}

void MonthGrid::blankFrom(int row, int column) {
    while (column < columns) {
        m_grid->SetTextMatrix(row, column, QString());
        step(row, column);
    }
}

QString MonthGrid::accessibleText(int row, int column) const {
    const int c = calendar();
    const int weekday = Calc::WeekdayOfRow(c, row);
    if (column == 0)
        return Text(WeekDayNames(weekday));
    const QString day = m_grid->TextMatrix(row, column);
    return day.isEmpty() ? day : ChangeCals::SpokenDate(c, weekday, day, CurDate(c, Month));
}
