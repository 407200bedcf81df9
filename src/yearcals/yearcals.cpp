// SPDX-License-Identifier: MIT
#include "yearcals/yearcals.h"

#include "calc/calc.h"
#include "calc/state.h"
#include "changecals/changecals.h"
#include "changecals/closing.h"
#include "changecals/controltexts.h"
#include "platform/numbers.h"
#include "platform/pointer.h"
#include "platform/text.h"
#include "platform/twips.h"
#include "shared/flags.h"
#include "shared/look.h"
#include "shared/settings.h"
#include "shared/texts.h"
#include "yearcals/yearlayout.h"
#include "yearcals/yearwindow.h"

namespace {

using YearLayout::bandRows;
using YearLayout::monthColumns;
using YearLayout::rows;

// In twips.
constexpr int weekdayColumnWidth = 345;
constexpr int weekColumnWidth = 300;
constexpr int weekdayRowHeight = 195;
constexpr int titleRowHeight = 360;

constexpr int commonColumns = 18;
constexpr int leapColumns = 24;

/// First and last Julian Day of the year that a calendar's grid is filled with,
/// both 0 when it holds none.
Table<int, calendarCount> ShownFirstJD;
Table<int, calendarCount> ShownLastJD;

/// The marked cell of each calendar's grid.
Table<int, calendarCount> YearCellRow;
Table<int, calendarCount> YearCellCol;

void mark(MSFlexGrid& grid, int row, int column) {
    grid.SetRow(row);
    grid.SetCol(column);
    grid.SetCellBackColor(CalendarColors(ChosenDayBackground));
    grid.SetCellForeColor(TextColors(ChosenDayText));
    grid.SetCellFontBold(true);
}

void unmarkOld(MSFlexGrid& grid, int c) {
    grid.SetRow(YearCellRow(c));
    grid.SetCol(YearCellCol(c));
    grid.SetCellBackColor(CalendarColors(c));
    grid.SetCellForeColor(TextColors(OrdinaryText));
    grid.SetCellFontBold(false);
}

void moveMark(MSFlexGrid& grid, int c, YearLayout::Cell to) {
    grid.SetRedraw(false);
    unmarkOld(grid, c);
    mark(grid, to.row, to.column);
    grid.SetRedraw(true);
    grid.Refresh();
    YearCellRow(c) = to.row;
    YearCellCol(c) = to.column;
}

bool isSelectable(int c) {
    return CurDate(c, Year) >= MinYear(c) && CurDate(c, Year) <= MaxYear(c);
}

// Selects the chosen year in a full list, else makes it the only entry. A year
// that the list has no place for is shown alone in any case.
void showYearInSelector(ComboBox& selector, int c) {
    const int position = CurDate(c, Year) - MinYear(c);
    if (selector.ListCount() <= 1 || !isSelectable(c))
        selector.SetOnlyItem(QString::number(CurDate(c, Year)));
    else if (selector.ListIndex() != position)
        selector.SetListIndex(position);
}

void hideYear(frmYearCal& form) {
    form.Grid().setVisible(false);
    form.Combo1().Clear();
    form.Combo1().setEnabled(false);
    form.Command1(PreviousYear).setEnabled(false);
    form.Command1(NextYear).setEnabled(false);
}

void setAvailable(frmYearCal& form, int c) {
    const bool inRange = !Calc::IsAfterRange(c);
    form.Grid().setVisible(true);
    form.Grid().setEnabled(inRange);
    form.Combo1().setEnabled(inRange);
    form.Command1(PreviousYear).setEnabled(CurDate(c, Year) != MinYear(c));
    form.Command1(NextYear).setEnabled(inRange && CurDate(c, Year) != MaxYear(c));
}

void setTitle(MSFlexGrid& grid, int c, int month) {
    const YearLayout::Cell block = YearLayout::BlockOf(c, month);
    const QString title = QStringLiteral("(%1)  ").arg(month) + Text(MonthNames(c, month));
    for (int column = block.column; column < block.column + monthColumns; ++column) {
        grid.SetTextMatrix(block.row - 1, column, title);
        grid.SetRow(block.row - 1);
        grid.SetCol(column);
        grid.SetCellFontBold(true);
        grid.SetCellForeColor(TextColors(TitleText));
    }
}

void fillMonth(MSFlexGrid& grid, int c, int month) {
    setTitle(grid, c, month);
    const YearLayout::Cell block = YearLayout::BlockOf(c, month);
    const int lead = Calc::LeadingBlanks(c, month);
    for (int place = 0; place < monthColumns * daysInWeek; ++place) {
        const int day = place - lead + 1;
        const bool inMonth = day >= 1 && day <= MonthDays(c, month);
        const int row = block.row + place % daysInWeek;
        const int column = block.column + place / daysInWeek;
        grid.SetTextMatrix(row, column, inMonth ? QString::number(day) : QString());
    }
}

void blankAdarTwo(MSFlexGrid& grid) {
    for (int row = bandRows; row < 2 * bandRows; ++row) {
        for (int column = YearLayout::adarTwoColumn; column < grid.Cols(); ++column)
            grid.SetTextMatrix(row, column, QString());
    }
}

void fillWeekdays(MSFlexGrid& grid, int c) {
    for (int row = 0; row < rows; ++row) {
        if (row % bandRows == 0)
            continue;
        const int weekday = Calc::WeekdayOfRow(c, row % bandRows - 1);
        grid.SetTextMatrix(row, 0, Text(WeekDayAbbrs(weekday)));
    }
}

void markChosenDay(MSFlexGrid& grid, int c) {
    const YearLayout::Cell cell = YearLayout::CellOf(c, CurDate(c, Month), CurDate(c, Day));
    mark(grid, cell.row, cell.column);
    YearCellRow(c) = cell.row;
    YearCellCol(c) = cell.column;
}

int gridWidth(int columns) {
    const int slack = columns == leapColumns ? 30 : 60;
    return weekdayColumnWidth + columns * weekColumnWidth + slack;
}

int gridHeight() {
    return 4 * titleRowHeight + 28 * weekdayRowHeight + 90;
}

void fitWindow(frmYearCal& form, int columns) {
    MSFlexGrid& grid = form.Grid();
    grid.SetSize(gridWidth(columns), gridHeight());
    if (form.WindowState() == Form::Normal)
        form.SetSize(gridWidth(columns) + 30, gridHeight() + frmYearCal::controlsHeight);
}

QString accessibleText(MSFlexGrid& grid, int c, YearLayout::Cell cell) {
    QString text = grid.TextMatrix(cell.row, cell.column);
    if (text.isEmpty() || !YearLayout::IsDayCell(cell))
        return text;
    const int weekday = Calc::WeekdayOfRow(c, cell.row % bandRows - 1);
    return ChangeCals::SpokenDate(c, weekday, text, YearLayout::MonthOf(c, cell));
}

void changeYear(frmYearCal& form, int c, int by) {
    const int year = CurDate(c, Year) + by;
    if (year < MinYear(c) || year > MaxYear(c))
        return;
    CurDate(c, Year) = year;
    showYearInSelector(form.Combo1(), c);
    CurrentWindow = c;
    ChangeCals::ChangeCal(c);
}

} // namespace

