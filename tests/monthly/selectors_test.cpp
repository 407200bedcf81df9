// SPDX-License-Identifier: MIT
#include "monthly/monthly_test.h"
#include "platform/settingsstore.h"

#include <QLocale>
#include <QWheelEvent>

namespace {

class Selectors : public MonthlyTest {
protected:
    static void turnWheel(QWidget& widget) {
        const QPointF at = widget.rect().center();
        QWheelEvent event(at, widget.mapToGlobal(at), {}, {0, -120}, Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&widget, &event);
    }

    static QString storedCalendars() {
        QStringList stored;
        for (int pane = 1; pane <= 4; ++pane)
            stored.append(
                GetSetting(QStringLiteral("Startup"), QStringLiteral("Calendar%1").arg(pane), {}));
        return stored.join(u' ');
    }
};

// Filling

TEST_F(Selectors, HoldOnlyTheChosenDayUntilTheyAreUsed) {
    for (int pane = 1; pane <= 4; ++pane) {
        for (const int kind : {2, 3, 4, 5})
            EXPECT_EQ(combo(kind, pane).ListCount(), 1) << kind;
    }
}

TEST_F(Selectors, AreFullWithTheChosenEntrySelectedOnceTheyHaveTheFocus) {
    for (int pane = 1; pane <= 4; ++pane) {
        const int c = CalendarOrder(pane);
        const struct {
            int kind, count, position;
        } rows[] = {{2, MaxYear(c) - MinYear(c) + 1, CurDate(c, Year) - MinYear(c)},
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

TEST_F(Selectors, TheWeekdayListBeginsWithMondayWhateverOpensTheWeek) {
    FirstWeekDay = {Saturday, Saturday, Saturday, Saturday};
    window().ReSetForm();
    EXPECT_EQ(combo(6).ListCount(), 7);
    EXPECT_EQ(combo(6).itemText(0), QStringLiteral("Monday"));
    EXPECT_EQ(combo(6).itemText(6), QStringLiteral("Sunday"));
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

TEST_F(Selectors, WeekdaysByMouseThenByKeysThenByTyping) {
    ComboBox& weekdays = combo(6);
    for (const int weekday : {1, 7, 3}) {
        chooseByMouse(weekdays, weekday - 1);
        EXPECT_EQ(WeekDayNo, weekday);
        expectPanesShowTheState();
    }
    for (const int weekday : {4, 5, 6}) {
        QTest::keyClick(&weekdays, Qt::Key_Down);
        EXPECT_EQ(WeekDayNo, weekday);
    }
    QTest::keyClicks(&weekdays, QStringLiteral("Tu"));
    EXPECT_EQ(WeekDayNo, 2);
    expectPanesShowTheState();
}

TEST_F(Selectors, ChoosingInOneListAfterAnotherWithoutAFocusChangeBetween) {
    for (int pane = 1; pane <= 4; ++pane) {
        QTest::keyClick(&combo(2, pane), Qt::Key_Down);
        QTest::keyClick(&combo(3, pane), Qt::Key_Up);
        QTest::keyClick(&combo(4, pane), Qt::Key_Down);
        QTest::keyClick(&combo(5, pane), Qt::Key_Up);
        expectPanesShowTheState();
    }
}

TEST_F(Selectors, TheSameYearAgainChangesNothing) {
    ChangeCals::Year(Julian).Show();
    calls.clear();
    chooseByMouse(combo(2, 2), 2026 - 1);
    EXPECT_TRUE(takeCalls().empty());
}

TEST_F(Selectors, AChoiceIsCarriedOnce) {
    ChangeCals::Year(Julian).Show();
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

// Weekday and moon age

TEST_F(Selectors, EveryWeekdayBelowTheLowestDayBeepsAndChangesNothing) {
    goTo(1721319); // a Saturday
    for (int position = 0; position < 5; ++position) {
        m_beeps = 0;
        chooseByMouse(combo(6), position);
        EXPECT_EQ(m_beeps, 1) << position;
        EXPECT_EQ(CurJD, 1721319);
        EXPECT_EQ(combo(6).ListIndex(), 5);
        expectPanesShowTheState();
    }
    QTest::keyClick(&combo(6), Qt::Key_Down);
    EXPECT_EQ(CurJD, 1721320);
}

TEST_F(Selectors, MoonAgeBelowTheLowestDayBeepsAndChangesNothing) {
    goTo(1721319);
    const QString age = combo(7).Text();
    combo(7).setFocus();
    ASSERT_GT(combo(7).ListIndex(), 0);
    QTest::keyClick(&combo(7), Qt::Key_Home);
    EXPECT_EQ(m_beeps, 1);
    EXPECT_EQ(CurJD, 1721319);
    EXPECT_EQ(combo(7).Text(), age);
    expectPanesShowTheState();
}

TEST_F(Selectors, MoonAgesAreThoseOfTheWholeDaysOfTheLunation) {
    combo(7).setFocus();
    EXPECT_EQ(combo(7).itemText(0), QStringLiteral("0.6"));
    EXPECT_EQ(combo(7).ListIndex(), 10);
    EXPECT_EQ(combo(7).Text(), QStringLiteral("10.6"));
    EXPECT_EQ(combo(7).ListCount(), 29);
}

TEST_F(Selectors, TheMoonAgeThatIsChosenIsTheOneThatIsShown) {
    for (int start = 2451545; start < 2451545 + 4000; start += 37) {
        goTo(start);
        combo(7).setFocus();
        QTest::keyClick(&combo(7), Qt::Key_F1); // is filled before any key
        const int position = combo(7).ListIndex();
        const int target = (position + 11) % combo(7).ListCount();
        const QString chosen = combo(7).itemText(target);
        combo(7).SetListIndex(target);
        Q_EMIT combo(7).activated(target);
        ASSERT_EQ(CurJD, start + target - position);
        ASSERT_EQ(combo(7).Text(), chosen) << start;
    }
}

TEST_F(Selectors, MoonAgesByMouseThenByKeys) {
    const int before = CurJD;
    chooseByMouse(combo(7), 0);
    EXPECT_EQ(CurJD, before - 10);
    chooseByMouse(combo(7), 20);
    EXPECT_EQ(CurJD, before + 10);
    QTest::keyClick(&combo(7), Qt::Key_Down);
    QTest::keyClick(&combo(7), Qt::Key_Down);
    QTest::keyClick(&combo(7), Qt::Key_Up);
    EXPECT_EQ(CurJD, before + 11);
    expectPanesShowTheState();
}

TEST_F(Selectors, MoonAgesWorkInLocalesWithACommaAndWithOtherDigits) {
    for (const auto language : {QLocale::German, QLocale::Arabic, QLocale::Persian}) {
        QLocale::setDefault(QLocale(language));
        goTo(2461365);
        EXPECT_EQ(combo(7).Text(),
                  language == QLocale::German ? QStringLiteral("10,6") : QStringLiteral("10.6"));
        QTest::keyClick(&combo(7), Qt::Key_Down);
        EXPECT_EQ(CurJD, 2461366);
        expectPanesShowTheState();
    }
    QLocale::setDefault(QLocale::c());
}

TEST_F(Selectors, AgesShowOneDecimalAndNoZero) {
    const struct {
        float age;
        const char* text;
    } rows[] = {{0.0F, "0"}, {12.0F, "12"}, {10.0F, "10"}, {29.5F, "29.5"}, {3.04F, "3"}};
    for (const auto& row : rows) {
        MoonAge = row.age;
        window().SetCommonInfo();
        EXPECT_EQ(combo(7).Text(), QLatin1String(row.text));
    }
}

TEST_F(Selectors, TextsAsNumbers) {
    EXPECT_EQ(MyVal(QStringLiteral("1.5")), 1.5F);
    EXPECT_EQ(MyVal(QStringLiteral("abc")), 0.0F);
    EXPECT_EQ(MyVal(QStringLiteral("a,b")), 0.0F);
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ(MyVal(QStringLiteral("1,5")), 1.5F);
    EXPECT_EQ(MyVal(QStringLiteral("1.5")), 1.5F);
    QLocale::setDefault(QLocale::c());
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
