// SPDX-License-Identifier: MIT
// A month grid by keyboard alone, and where the focus goes.
#include "monthly/monthly_test.h"
#include "support/messageshown.h"

namespace {

class MonthKeys : public MonthlyTest {
protected:
    /// The pane of a calendar on 20 November 2026, its grid with the focus.
    static MSFlexGrid& focused(int pane) {
        grid(pane).setFocus(Qt::TabFocusReason);
        EXPECT_TRUE(waitUntil([pane] { return grid(pane).hasFocus(); }));
        return grid(pane);
    }

    static void press(int pane, int key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&grid(pane), static_cast<Qt::Key>(key), modifiers);
    }

    static QString current(int pane) {
        return grid(pane).TextMatrix(grid(pane).Row(), grid(pane).Col());
    }

    static void enter(int c, int day, int month, int year) {
        setDate(c, day, month, year);
        ChangeCals::ChangeCal(c);
        calls.clear();
    }
};

TEST_F(MonthKeys, PageKeysGoToTheMonthBeforeAndAfter) {
    focused(Gregorian);
    press(Gregorian, Qt::Key_PageDown);
    EXPECT_EQ(dateIn(Gregorian), (Date{20, 12, 2026}));
    press(Gregorian, Qt::Key_PageDown);
    EXPECT_EQ(dateIn(Gregorian), (Date{20, 1, 2027}));
    press(Gregorian, Qt::Key_PageDown);
    EXPECT_EQ(dateIn(Gregorian), (Date{20, 2, 2027}));
    press(Gregorian, Qt::Key_PageUp);
    EXPECT_EQ(dateIn(Gregorian), (Date{20, 1, 2027}));
    press(Gregorian, Qt::Key_PageUp);
    press(Gregorian, Qt::Key_PageUp);
    EXPECT_EQ(dateIn(Gregorian), (Date{20, 11, 2026}));
    EXPECT_TRUE(grid(Gregorian).hasFocus());
    expectPanesShowTheState();
}

TEST_F(MonthKeys, WithShiftTheyGoAYear) {
    focused(Gregorian);
    press(Gregorian, Qt::Key_PageUp, Qt::ShiftModifier);
    EXPECT_EQ(dateIn(Gregorian), (Date{20, 11, 2025}));
    press(Gregorian, Qt::Key_PageDown, Qt::ShiftModifier);
    press(Gregorian, Qt::Key_PageDown, Qt::ShiftModifier);
    EXPECT_EQ(dateIn(Gregorian), (Date{20, 11, 2027}));
}

TEST_F(MonthKeys, ADayBeyondTheMonthBecomesItsLast) {
    enter(Gregorian, 31, 1, 2024);
    focused(Gregorian);
    press(Gregorian, Qt::Key_PageDown);
    EXPECT_EQ(dateIn(Gregorian), (Date{29, 2, 2024}));
}

TEST_F(MonthKeys, TheJewishYearHasTwelveOrThirteenMonths) {
    enter(Jewish, 5, 1, 5785); // after a leap year
    focused(Jewish);
    press(Jewish, Qt::Key_PageUp);
    EXPECT_EQ(dateIn(Jewish), (Date{5, 13, 5784}));
    press(Jewish, Qt::Key_PageDown);
    EXPECT_EQ(dateIn(Jewish), (Date{5, 1, 5785}));
    enter(Jewish, 5, 1, 5786); // after a common one
    press(Jewish, Qt::Key_PageUp);
    EXPECT_EQ(dateIn(Jewish), (Date{5, 12, 5785}));
    press(Jewish, Qt::Key_PageDown);
    EXPECT_EQ(dateIn(Jewish), (Date{5, 1, 5786}));
}

TEST_F(MonthKeys, PageKeysKeepToTheRange) {
    const struct {
        int calendar;
        Date first;
        Date last;
    } rows[] = {{Julian, {3, 1, 1}, {3, 12, 3000}},
                {Gregorian, {3, 1, 1}, {3, 12, 3000}},
                {Jewish, {3, 1, 3761}, {3, 12, 6761}},
                {Moslem, {3, 1, 1}, {3, 12, 2452}}};
    for (const auto& row : rows) {
        const int c = row.calendar;
        enter(c, row.first.day, row.first.month, row.first.year);
        focused(c);
        press(c, Qt::Key_PageUp);
        press(c, Qt::Key_PageUp, Qt::ShiftModifier);
        EXPECT_EQ(dateIn(c), row.first);
        press(c, Qt::Key_PageDown, Qt::ShiftModifier);
        EXPECT_EQ(dateIn(c), (Date{3, 1, row.first.year + 1}));
        press(c, Qt::Key_PageUp, Qt::ShiftModifier);
        EXPECT_EQ(dateIn(c), row.first);
        enter(c, row.last.day, row.last.month, row.last.year);
        press(c, Qt::Key_PageDown, Qt::ShiftModifier);
        EXPECT_EQ(dateIn(c), row.last);
        press(c, Qt::Key_PageUp, Qt::ShiftModifier);
        EXPECT_EQ(dateIn(c).year, row.last.year - 1);
        press(c, Qt::Key_PageDown, Qt::ShiftModifier);
        EXPECT_EQ(dateIn(c), row.last);
        if (c != Jewish) { // whose last year has a thirteenth month or not
            press(c, Qt::Key_PageDown);
            EXPECT_EQ(dateIn(c), row.last);
        }
    }
}