void YearCals::InitYearGrid(frmYearCal& form, int c) {
    MSFlexGrid& grid = form.Grid();
    grid.SetColWidth(0, weekdayColumnWidth);
    for (int column = 1; column < grid.Cols(); ++column)
        grid.SetColWidth(column, weekColumnWidth);
    for (int row = 0; row < rows; ++row)
        grid.SetRowHeight(row, weekdayRowHeight);
    for (int row = 0; row < rows; row += bandRows) {
        grid.SetMergeRow(row);
        grid.SetRowHeight(row, titleRowHeight);
    }
    grid.SetBackColor(CalendarColors(c));
    grid.SetAllCellColors(CalendarColors(c), TextColors(OrdinaryText));
    grid.SetSelectedColor(CalendarColors(ChosenDayBackground));
    grid.SetAccessibleText([&grid, c](int row, int column) {
        return accessibleText(grid, c, {row, column});
    });
    fitWindow(form, commonColumns);
}

void YearCals::ShowYear(frmYearCal& form, int c) {
    Updating = true;
    form.ShowMoonPhase(MoonPhase);
    if (Calc::IsBeforeRange(c)) {
        hideYear(form);
        Updating = false;
        return;
    }
    setAvailable(form, c);
    if (form.Combo1().ListIndex() == -1 || !isSelectable(c))
        form.Combo1().SetOnlyItem(QString::number(CurDate(c, Year)));
    if (ShownFirstJD(c) <= CurJD && CurJD <= ShownLastJD(c)) {
        const YearLayout::Cell cell = YearLayout::CellOf(c, CurDate(c, Month), CurDate(c, Day));
        if (cell != YearLayout::Cell{YearCellRow(c), YearCellCol(c)})
            moveMark(form.Grid(), c, cell);
    } else {
        BuildYearGrid(form, c);
    }
    Updating = false;
}

