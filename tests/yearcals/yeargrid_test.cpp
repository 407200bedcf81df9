// SPDX-License-Identifier: MIT
#include "support/platform_accessible.h"
#include "yearcals/year_test.h"

#include <QAbstractItemModel>
#include <QAccessible>
#include <QSignalSpy>

namespace {

class YearGrids : public YearTest {};

void fillEveryYear(int c, const std::function<void()>& check) {
    for (int number = firstYear(c); number <= lastYear(c); ++number) {
        setDate(c, number % 29 + 1, number % 12 + 1, number);
        CurrentWindow = c;
        ChangeCals::ChangeCal(c);
        check();
        if (testing::Test::HasFailure())
            return;
    }
}

TEST_F(YearGrids, EveryCellOfEveryYearOfEveryCalendarIsRight) {
    for (const int c : {Julian, Gregorian, Jewish, Moslem})
        fillEveryYear(c, [c] { expectEveryCellRight(c); });
}

TEST_F(YearGrids, EveryCellIsRightInTheOtherMoslemVariant) {
    MoslemType = 2;
    Calc::SetMoslemType();
    fillEveryYear(Moslem, [] { expectEveryCellRight(Moslem); });
}

TEST_F(YearGrids, EveryCellIsRightWhateverOpensTheWeek) {
    for (int weekday = 1; weekday <= 7; ++weekday) {
        FirstWeekDay = {weekday, weekday, weekday, weekday};
        for (const int c : {Julian, Gregorian, Jewish, Moslem})
            year(c).ForgetYear();
        for (const int c : {Julian, Gregorian, Jewish, Moslem}) {
            for (int number = firstYear(c); number <= lastYear(c); number += 131) {
                setDate(c, 1, 1, number);
                CurrentWindow = c;
                ChangeCals::ChangeCal(c);
                expectEveryCellRight(c);
            }
        }
    }
}

TEST_F(YearGrids, AYearThatWasForgottenIsFilledAnew) {
    for (const int c : {Julian, Gregorian, Jewish, Moslem}) {
        open(c);
        EXPECT_EQ(grid(c).TextMatrix(1, 0), QStringLiteral("Su"));
        FirstWeekDay(c) = Wednesday;
        year(c).ForgetYear();
        year(c).ShowYear();
        EXPECT_EQ(grid(c).TextMatrix(1, 0), QStringLiteral("We"));
    }
}

TEST_F(YearGrids, PlacesOfTheMark) {
    const struct {
        int calendar, day, month, year, row, column;
    } rows[] = {{Jewish, 14, 7, 5763, 11, 21},    {Jewish, 1, 8, 5763, 21, 1},
                {Jewish, 29, 13, 5763, 30, 17},   {Jewish, 30, 6, 5763, 11, 17},
                {Gregorian, 1, 1, 2000, 7, 1},    {Gregorian, 29, 2, 2024, 5, 11},
                {Gregorian, 31, 12, 2000, 25, 18}};
    for (const auto& row : rows) {
        setDate(row.calendar, row.day, row.month, row.year);
        ChangeCals::ChangeCal(row.calendar);
        EXPECT_EQ(cellOf(row.calendar, row.month, row.day), (GridPlace{row.row, row.column}))
            << row.day << "." << row.month << "." << row.year;
    }
}

TEST_F(YearGrids, PressingTheCellOfEveryDayChoosesThatDay) {
    const int firstYears[] = {1985, 1985, 5755, 1405};
    for (const int c : {Julian, Gregorian, Jewish, Moslem}) {
        open(c);
        for (int number = firstYears[c - 1]; number < firstYears[c - 1] + 30; ++number) {
            setDate(c, 1, 1, number);
            ChangeCals::ChangeCal(c);
            const int first = YearJD(c, FirstDay);
            const int days = YearDays(c, DaysInYear);
            for (int day = days; day >= 1; --day) {
                int month = 0;
                int dayOfMonth = day;
                Calc::DayToMonth(c, month, dayOfMonth);
                press(c, cellOf(c, month, dayOfMonth));
                ASSERT_EQ(CurJD, first + day - 1) << number << " day " << day;
                ASSERT_FALSE(Updating);
            }
        }
        year(c).Hide();
    }
}

TEST_F(YearGrids, BlanksTitlesWeekdaysAndTheMarkedDayAreIgnored) {
    open(Gregorian);
    const int before = CurJD;
    const GridPlace marked = cellOf(Gregorian, 11, 20);
    for (const GridPlace cell : {GridPlace{0, 3}, {8, 8}, {4, 0}, {1, 1}, {31, 18}, marked}) {
        press(Gregorian, cell);
        EXPECT_EQ(CurJD, before) << cell.row << " " << cell.column;
    }
}

TEST_F(YearGrids, OnlyTheLeftButtonChooses) {
    open(Gregorian);
    const int before = CurJD;
    for (const auto button : {Qt::RightButton, Qt::MiddleButton})
        press(Gregorian, cellOf(Gregorian, 5, 5), button);
    EXPECT_EQ(CurJD, before);
    press(Gregorian, cellOf(Gregorian, 5, 5));
    EXPECT_EQ(dateIn(Gregorian), (Date{5, 5, 2026}));
}

TEST_F(YearGrids, APressIsCarriedToEveryOpenWindowOnce) {
    for (const int c : {Julian, Jewish, Moslem})
        ChangeCals::OpenYearWindow(c);
    open(Gregorian);
    ChangeCals::LoadMonthly().Show();
    calls.clear();
    press(Gregorian, cellOf(Gregorian, 1, 5));
    EXPECT_EQ(calls.size(), 9U); // the monthly window's four panes and common part
    for (const int c : {Julian, Gregorian, Jewish, Moslem})
        expectEveryCellRight(c);
}

TEST_F(YearGrids, WithinAYearTwoCellsAreRepaintedAcrossYearsTheGridOnce) {
    setDate(Gregorian, 10, 6, 2026);
    ChangeCals::ChangeCal(Gregorian);
    open(Gregorian);
    ASSERT_TRUE(waitUntil([] { return grid(Gregorian).PaintedCells() > 500; }));
    processEvents();
    int before = grid(Gregorian).PaintedCells();
    goTo(CurJD + 40);
    processEvents();
    EXPECT_EQ(grid(Gregorian).PaintedCells() - before, 2);
    before = grid(Gregorian).PaintedCells();
    QSignalSpy told(grid(Gregorian).model(), &QAbstractItemModel::dataChanged);
    goTo(CurJD + 365);
    EXPECT_EQ(told.count(), 1) << "when all cells are written";
    processEvents();
    const int painted = grid(Gregorian).PaintedCells() - before;
    EXPECT_GT(painted, 300);
    EXPECT_LE(painted, 32 * 19);
    before = grid(Gregorian).PaintedCells();
    goTo(CurJD);
    processEvents();
    EXPECT_EQ(grid(Gregorian).PaintedCells(), before);
}

TEST_F(YearGrids, SizesAreTheDesignedOnes) {
    const MSFlexGrid& days = grid(Moslem);
    EXPECT_EQ(days.size(), QSize(387, 466));
    EXPECT_EQ(days.font().pixelSize(), 10);
    EXPECT_EQ(year(Moslem).size(), QSize(389, 518));
    EXPECT_EQ(days.ColWidth(0), Twips{345});
    for (int column = 1; column < 19; ++column)
        EXPECT_EQ(days.ColWidth(column), Twips{300}) << column;
    for (int row = 0; row < 32; ++row)
        EXPECT_EQ(days.RowHeight(row), Twips{row % 8 == 0 ? 360 : 195});
    EXPECT_EQ(days.Rows(), 32);
    EXPECT_EQ(days.Cols(), 19);
    EXPECT_EQ(grid(Jewish).Cols(), 25);
}

TEST_F(YearGrids, TitlesStandAsOneCellOverTheirMonth) {
    open(Jewish);
    setDate(Jewish, 1, 7, 5784);
    ChangeCals::ChangeCal(Jewish);
    for (const int row : {0, 8, 16, 24}) {
        for (const int column : {1, 7, 13})
            EXPECT_EQ(grid(Jewish).columnSpan(row, column), 6);
    }
    EXPECT_EQ(grid(Jewish).columnSpan(8, 19), 6);
    EXPECT_EQ(cellAt(Jewish, 8, 20).text, QStringLiteral("(7)  Adar II"));
    EXPECT_TRUE(cellAt(Jewish, 8, 20).bold);
    EXPECT_EQ(cellAt(Jewish, 8, 20).fore, TextColors(TitleText));
}

TEST_F(YearGrids, TheThirteenthMonthLeavesNothingBehind) {
    setDate(Jewish, 14, 7, 5784);
    ChangeCals::ChangeCal(Jewish);
    open(Jewish);
    EXPECT_EQ(year(Jewish).width(), 507);
    setDate(Jewish, 14, 7, 5785);
    ChangeCals::ChangeCal(Jewish);
    EXPECT_EQ(year(Jewish).width(), 389);
    for (int row = 0; row < 32; ++row) {
        for (int column = 19; column < 25; ++column) {
            EXPECT_EQ(cellAt(Jewish, row, column).text, QString());
            EXPECT_EQ(cellAt(Jewish, row, column).back, CalendarColors(Jewish));
            EXPECT_TRUE(grid(Jewish).isColumnHidden(column));
        }
    }
    setDate(Jewish, 14, 7, 5787);
    ChangeCals::ChangeCal(Jewish);
    EXPECT_EQ(year(Jewish).width(), 507);
    expectEveryCellRight(Jewish);
}

TEST_F(YearGrids, CellsSayTheirDateAndTheChosenOneIsSelected) {
    open(Gregorian);
    const GridPlace cell = cellOf(Gregorian, 11, 20);
    QAccessibleInterface* chosen = accessibleCell(grid(Gregorian), cell.row, cell.column);
    ASSERT_NE(chosen, nullptr);
    EXPECT_EQ(chosen->text(QAccessible::Name),
              QStringLiteral("Friday, 20 November 2026, Gregorian calendar, selected"));
    EXPECT_TRUE(chosen->state().selected);
    EXPECT_EQ(accessible(grid(Gregorian)).childCount(), 365) << "nothing but days";
    EXPECT_EQ(accessibleCell(grid(Gregorian), 2, 0), nullptr);
    EXPECT_EQ(accessibleCell(grid(Gregorian), 8, 3), nullptr);
}

TEST_F(YearGrids, KeysMoveTheCurrentCellAndChooseIt) {
    open(Gregorian);
    MSFlexGrid& days = grid(Gregorian);
    days.setFocus();
    QTest::keyClick(&days, Qt::Key_Down);
    QTest::keyClick(&days, Qt::Key_Return);
    EXPECT_EQ(dateIn(Gregorian), (Date{21, 11, 2026}));
    QTest::keyClick(&days, Qt::Key_Right);
    QTest::keyClick(&days, Qt::Key_Space);
    EXPECT_EQ(dateIn(Gregorian), (Date{28, 11, 2026}));
}

TEST_F(YearGrids, NamesThatRunRightToLeftAreIsolatedFromTheNumbers) {
    MonthNames(Gregorian, 5) = "\u05d0 II";
    open(Gregorian);
    EXPECT_EQ(cellAt(Gregorian, 8, 7).text, QString::fromUtf8("(5)  \u2068\u05d0 II\u2069"));
}

} // namespace