TEST_F(MonthKeys, HomeAndEndGoToTheFirstAndLastDay) {
    focused(Gregorian);
    press(Gregorian, Qt::Key_End);
    EXPECT_EQ(dateIn(Gregorian), (Date{30, 11, 2026}));
    press(Gregorian, Qt::Key_Home);
    EXPECT_EQ(dateIn(Gregorian), (Date{1, 11, 2026}));
    EXPECT_EQ(current(Gregorian), QStringLiteral("1"));
    ChangeCals::LoadYear(Julian).Show();
    calls.clear();
    press(Gregorian, Qt::Key_Home);
    EXPECT_TRUE(takeCalls().empty());
    press(Gregorian, Qt::Key_Right);
    EXPECT_EQ(current(Gregorian), QStringLiteral("8"));
    press(Gregorian, Qt::Key_Home);
    EXPECT_EQ(current(Gregorian), QStringLiteral("1")) << "it is the day that is chosen";
    EXPECT_TRUE(takeCalls().empty());
}

// The weeks begin on Sundays; 7 and 14 November 2026 are Saturdays.
TEST_F(MonthKeys, UpAndDownGoFromDayToDayAlsoAcrossWeeks) {
    focused(Gregorian);
    press(Gregorian, Qt::Key_Home);
    for (int day = 2; day <= 30; ++day) {
        press(Gregorian, Qt::Key_Down);
        EXPECT_EQ(current(Gregorian), QString::number(day));
    }
    for (int day = 29; day >= 1; --day) {
        press(Gregorian, Qt::Key_Up);
        EXPECT_EQ(current(Gregorian), QString::number(day));
    }
}

// November 2026 begins on a Sunday, the first weekday, and ends on a Monday.
TEST_F(MonthKeys, ArrowsStayWithinTheMonth) {
    focused(Gregorian);
    press(Gregorian, Qt::Key_Home);
    press(Gregorian, Qt::Key_Left);
    press(Gregorian, Qt::Key_Up);
    EXPECT_EQ(current(Gregorian), QStringLiteral("1"));
    press(Gregorian, Qt::Key_Down);
    EXPECT_EQ(current(Gregorian), QStringLiteral("2"));
    press(Gregorian, Qt::Key_End);
    press(Gregorian, Qt::Key_Down);
    press(Gregorian, Qt::Key_Right);
    EXPECT_EQ(current(Gregorian), QStringLiteral("30"));
    EXPECT_EQ(dateIn(Gregorian), (Date{30, 11, 2026}));
    press(Gregorian, Qt::Key_Left);
    EXPECT_EQ(current(Gregorian), QStringLiteral("23"));
    EXPECT_EQ(dateIn(Gregorian), (Date{30, 11, 2026}));
}

TEST_F(MonthKeys, CtrlReturnOpensTheYear) {
    focused(Jewish);
    press(Jewish, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_TRUE(ChangeCals::LoadYear(Jewish).Visible());
    EXPECT_EQ(CurJD, 2461365);
}

// Focus

TEST_F(MonthKeys, F6GoesFromPaneToPane) {
    focused(Julian);
    const auto go = [](Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6, modifiers);
        return window().focusWidget()->objectName();
    };
    EXPECT_EQ(go(), QStringLiteral("MSFlexGrid1_2"));
    EXPECT_EQ(go(), QStringLiteral("MSFlexGrid1_3"));
    combo(1, Jewish).setFocus();
    EXPECT_EQ(go(), QStringLiteral("MSFlexGrid1_4"));
    EXPECT_EQ(go(), QStringLiteral("Combo6"));
    command(2).setFocus();
    EXPECT_EQ(go(), QStringLiteral("MSFlexGrid1_1"));
    EXPECT_EQ(go(Qt::ShiftModifier), QStringLiteral("Combo6"));
    EXPECT_EQ(go(Qt::ShiftModifier), QStringLiteral("MSFlexGrid1_4"));
    goTo(1800000); // before the Moslem calendar
    grid(Jewish).setFocus();
    EXPECT_EQ(go(), QStringLiteral("Combo1_4"));
}

TEST_F(MonthKeys, AListThatGoesBeyondTheRangeHandsItsFocusToTheChooser) {
    combo(2, Moslem).setFocus();
    goTo(1800000);
    EXPECT_EQ(window().focusWidget(), &combo(1, Moslem));
    goTo(2461365);
    combo(4, Gregorian).setFocus();
    goTo(2817300);
    EXPECT_EQ(window().focusWidget(), &combo(1, Gregorian));
}

TEST_F(MonthKeys, AGridThatGoesBeyondTheRangeHandsItsFocusToTheChooser) {
    focused(Moslem);
    goTo(1800000);
    EXPECT_EQ(window().focusWidget(), &combo(1, Moslem));
}

TEST_F(MonthKeys, TheMoonButtonInFrontHasTheFocusWhileTheWindowIsNotActive) {
    moonButton(MoonPhase).setFocus();
    Form other(QStringLiteral("other"));
    other.Show();
    ASSERT_TRUE(waitUntil([&other] { return other.isActiveWindow(); }));
    const int before = MoonPhase;
    goTo(CurJD + 10);
    ASSERT_NE(MoonPhase, before);
    EXPECT_EQ(window().focusWidget(), &moonButton(MoonPhase));
}

// Panes are exchanged before the user hears that this cannot be kept.
TEST_F(MonthKeys, AMessageThatNothingCanBeKeptStandsOverAWholeWindow) {
    QDir().mkpath(settingsPath()); // a folder in the file's place
    QStringList choosers;
    const MessageShown watch([&](const QMessageBox&) {
        for (int pane = 1; pane <= paneCount; ++pane)
            choosers.append(combo(1, pane).Text());
    });
    combo(1, 1).setFocus();
    QTest::keyClick(&combo(1, 1), Qt::Key_Down);
    EXPECT_EQ(m_messages.take().size(), 1);
    EXPECT_EQ(choosers.join(u' ').toStdString(),
              "Gregorian calendar Julian calendar Jewish calendar Moslem calendar");
}

} // namespace
