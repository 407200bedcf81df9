// SPDX-License-Identifier: MIT
// A year window by keyboard alone, and where the focus goes.
#include "yearcals/year_test.h"

namespace {

class YearKeys : public YearTest {
protected:
    static void openFocused(int c) {
        open(c);
        grid(c).setFocus(Qt::TabFocusReason);
    }

    static void press(int c, int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&grid(c), static_cast<Qt::Key>(key), modifiers);
    }

    static GridPlace current(int c) { return {grid(c).Row(), grid(c).Col()}; }
};

TEST_F(YearKeys, PageKeysGoAYear) {
    openFocused(Jewish);
    press(Jewish, Qt::Key_PageDown);
    EXPECT_EQ(dateIn(Jewish).year, 5788);
    expectEveryCellRight(Jewish);
    press(Jewish, Qt::Key_PageUp);
    press(Jewish, Qt::Key_PageUp);
    EXPECT_EQ(dateIn(Jewish).year, 5786);
    EXPECT_TRUE(grid(Jewish).hasFocus());
}

TEST_F(YearKeys, HomeAndEndGoToTheFirstAndLastDay) {
    openFocused(Jewish);
    setDate(Jewish, 3, 3, 5784); // of thirteen months
    ChangeCals::ChangeCal(Jewish);
    press(Jewish, Qt::Key_End);
    EXPECT_EQ(dateIn(Jewish), (Date{29, 13, 5784}));
    press(Jewish, Qt::Key_Home);
    EXPECT_EQ(dateIn(Jewish), (Date{1, 1, 5784}));
    const QPoint first(grid(Jewish).Col(), grid(Jewish).Row());
    press(Jewish, Qt::Key_Right);
    EXPECT_EQ(grid(Jewish).Col(), first.x() + 1);
    press(Jewish, Qt::Key_Home);
    EXPECT_EQ(QPoint(grid(Jewish).Col(), grid(Jewish).Row()), first);
    EXPECT_EQ(dateIn(Jewish), (Date{1, 1, 5784})) << "it is the day that is chosen";
}

// 2026 begins on a Thursday; the weeks begin on Sundays.
TEST_F(YearKeys, ArrowsPassOverBlanksTitlesAndNamesAndStayAtTheEdges) {
    openFocused(Gregorian);
    press(Gregorian, Qt::Key_Home);
    EXPECT_EQ(current(Gregorian), (GridPlace{5, 1}));
    press(Gregorian, Qt::Key_Up);
    press(Gregorian, Qt::Key_Left);
    EXPECT_EQ(current(Gregorian), (GridPlace{5, 1}));
    for (int step = 1; step < 31 + 28 + 31 + 1; ++step)
        press(Gregorian, Qt::Key_Down);
    EXPECT_EQ(current(Gregorian), (GridPlace{12, 1})); // 1 April, the first of its band
    press(Gregorian, Qt::Key_Up);
    EXPECT_EQ(current(Gregorian), (GridPlace{3, 17})); // 31 March
    press(Gregorian, Qt::Key_Home);
    for (int step = 0; step < 4; ++step)
        press(Gregorian, Qt::Key_Right);
    EXPECT_EQ(current(Gregorian), (GridPlace{5, 5})); // 29 January
    press(Gregorian, Qt::Key_Right);
    EXPECT_EQ(current(Gregorian), (GridPlace{5, 7})); // 5 February
    EXPECT_EQ(dateIn(Gregorian), (Date{1, 1, 2026}));
    press(Gregorian, Qt::Key_End);
    const GridPlace last = current(Gregorian);
    press(Gregorian, Qt::Key_Right);
    press(Gregorian, Qt::Key_Down);
    EXPECT_EQ(current(Gregorian), last);
}

TEST_F(YearKeys, CtrlReturnBringsBackTheMonthlyWindow) {
    openFocused(Moslem);
    press(Moslem, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(ChangeCals::LoadMonthly().Visible());
}

// Focus

TEST_F(YearKeys, NextYearHeldDownEndsAtTheLastYear) {
    setDate(Gregorian, 5, 5, 2998);
    ChangeCals::ChangeCal(Gregorian);
    open(Gregorian);
    command(Gregorian, NextYear).setFocus();
    for (int step = 0; step < 3; ++step)
        QTest::keyClick(year(Gregorian).focusWidget(), Qt::Key_Return);
    EXPECT_EQ(dateIn(Gregorian), (Date{5, 5, 3000}));
    EXPECT_EQ(year(Gregorian).focusWidget(), &grid(Gregorian));
}

TEST_F(YearKeys, PreviousYearHandsItsFocusToTheGridAtTheFirstYear) {
    setDate(Julian, 5, 5, 2);
    ChangeCals::ChangeCal(Julian);
    open(Julian);
    command(Julian, PreviousYear).setFocus();
    QTest::keyClick(year(Julian).focusWidget(), Qt::Key_Return);
    EXPECT_EQ(year(Julian).focusWidget(), &grid(Julian));
}

TEST_F(YearKeys, BeyondTheRangeTheFocusIsNeverOnToday) {
    for (const int julianDay : {1800000, 2817350}) {
        goTo(2461365);
        open(Moslem);
        for (QWidget* control : std::initializer_list<QWidget*>{&grid(Moslem), &selector(Moslem),
                                                                &command(Moslem, NextYear)}) {
            goTo(2461365);
            control->setFocus();
            goTo(julianDay);
            EXPECT_EQ(year(Moslem).focusWidget(), &command(Moslem, FirstOtherCalendar))
                << julianDay;
        }
    }
}

TEST_F(YearKeys, TabFollowsTheMoonThatComesToTheFront) {
    open(Gregorian);
    for (int step = 0; step < 30; ++step) {
        goTo(CurJD + 1);
        command(Gregorian, TodayButton).setFocus();
        QTest::keyClick(year(Gregorian).focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(year(Gregorian).focusWidget()->objectName(),
                  QStringLiteral("Command2_%1").arg(MoonPhase));
    }
}

// June 2024 begins on a Saturday: its 30th stands alone in the band's last column.
TEST_F(YearKeys, UpFromABandsFirstDayFindsTheDayInTheLastColumn) {
    setDate(Gregorian, 1, 7, 2024);
    ChangeCals::ChangeCal(Gregorian);
    openFocused(Gregorian);
    EXPECT_EQ(current(Gregorian), (GridPlace{18, 1})); // 1 July
    press(Gregorian, Qt::Key_Up);
    EXPECT_EQ(current(Gregorian), (GridPlace{9, 18})); // 30 June
    press(Gregorian, Qt::Key_Down);
    EXPECT_EQ(current(Gregorian), (GridPlace{18, 1}));
}

} // namespace
