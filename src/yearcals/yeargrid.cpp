// SPDX-License-Identifier: MIT
#include "yearcals/yeargrid.h"

#include "calc/calc.h"
#include "calc/state.h"
#include "platform/pointer.h"
#include "platform/text.h"
#include "shared/colors.h"
#include "shared/texts.h"

namespace {

// Months stand in bands of three, each band a title row above seven weekday rows. In
// a Jewish leap year the second band has a fourth month, Adar II, behind the third,
// and the months after it stand one place earlier than their number says.
constexpr int bands = 4;
constexpr int titleRows = 1;
constexpr int bandRows = titleRows + daysInWeek;
constexpr int monthsInBand = 3;
constexpr int adarTwo = 7;
constexpr int adarTwoBand = 1; // counted from 0

// Week columns without and with the fourth month of a band, which begins at
// adarTwoColumn. Column 0 holds the weekdays' names.
constexpr int commonColumns = monthsInBand * DayGrid::monthColumns;
constexpr int leapColumns = commonColumns + DayGrid::monthColumns;
constexpr int adarTwoColumn = 1 + commonColumns;

constexpr Twips weekdayColumnWidth{345};
constexpr Twips weekColumnWidth{300};
constexpr Twips weekdayRowHeight{195};
constexpr Twips titleRowHeight{360};

constexpr int digitPixels = 10;

int columnsOf(int c) {
    return 1 + (c == Jewish ? leapColumns : commonColumns);
}

bool hasAdarTwo(int c) {
    return c == Jewish && JewishLeap;
}

// Beyond the cells a little more room, a little less in a leap year.
Twips gridWidth(int weekColumns) {
    const Twips slack{weekColumns == leapColumns ? 30 : 60};
    return weekdayColumnWidth + weekColumns * weekColumnWidth + slack;
}

Twips gridHeight() {
    const Twips band = titleRowHeight + daysInWeek * weekdayRowHeight;
    constexpr Twips slack{90};
    return bands * band + slack;
}

} // namespace

YearGrid::YearGrid(int c, QWidget* parent)
    : DayGrid(QStringLiteral("MSFlexGrid1"), bands, titleRows, columnsOf(c), YearWindowNumber(c),
              parent) {
    connect(this, &MSFlexGrid::MouseDown, this, &YearGrid::PickYearCell);
    InitYearGrid(c);
}

void YearGrid::ShowYear() {
    if (m_shownFirstJD <= CurJD && CurJD <= m_shownLastJD)
        MarkChosenDay();
    else
        BuildYearGrid();
}

void YearGrid::ForgetYear() {
    m_shownFirstJD = m_shownLastJD = 0;
}

int YearGrid::NarrowestWidth() {
    return ToPixels(gridWidth(commonColumns));
}

QSize YearGrid::LargestSize(int c) {
    return {ToPixels(gridWidth(columnsOf(c) - 1)), ToPixels(gridHeight())};
}

void YearGrid::PickYearCell(Qt::MouseButton button) {
    if (button == Qt::LeftButton)
        ChoosePressedDay();
}

void YearGrid::fitYear() {
    const bool wide = hasAdarTwo(Calendar());
    for (int column = adarTwoColumn; column < Cols(); ++column)
        SetColHidden(column, !wide);
    const QSize former = size();
    SetSize(gridWidth(wide ? leapColumns : commonColumns), gridHeight());
    if (size() != former)
        Q_EMIT Fitted();
}

GridPlace YearGrid::CornerOf(int month) const {
    const bool isLeap = hasAdarTwo(Calendar());
    const int place = month - 1 - (isLeap && month >= adarTwo ? 1 : 0);
    const int extra = isLeap && month == adarTwo ? monthColumns : 0;
    return {place / monthsInBand * bandRows + titleRows,
            extra + place % monthsInBand * monthColumns + 1};
}

int YearGrid::MonthOf(GridPlace cell) const {
    const int band = cell.row / bandRows;
    const int month = (cell.column - 1) / monthColumns + band * monthsInBand + 1;
    return hasAdarTwo(Calendar()) && band > adarTwoBand ? month + 1 : month;
}

int YearGrid::LastMonth() const {
    return Calc::MonthsInYear(Calendar());
}

// Once: sizes, merged title rows, colours.
void YearGrid::InitYearGrid(int c) {
    SetFontPixelSize(digitPixels);
    SetColWidth(0, weekdayColumnWidth);
    for (int column = 1; column < Cols(); ++column)
        SetColWidth(column, weekColumnWidth);
    for (int row = 0; row < Rows(); ++row)
        SetRowHeight(row, row % bandRows == 0 ? titleRowHeight : weekdayRowHeight);
    for (int row = 0; row < Rows(); row += bandRows)
        SetMergeRow(row);
    SetCalendar(c);
    SetSize(gridWidth(commonColumns), gridHeight());
}

// Refills the grid for the chosen year.
void YearGrid::BuildYearGrid() {
    const PointerShape hourglass(Qt::WaitCursor);
    const DrawingOff drawingOff(*this);
    m_shownFirstJD = YearJD(Calendar(), FirstDay);
    m_shownLastJD = YearJD(Calendar(), LastDay);
    FillWeekdays();
    for (int month = 1; month <= LastMonth(); ++month) {
        setTitle(month);
        FillMonth(month);
    }
    if (!JewishLeap)
        blankAdarTwo();
    MarkChosenDay();
    if (Calendar() == Jewish)
        fitYear();
}

void YearGrid::setTitle(int month) {
    const GridPlace corner = CornerOf(month);
    const QString title =
        QStringLiteral("(%1)  ").arg(month) + AmidNumbers(Text(MonthNames(Calendar(), month)));
    for (int column = corner.column; column < corner.column + monthColumns; ++column) {
        SetTextMatrix(corner.row - 1, column, title);
        SetRow(corner.row - 1);
        SetCol(column);
        SetCellFontBold(true);
        SetCellForeColor(TextColors(TitleText));
    }
}

// Only the Jewish grid has the columns.
void YearGrid::blankAdarTwo() {
    const int top = adarTwoBand * bandRows;
    for (int row = top; row < top + bandRows; ++row) {
        for (int column = adarTwoColumn; column < Cols(); ++column)
            SetTextMatrix(row, column, QString());
    }
}
