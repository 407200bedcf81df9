// SPDX-License-Identifier: MIT
#include "monthly/monthly_test.h"

namespace {

class TypedNumbers : public MonthlyTest {};

TEST_F(TypedNumbers, ATypedYearKeepsTheDay) {
    setDate(Gregorian, 29, 2, 2024);
    ChangeCals::ChangeCal(Gregorian);
    ChangeCals::LoadYear(Julian).Show();
    window().activateWindow();
    combo(2, 2).setFocus();
    calls.clear();
    QTest::keyClicks(&combo(2, 2), QStringLiteral("2028"));
    EXPECT_EQ(dateIn(Gregorian), (Date{29, 2, 2028}));
    EXPECT_EQ(takeCalls(), std::vector<std::string>{"year1.ShowYear"});
    expectPanesShowTheState();
}

TEST_F(TypedNumbers, ATypedMonthKeepsTheDay) {
    setDate(Gregorian, 31, 3, 2026);
    ChangeCals::ChangeCal(Gregorian);
    QTest::keyClicks(&combo(3, 2), QStringLiteral("12"));
    EXPECT_EQ(dateIn(Gregorian), (Date{31, 12, 2026}));
}

TEST_F(TypedNumbers, ATypedDayOrWeekIsThatOfTheListsEntry) {
    setDate(Gregorian, 31, 12, 2026); // Thursday of week 53
    ChangeCals::ChangeCal(Gregorian);
    QTest::keyClicks(&combo(5, 2), QStringLiteral("45"));
    EXPECT_EQ(dateIn(Gregorian), (Date{5, 11, 2026}));
    QTest::keyClicks(&combo(4, 2), QStringLiteral("118"));
    EXPECT_EQ(dateIn(Gregorian), (Date{28, 4, 2026}));
    expectPanesShowTheState();
}

TEST_F(TypedNumbers, AShorterTypedNumberStaysAloneUntilItIsChosen) {
    const int before = CurJD;
    ComboBox& months = combo(3, 2);
    QTest::keyClicks(&months, QStringLiteral("1"));
    EXPECT_EQ(months.Text(), QStringLiteral("1/12  January"));
    EXPECT_EQ(CurJD, before);
    QTest::keyClick(&months, Qt::Key_Return);
    EXPECT_EQ(dateIn(Gregorian), (Date{20, 1, 2026}));
    expectPanesShowTheState();
}

TEST_F(TypedNumbers, AnotherDayTakesThePlaceOfATypedNumber) {
    combo(2, 2).setFocus();
    QTest::keyClicks(&combo(2, 2), QStringLiteral("19"));
    goTo(2451545);
    expectPanesShowTheState();
    QTest::keyClick(&combo(2, 2), Qt::Key_Return);
    EXPECT_EQ(CurJD, 2451545);
}

} // namespace
