// SPDX-License-Identifier: MIT
// Days at and beyond the edges of what the calendars can show.
#include "monthly/monthly_test.h"

namespace {

class Ranges : public MonthlyTest {
protected:
    static void useVariant(int type) {
        MoslemType = type;
        Calc::SetMoslemType();
        Calc::JDToMoslem();
    }
};

constexpr int edges[] = {1721319, 1721423, 1721424, 1721425, 1721426, 1948438, 1948439,
                         1948440, 2817152, 2817153, 2817173, 2817174, 2817345, 2817346,
                         2817347, 2817404, 2817405, 2817406, 2900000};

TEST_F(Ranges, PanesHideBeforeTheirRangeAndAreDisabledAfterIt) {
    for (const int type : {1, 2}) {
        useVariant(type);
        for (const int julianDay : edges) {
            goTo(julianDay);
            expectPanesShowTheState();
        }
    }
}

TEST_F(Ranges, PanesComeBackWhole) {
    for (const int julianDay : {1721319, 2900000, 1948438}) {
        goTo(julianDay);
        goTo(2461365);
        expectPanesShowTheState();
        for (int pane = 1; pane <= paneCount; ++pane) {
            EXPECT_TRUE(grid(pane).isVisible() && grid(pane).isEnabled());
            QTest::keyClick(&combo(2, pane), Qt::Key_Down);
            expectPanesShowTheState();
        }
    }
}

TEST_F(Ranges, TheDaysBeforeTheJulianYearOneAreWalkedThrough) {
    goTo(1721319);
    while (CurJD < 1721430) {
        const int before = CurJD;
        pressDay(3, CurDate(Jewish, Day) == MonthDays(Jewish, CurDate(Jewish, Month))
                        ? CurDate(Jewish, Day)
                        : CurDate(Jewish, Day) + 1);
        if (CurJD == before)
            goTo(before + 1);
        ASSERT_EQ(CurJD, before + 1);
        expectPanesShowTheState();
    }
}

TEST_F(Ranges, PressesOnHiddenAndDisabledGridsDoNothing) {
    for (const int julianDay : {1721319, 1948438, 2817405}) {
        goTo(julianDay);
        for (int pane = 1; pane <= paneCount; ++pane) {
            if (isWithinRange(CalendarOrder(pane)))
                continue;
            QTest::mouseClick(&window(), Qt::LeftButton, {}, grid(pane).geometry().center());
            QTest::mouseDClick(&window(), Qt::LeftButton, {}, grid(pane).geometry().center());
            EXPECT_EQ(CurJD, julianDay);
        }
    }
}

TEST_F(Ranges, WeekdaysAndMoonAgesLeadBeyondEveryTopAndTodayLeadsBack) {
    goTo(2817404);
    for (int step = 0; step < 20; ++step) {
        QTest::keyClick(&combo(6), Qt::Key_Home);
        expectPanesShowTheState();
        QTest::keyClick(&combo(6), Qt::Key_End);
        expectPanesShowTheState();
        QTest::keyClick(&combo(7), Qt::Key_End);
        expectPanesShowTheState();
        goTo(CurJD + 1);
    }
    EXPECT_GT(CurJD, 2817404);
    click(&command(2));
    EXPECT_EQ(CurJD, 2461365);
    expectPanesShowTheState();
}

TEST_F(Ranges, TheFocusedSelectorMayGoAndComeBack) {
    combo(2, 1).setFocus();
    goTo(1721319);
    expectPanesShowTheState();
    goTo(2461365);
    combo(2, 1).setFocus();
    QTest::keyClick(&combo(2, 1), Qt::Key_Down);
    EXPECT_EQ(CurDate(Julian, Year), 2027);
    expectPanesShowTheState();
}

} // namespace
