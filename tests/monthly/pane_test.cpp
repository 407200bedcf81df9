// SPDX-License-Identifier: MIT
#include "monthly/pane.h"

#include "monthly/monthly_test.h"
#include "platform/settingsfile.h"

namespace {

class Selectors : public MonthlyTest {
protected:
    static QString storedCalendars() {
        QStringList stored;
        for (int pane = 1; pane <= paneCount; ++pane)
            stored.append(
                GetSetting(QStringLiteral("Startup"), QStringLiteral("Calendar%1").arg(pane), {}));
        return stored.join(u' ');
    }
};

// Filling

TEST_F(Selectors, HoldOnlyTheChosenDayUntilTheyAreUsed) {
    for (int pane = 1; pane <= paneCount; ++pane) {
        for (const int kind : {2, 3, 4, 5})
            EXPECT_EQ(combo(kind, pane).ListCount(), 1) << kind;
    }
}

TEST_F(Selectors, CalendarsAreOfferedOnceHoweverOftenTheWindowIsReset) {
    window().ReSetForm();
    window().ReSetForm();
    for (int pane = 1; pane <= paneCount; ++pane)
        EXPECT_EQ(combo(1, pane).ListCount(), 4);
}

TEST_F(Selectors, AnEntryAloneInItsListIsTheChosenOne) {
    Q_EMIT combo(3, 2).activated(0);
    EXPECT_EQ(CurJD, 2461365) << "it stands first, but is no January";
}

TEST_F(Selectors, AreFullWithTheChosenEntrySelectedOnceTheyHaveTheFocus) {
    for (int pane = 1; pane <= paneCount; ++pane) {
        const int c = CalendarOrder(pane);
        const struct {
            int kind, count, position;
        } rows[] = {{2, lastYear(c) - firstYear(c) + 1, CurDate(c, Year) - firstYear(c)},
                    {3, Calc::MonthsInYear(c), CurDate(c, Month) - 1},
                    {4, YearDays(c, DaysInYear), CurDate(c, DayNumber) - 1},
                    {5, YearDays(c, WeeksInYear), CurDate(c, WeekNumber) - 1}};
        for (const auto& row : rows) {
            ComboBox& list = combo(row.kind, pane);
            const QString before = list.Text();
            list.setFocus(Qt::TabFocusReason);
            EXPECT_EQ(list.ListCount(), row.count) << pane << " " << row.kind;
            EXPECT_EQ(list.ListIndex(), row.position);
            EXPECT_EQ(list.Text(), before);
        }
    }
    expectPanesShowTheState();
}

TEST_F(Selectors, EntriesHaveTheirForm) {
    setDate(Gregorian, 14, 5, 2001);
    ChangeCals::ChangeCal(Gregorian);
    EXPECT_EQ(combo(2, 2).Text(), QStringLiteral("2001"));
    EXPECT_EQ(combo(3, 2).Text(), QStringLiteral("5/12  May"));
    EXPECT_EQ(combo(4, 2).Text(), QStringLiteral("134/365"));
    EXPECT_EQ(combo(5, 2).Text(), QStringLiteral("20/53"));
    combo(3, 3).setFocus();
    EXPECT_EQ(combo(3, 3).itemText(11), QStringLiteral("12/12  Elul"));
    setDate(Jewish, 1, 13, 5763);
    ChangeCals::ChangeCal(Jewish);
    EXPECT_EQ(combo(3, 3).Text(), QStringLiteral("13/13  Elul"));
}

// Choosing, again and again without leaving the selector

TEST_F(Selectors, YearsByMouseThenByKeysThenByTyping) {
    ComboBox& years = combo(2, 2);
    for (const int year : {2000, 1582, 3000}) {
        chooseByMouse(years, year - 1);
        EXPECT_EQ(CurDate(Gregorian, Year), year);
        expectPanesShowTheState();
    }
    for (const int year : {2999, 2998, 2997}) {
        QTest::keyClick(&years, Qt::Key_Up);
        EXPECT_EQ(CurDate(Gregorian, Year), year);
        expectPanesShowTheState();
    }
    QTest::keyClicks(&years, QStringLiteral("1999"));
    EXPECT_EQ(CurDate(Gregorian, Year), 1999);
    expectPanesShowTheState();
}

TEST_F(Selectors, MonthsByMouseThenByKeysThenByTyping) {
    ComboBox& months = combo(3, 3);
    for (const int month : {1, 13, 6}) {
        chooseByMouse(months, month - 1);
        EXPECT_EQ(CurDate(Jewish, Month), month);
        expectPanesShowTheState();
    }
    for (const int month : {7, 8, 9}) {
        QTest::keyClick(&months, Qt::Key_Down);
        EXPECT_EQ(CurDate(Jewish, Month), month);
        expectPanesShowTheState();
    }
    QTest::keyClicks(&months, QStringLiteral("4/"));
    EXPECT_EQ(CurDate(Jewish, Month), 4);
}

TEST_F(Selectors, DaysOfTheYearByMouseThenByKeysThenByTyping) {
    ComboBox& days = combo(4, 4);
    for (const int day : {1, 354, 45}) {
        chooseByMouse(days, day - 1);
        EXPECT_EQ(CurDate(Moslem, DayNumber), day);
        expectPanesShowTheState();
    }
    for (const int day : {46, 47, 48}) {
        QTest::keyClick(&days, Qt::Key_Down);
        EXPECT_EQ(CurDate(Moslem, DayNumber), day);
        expectPanesShowTheState();
    }
    QTest::keyClicks(&days, QStringLiteral("200"));
    EXPECT_EQ(CurDate(Moslem, DayNumber), 200);
}

TEST_F(Selectors, WeeksByMouseThenByKeysThenByTyping) {
    ComboBox& weeks = combo(5, 1);
    for (const int week : {2, 30, 31}) {
        chooseByMouse(weeks, week - 1);
        EXPECT_EQ(CurDate(Julian, WeekNumber), week);
        expectPanesShowTheState();
    }
    for (const int week : {32, 33, 34}) {
        QTest::keyClick(&weeks, Qt::Key_Down);
        EXPECT_EQ(CurDate(Julian, WeekNumber), week);
        expectPanesShowTheState();
    }
    QTest::keyClicks(&weeks, QStringLiteral("12"));
    EXPECT_EQ(CurDate(Julian, WeekNumber), 12);
}

TEST_F(Selectors, NamesThatRunRightToLeftAreIsolatedFromTheNumbers) {
    MonthNames(Gregorian, 5) = "\u05d0 II";
    setDate(Gregorian, 14, 5, 2001);
    ChangeCals::ChangeCal(Gregorian);
    EXPECT_EQ(combo(3, 2).Text(), QString::fromUtf8("5/12  \u2068\u05d0 II\u2069"));
}

TEST_F(Selectors, ChoosingInOneListAfterAnotherWithoutAFocusChangeBetween) {
    for (int pane = 1; pane <= paneCount; ++pane) {
        QTest::keyClick(&combo(2, pane), Qt::Key_Down);
        QTest::keyClick(&combo(3, pane), Qt::Key_Up);
        QTest::keyClick(&combo(4, pane), Qt::Key_Down);
        QTest::keyClick(&combo(5, pane), Qt::Key_Up);
        expectPanesShowTheState();
    }
}

TEST_F(Selectors, TheSameYearAgainChangesNothing) {
    ChangeCals::LoadYear(Julian).Show();
    calls.clear();
    chooseByMouse(combo(2, 2), 2026 - 1);
    EXPECT_TRUE(takeCalls().empty());
}

TEST_F(Selectors, AChoiceIsCarriedOnce) {
    ChangeCals::LoadYear(Julian).Show();
    window().activateWindow();
    calls.clear();
    for (const int kind : {2, 3, 4, 5}) {
        QTest::keyClick(&combo(kind, 2), Qt::Key_Down);
        EXPECT_EQ(takeCalls(), std::vector<std::string>{"year1.ShowYear"}) << kind;
    }
    QTest::keyClick(&combo(6), Qt::Key_Up);
    EXPECT_EQ(takeCalls(), std::vector<std::string>{"year1.ShowYear"});
    QTest::keyClick(&combo(7), Qt::Key_Up);
    EXPECT_EQ(takeCalls(), std::vector<std::string>{"year1.ShowYear"});
}

TEST_F(Selectors, WhatIsChosenAlreadyIsNotCarried) {
    ChangeCals::LoadYear(Julian).Show();
    window().activateWindow();
    for (ComboBox* list :
         {&combo(2, 2), &combo(3, 2), &combo(4, 2), &combo(5, 2), &combo(6), &combo(7)}) {
        list->setFocus();
        calls.clear();
        Q_EMIT list->activated(list->currentIndex());
        EXPECT_TRUE(takeCalls().empty()) << qPrintable(list->objectName());
    }
}

// Days and weeks

TEST_F(Selectors, ADayIsMeasuredFromTheDayThatIsShownNotFromAnEarlierOne) {
    ComboBox& days = combo(4, 2);
    days.setFocus();
    goTo(CurJD - 100); // from elsewhere, while the list keeps the focus
    const int shown = CurDate(Gregorian, DayNumber);
    QTest::keyClick(&days, Qt::Key_Down);
    EXPECT_EQ(CurDate(Gregorian, DayNumber), shown + 1);
}

TEST_F(Selectors, AYearThatWasLeftElsewhereCanBeChosenAgain) {
    combo(2, 2).setFocus();
    setDate(Gregorian, 1, 1, 2000);
    ChangeCals::ChangeCal(Gregorian);
    QTest::keyClicks(&combo(2, 2), QStringLiteral("2026"));
    EXPECT_EQ(CurDate(Gregorian, Year), 2026);
}

TEST_F(Selectors, FromWeekOneToWeekTwoIsSevenDays) {
    setDate(Gregorian, 1, 1, 2026);
    ChangeCals::ChangeCal(Gregorian);
    const int before = CurJD;
    QTest::keyClick(&combo(5, 2), Qt::Key_Down);
    EXPECT_EQ(CurJD, before + 7);
}

TEST_F(Selectors, AMoveByWeeksStopsAtTheEndsOfThePanesYear) {
    setDate(Gregorian, 3, 1, 2026); // Saturday of week 1
    ChangeCals::ChangeCal(Gregorian);
    QTest::keyClick(&combo(5, 2), Qt::Key_End);
    EXPECT_EQ(dateIn(Gregorian), (Date{31, 12, 2026}));
    setDate(Gregorian, 27, 12, 2026); // Sunday of the last week
    ChangeCals::ChangeCal(Gregorian);
    QTest::keyClick(&combo(5, 2), Qt::Key_Home);
    EXPECT_EQ(dateIn(Gregorian), (Date{1, 1, 2026}));
    expectPanesShowTheState();
}

TEST_F(Selectors, MonthThirteenIsOfferedInALeapYearOnly) {
    setDate(Jewish, 5, 13, 5784);
    ChangeCals::ChangeCal(Jewish);
    combo(2, 3).setFocus();
    QTest::keyClick(&combo(2, 3), Qt::Key_Down);
    EXPECT_EQ(dateIn(Jewish), (Date{5, 12, 5785}));
    combo(3, 3).setFocus();
    EXPECT_EQ(combo(3, 3).ListCount(), 12);
}

// The calendar chooser

TEST_F(Selectors, ChoosingACalendarExchangesItWithThePaneThatShowsIt) {
    const int before = CurJD;
    chooseByMouse(combo(1, 1), Jewish - 1);
    EXPECT_EQ(storedCalendars(), QStringLiteral("3 2 1 4"));
    EXPECT_EQ(CurJD, before);
    expectPanesShowTheState();
    EXPECT_EQ(child<QWidget>(window(), "Image1_3")->x(), 20);
    EXPECT_EQ(child<QWidget>(window(), "Image1_1")->x(), 332);
    EXPECT_EQ(combo(2, 1).accessibleName(), QStringLiteral("Jewish calendar, Year"));
    EXPECT_EQ(grid(1).palette().color(QPalette::Base), QColor(255, 255, 192));
    for (int row = 0; row < 7; ++row) {
        for (int column = 0; column < 7; ++column) {
            grid(1).SetRow(row);
            grid(1).SetCol(column);
            const bool chosen = grid(1).CellBackColor() == CalendarColors(ChosenDayBackground);
            EXPECT_TRUE(chosen || grid(1).CellBackColor() == CalendarColors(Jewish));
            EXPECT_EQ(grid(1).CellFontBold(), chosen);
        }
    }
}

TEST_F(Selectors, CalendarsByMouseThenByKeys) {
    for (const int c : {4, 2, 3})
        chooseByMouse(combo(1, 1), c - 1);
    EXPECT_EQ(CalendarOrder(1), Jewish);
    QTest::keyClick(&combo(1, 1), Qt::Key_Up);
    QTest::keyClick(&combo(1, 1), Qt::Key_Up);
    QTest::keyClick(&combo(1, 1), Qt::Key_Down);
    EXPECT_EQ(CalendarOrder(1), Gregorian);
    expectPanesShowTheState();
}

TEST_F(Selectors, TheSameCalendarAgainStoresNothing) {
    chooseByMouse(combo(1, 2), Gregorian - 1);
    EXPECT_EQ(storedCalendars(), QStringLiteral("   "));
}

TEST_F(Selectors, AfterAnExchangeEveryControlWorksOnTheNewCalendar) {
    chooseByMouse(combo(1, 1), Moslem - 1);
    QTest::keyClick(&combo(2, 1), Qt::Key_Down);
    EXPECT_EQ(CurDate(Moslem, Year), 1449);
    pressDay(1, 3);
    EXPECT_EQ(CurDate(Moslem, Day), 3);
    QTest::keyClick(&combo(2, 4), Qt::Key_Down);
    EXPECT_EQ(CurDate(Julian, Year), 2028);
    expectPanesShowTheState();
}

// Wheel

TEST_F(Selectors, TheWheelDoesNothingWithoutTheFocus) {
    const int before = CurJD;
    command(1).setFocus();
    for (const int kind : {1, 2, 3, 4, 5})
        turnWheel(combo(kind, 2));
    turnWheel(combo(6));
    turnWheel(combo(7));
    turnWheel(combo(8));
    EXPECT_EQ(CurJD, before);
    EXPECT_EQ(CalendarOrder(2), Gregorian);
    expectPanesShowTheState();
}

TEST_F(Selectors, TheWheelMovesTheSelectorThatHasTheFocus) {
    combo(2, 2).setFocus();
    turnWheel(combo(2, 2));
    turnWheel(combo(2, 2));
    EXPECT_EQ(CurDate(Gregorian, Year), 2028);
    expectPanesShowTheState();
}

} // namespace