void YearCals::BuildYearGrid(frmYearCal& form, int c) {
    const HourglassPointer hourglass;
    MSFlexGrid& grid = form.Grid();
    grid.SetRedraw(false);
    showYearInSelector(form.Combo1(), c);
    ShownFirstJD(c) = YearJD(c, FirstDay);
    ShownLastJD(c) = YearJD(c, LastDay);
    unmarkOld(grid, c);
    fillWeekdays(grid, c);
    for (int month = 1; month <= Calc::MonthsInYear(c); ++month)
        fillMonth(grid, c, month);
    if (c == Jewish && !JewishLeap)
        blankAdarTwo(grid);
    markChosenDay(grid, c);
    if (c == Jewish)
        FitJewishWindow(form);
    grid.SetRedraw(true);
    grid.Refresh();
}

void YearCals::PickYearCell(frmYearCal& form, int c) {
    MSFlexGrid& grid = form.Grid();
    const YearLayout::Cell cell{grid.Row(), grid.Col()};
    const QString text = grid.TextMatrix(cell.row, cell.column);
    if (!YearLayout::IsDayCell(cell) || text.isEmpty() ||
        grid.CellBackColor() == CalendarColors(ChosenDayBackground))
        return;
    Updating = true;
    CurDate(c, Day) = CLng(Val(text)).value_or(1);
    CurDate(c, Month) = YearLayout::MonthOf(c, cell);
    moveMark(grid, c, cell);
    CurrentWindow = c;
    ChangeCals::ChangeCal(c);
    Updating = false;
}

void YearCals::FillYearList(frmYearCal& form, int c) {
    if (!isSelectable(c))
        return;
    const HourglassPointer hourglass;
    QStringList years;
    years.reserve(MaxYear(c) - MinYear(c) + 1);
    for (int year = MinYear(c); year <= MaxYear(c); ++year)
        years.append(QString::number(year));
    Updating = true;
    form.Combo1().SetItems(years, CurDate(c, Year) - MinYear(c));
    Updating = false;
}

void YearCals::StepYear(frmYearCal& form, int c, int index) {
    Updating = true;
    switch (index) {
    case PreviousYear:
        changeYear(form, c, -1);
        break;
    case NextYear:
        changeYear(form, c, +1);
        break;
    case TodayCommand:
        ChangeCals::GoToToday(c);
        break;
    case OptionsCommand:
        ChangeCals::ShowOptions();
        break;
    case AboutCommand:
        ChangeCals::ShowAbout();
        break;
    case CloseCommand:
        ChangeCals::CloseWindow(form);
        break;
    default:
        break;
    }
    Updating = false;
}

void YearCals::CloseYearWindow(frmYearCal& form, int c) {
    ShownFirstJD(c) = 0;
    ShownLastJD(c) = 0;
    form.Hide();
    ChangeCals::AfterWindowClosed();
}

void YearCals::FitJewishWindow(frmYearCal& form) {
    for (int column = YearLayout::adarTwoColumn; column < form.Grid().Cols(); ++column)
        form.Grid().SetColHidden(column, !JewishLeap);
    fitWindow(form, JewishLeap ? leapColumns : commonColumns);
}

void YearCals::ForgetShownYears() {
    ShownFirstJD = {};
    ShownLastJD = {};
}
