// SPDX-License-Identifier: MIT
#include "monthly/monthly_test.h"
#include "support/platform_accessible.h"

#include <QAccessible>
#include <QSignalSpy>

namespace {

using Calls = std::vector<std::string>;

class MonthGrids : public MonthlyTest {
protected:
    // How often the change is carried to all windows.
    static int changes() {
        int shown = 0;
        for (const std::string& call : takeCalls())
            shown += call == "year1.ShowYear" ? 1 : 0;
        return shown;
    }
    static void countChanges() {
        ChangeCals::LoadYear(Julian).Show();
        window().activateWindow();
        calls.clear();
    }
};

TEST_F(MonthGrids, OpenOnTodayInFourCalendars) {
    EXPECT_EQ(window().focusWidget(), &grid(1));
    expectPanesShowTheState();
    EXPECT_EQ(CurJD, 2461365);
    EXPECT_EQ(grid(1).TextMatrix(0, 0), QStringLiteral("Su"));
    EXPECT_EQ(marked(grid(2)), QStringList{QStringLiteral("20")});
}

TEST_F(MonthGrids, SizesAreTheDesignedOnes) {
    for (int pane = 1; pane <= paneCount; ++pane) {
        EXPECT_EQ(grid(pane).size(), QSize(121, 145));
        EXPECT_EQ(grid(pane).font().pixelSize(), 11);
        EXPECT_EQ(grid(pane).Rows(), 7);
        EXPECT_EQ(grid(pane).Cols(), 7);
        for (int column = 0; column < 7; ++column)
            EXPECT_EQ(grid(pane).ColWidth(column), Twips{255});
        EXPECT_EQ(grid(pane).RowHeight(0), Twips{345});
        for (int row = 1; row < 7; ++row)
            EXPECT_EQ(grid(pane).RowHeight(row), Twips{300});
    }
}

TEST_F(MonthGrids, MonthThatBeginsOnTheThirdWeekday) {
    FirstWeekDay(Gregorian) = Saturday; // March 2027 begins on a Monday and has 31 days
    setDate(Gregorian, 5, 3, 2027);
    ChangeCals::ChangeCal(Gregorian);
    const MSFlexGrid& shown = grid(2);
    EXPECT_EQ(shown.TextMatrix(1, 1), QString());
    EXPECT_EQ(shown.TextMatrix(2, 1), QStringLiteral("1"));
    EXPECT_EQ(shown.TextMatrix(0, 2), QStringLiteral("6"));
    EXPECT_EQ(shown.TextMatrix(4, 5), QStringLiteral("31"));
    EXPECT_EQ(shown.TextMatrix(5, 5), QString());
    for (int row = 0; row < 7; ++row)
        EXPECT_EQ(shown.TextMatrix(row, 6), QString());
}

TEST_F(MonthGrids, MonthThatBeginsOnTheFirstWeekdayHasNoLeadingBlanks) {
    FirstWeekDay(Gregorian) = Monday;
    setDate(Gregorian, 5, 3, 2027);
    ChangeCals::ChangeCal(Gregorian);
    EXPECT_EQ(grid(2).TextMatrix(0, 1), QStringLiteral("1"));
}

TEST_F(MonthGrids, ThirtyDaysAfterSixBlanksEndInTheFirstRowOfTheLastColumn) {
    setDate(Gregorian, 1, 4, 2028); // a Saturday, weeks begin on Sunday
    ChangeCals::ChangeCal(Gregorian);
    EXPECT_EQ(Calc::LeadingBlanks(Gregorian, 4), 6);
    EXPECT_EQ(grid(2).TextMatrix(0, 6), QStringLiteral("30"));
    for (int row = 1; row < 7; ++row)
        EXPECT_EQ(grid(2).TextMatrix(row, 6), QString());
}

TEST_F(MonthGrids, EveryCellIsRightInEveryMonthOfSomeYears) {
    for (const int year : {1, 4, 1582, 1900, 2000, 2024, 3000}) {
        for (int month = 1; month <= 12; ++month) {
            setDate(Gregorian, 15, month, year);
            ChangeCals::ChangeCal(Gregorian);
            for (int pane = 1; pane <= paneCount; ++pane) {
                const int c = CalendarOrder(pane);
                if (!isWithinRange(c))
                    continue;
                const int lead = Calc::LeadingBlanks(c, CurDate(c, Month));
                for (int place = 0; place < 42; ++place) {
                    const int day = place - lead + 1;
                    const bool inMonth = day >= 1 && day <= MonthDays(c, CurDate(c, Month));
                    ASSERT_EQ(grid(pane).TextMatrix(place % 7, 1 + place / 7),
                              inMonth ? QString::number(day) : QString());
                }
            }
        }
    }
}

TEST_F(MonthGrids, ChangingTheFirstWeekdayRotatesNamesAndDays) {
    FirstWeekDay(Gregorian) = Monday;
    Calc::SetWeeks(Gregorian);
    window().ReSetForm();
    EXPECT_EQ(grid(2).TextMatrix(0, 0), QStringLiteral("Mo"));
    EXPECT_EQ(grid(2).TextMatrix(6, 0), QStringLiteral("Su"));
    EXPECT_EQ(grid(2).TextMatrix(6, 1), QStringLiteral("1")); // 1 November 2026, a Sunday
    EXPECT_EQ(grid(1).TextMatrix(0, 0), QStringLiteral("Su"));
    expectPanesShowTheState();
}

TEST_F(MonthGrids, AStoredFirstWeekdayOutsideTheWeekStaysInsideTheGrid) {
    for (const int stored : {0, 8, 9, -3, 32767}) {
        FirstWeekDay(Gregorian) = stored;
        Calc::SetWeeks(Gregorian);
        window().ReSetForm();
        expectPanesShowTheState();
    }
}

TEST_F(MonthGrids, APressMovesAllFourCalendarsOnce) {
    countChanges();
    pressDay(2, 25);
    EXPECT_EQ(dateIn(Gregorian), (Date{25, 11, 2026}));
    EXPECT_EQ(dateIn(Julian), (Date{12, 11, 2026}));
    EXPECT_EQ(changes(), 1);
    expectPanesShowTheState();
}

TEST_F(MonthGrids, APressWorksInEveryPaneWithEveryButton) {
    for (const auto button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        for (int pane = 1; pane <= paneCount; ++pane) {
            const int day = CurDate(CalendarOrder(pane), Day) == 9 ? 11 : 9;
            pressDay(pane, day, button);
            EXPECT_EQ(CurDate(CalendarOrder(pane), Day), day);
            EXPECT_TRUE(grid(pane).hasFocus());
            expectPanesShowTheState();
        }
    }
}

TEST_F(MonthGrids, WeekdayNamesBlanksAndTheChosenDayAreIgnored) {
    countChanges();
    const int before = CurJD;
    pressCell(grid(2), 3, 0);
    const QPoint chosen = cellOfDay(grid(2), 20);
    pressCell(grid(2), chosen.y(), chosen.x());
    pressCell(grid(2), 6, 6);
    EXPECT_EQ(CurJD, before);
    EXPECT_EQ(changes(), 0);
    expectPanesShowTheState();
}

TEST_F(MonthGrids, APressBesideTheCellsIsIgnored) {
    countChanges();
    pressDay(2, 25);
    calls.clear();
    QTest::mouseClick(grid(2).viewport(), Qt::LeftButton, {}, QPoint(120, 144));
    QTest::mouseClick(&grid(2), Qt::LeftButton, {}, QPoint(0, 144));
    EXPECT_EQ(changes(), 0);
}

TEST_F(MonthGrids, ADoubleClickChoosesTheDayOnceAndOpensTheYearWindow) {
    countChanges();
    const QPoint cell = cellOfDay(grid(3), 17);
    const QPoint at = cellCentre(grid(3), cell.y(), cell.x());
    QTest::mouseClick(grid(3).viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(grid(3).viewport(), Qt::LeftButton, {}, at);
    EXPECT_EQ(CurDate(Jewish, Day), 17);
    EXPECT_TRUE(ChangeCals::LoadYear(Jewish).Visible());
    const Calls told = takeCalls();
    EXPECT_EQ(std::count(told.begin(), told.end(), "year1.ShowYear"), 1);
    EXPECT_EQ(std::count(told.begin(), told.end(), "year3.ShowYear"), 1);
}

TEST_F(MonthGrids, ADoubleClickAnywhereOnTheGridOpensTheYearWindow) {
    QTest::mouseDClick(grid(4).viewport(), Qt::LeftButton, {}, cellCentre(grid(4), 6, 6));
    EXPECT_TRUE(ChangeCals::LoadYear(Moslem).Visible());
    QTest::mouseDClick(grid(2).viewport(), Qt::RightButton, {}, cellCentre(grid(2), 0, 0));
    EXPECT_FALSE(ChangeCals::LoadYear(Gregorian).Visible());
}

TEST_F(MonthGrids, TwoPanesMayShowOneCalendar) {
    CalendarOrder = {Gregorian, Gregorian, Jewish, Moslem};
    window().ReSetForm();
    pressDay(1, 3);
    EXPECT_EQ(marked(grid(1)), QStringList{QStringLiteral("3")});
    EXPECT_EQ(marked(grid(2)), QStringList{QStringLiteral("3")});
    pressDay(2, 30);
    EXPECT_EQ(marked(grid(1)), QStringList{QStringLiteral("30")});
    expectPanesShowTheState();
    auto* emblem = child<QWidget>(window(), "Image1_2");
    EXPECT_EQ(emblem->x(), 2640 / 15);
    EXPECT_TRUE(child<QWidget>(window(), "Image1_1")->isHidden());
}

TEST_F(MonthGrids, KeysMoveTheCurrentCellAndChooseIt) {
    const struct {
        Qt::Key key;
        int day;
    } rows[] = {{Qt::Key_Return, 27}, {Qt::Key_Space, 20}, {Qt::Key_Enter, 27}};
    bool forward = true;
    for (const auto& row : rows) {
        grid(2).setFocus();
        QTest::keyClick(&grid(2), forward ? Qt::Key_Right : Qt::Key_Left);
        QTest::keyClick(&grid(2), row.key);
        EXPECT_EQ(CurDate(Gregorian, Day), row.day);
        expectPanesShowTheState();
        forward = !forward;
    }
    QTest::keyClick(&grid(2), Qt::Key_Up);
    QTest::keyClick(&grid(2), Qt::Key_Return);
    EXPECT_EQ(CurDate(Gregorian, Day), 26);
}

TEST_F(MonthGrids, CellsSayTheirDateAndTheChosenOneIsSelected) {
    const auto cell = [](int day) {
        const QPoint place = cellOfDay(grid(2), day);
        return accessibleCell(grid(2), place.y(), place.x());
    };
    EXPECT_EQ(cell(20)->text(QAccessible::Name),
              QStringLiteral("Friday, 20 November 2026, Gregorian calendar, selected"));
    EXPECT_TRUE(cell(20)->state().selected);
    EXPECT_FALSE(cell(21)->state().selected);
    EXPECT_EQ(cell(22)->text(QAccessible::Name),
              QStringLiteral("Sunday, 22 November 2026, Gregorian calendar"))
        << "in the first row";
    QAccessibleInterface& days = accessible(grid(2));
    EXPECT_EQ(days.childCount(), 30) << "nothing but days";
    EXPECT_EQ(days.child(29)->text(QAccessible::Name),
              QStringLiteral("Monday, 30 November 2026, Gregorian calendar"))
        << "in their order";
}

TEST_F(MonthGrids, ColoursAreTheCalendarsOwnOnAnyTheme) {
    QPalette dark;
    dark.setColor(QPalette::Base, Qt::black);
    dark.setColor(QPalette::Window, Qt::black);
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::WindowText, Qt::white);
    const QPalette former = QApplication::palette();
    QApplication::setPalette(dark);
    const QRgb colors[] = {qRgb(255, 255, 255), qRgb(192, 255, 255), qRgb(255, 255, 192),
                           qRgb(192, 255, 192)};
    for (int pane = 1; pane <= paneCount; ++pane) {
        const QImage picture = grid(pane).grab().toImage();
        const QPoint blank = grid(pane).viewport()->mapToParent(cellCentre(grid(pane), 6, 6));
        EXPECT_EQ(picture.pixel(blank), colors[pane - 1]) << pane;
        const QString day = marked(grid(pane)).value(0);
        const QPoint cell = cellOfDay(grid(pane), day.toInt());
        const QRect rect = grid(pane).visualRect(grid(pane).model()->index(cell.y(), cell.x()));
        const QPoint withinOutline = rect.topLeft() + QPoint(3, 3); // of the focus
        const QPoint corner = grid(pane).viewport()->mapToParent(withinOutline);
        EXPECT_EQ(picture.pixel(corner), qRgb(255, 0, 0)) << pane;
    }
    QApplication::setPalette(former);
}

TEST_F(MonthGrids, ADayStepRepaintsTwoCellsOfAGrid) {
    setDate(Gregorian, 10, 6, 2026);
    ChangeCals::ChangeCal(Gregorian);
    window().activateWindow();
    processEvents();
    ASSERT_TRUE(waitUntil([] { return grid(2).PaintedCells() > 0; }));
    processEvents();
    const int before = grid(2).PaintedCells();
    CurJD += 1;
    ChangeCals::ChangeJD();
    processEvents();
    EXPECT_EQ(grid(2).PaintedCells() - before, 2);
}

TEST_F(MonthGrids, AnotherMonthIsShownAtOnce) {
    const QSignalSpy changed(grid(2).model(), &QAbstractItemModel::dataChanged);
    goTo(CurJD + 30);
    EXPECT_EQ(changed.count(), 1) << "not cell after cell";
}

TEST_F(MonthGrids, ARefillThatChangesNothingRepaintsNothing) {
    processEvents();
    const int before = grid(1).PaintedCells();
    ChangeCals::UpdateWindows();
    processEvents();
    EXPECT_EQ(grid(1).PaintedCells(), before);
}

} // namespace
