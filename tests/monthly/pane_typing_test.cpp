// SPDX-License-Identifier: MIT
#include "monthly/monthly_test.h"

#include <utility>

namespace {

class TypedNumbers : public MonthlyTest {};

TEST_F(TypedNumbers, ATypedYearKeepsTheDay) {
    setDate(Gregorian, 29, 2, 2024);
    ChangeCals::ChangeCal(Gregorian);
    ChangeCals::LoadYear(Julian).Show();
    window().activateWindow();
    combo(2, 2).setFocus();
    calls.clear();
    for (const auto& [digit, date] :
         {std::pair('2', Date{28, 2, 2}), {'0', {29, 2, 20}}, {'2', {28, 2, 202}}}) {
        QTest::keyClick(&combo(2, 2), digit);
        EXPECT_EQ(dateIn(Gregorian), date);
        EXPECT_EQ(takeCalls(), std::vector<std::string>{"year1.ShowYear"});
        expectPanesShowTheState();
    }
    QTest::keyClick(&combo(2, 2), '8');
    EXPECT_EQ(dateIn(Gregorian), (Date{29, 2, 2028}));
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

TEST_F(TypedNumbers, TheFirstDigitOfAMonthGoesThereAndTheNextIsMeasuredFromTheFirstDay) {
    setDate(Gregorian, 31, 12, 2026);
    ChangeCals::ChangeCal(Gregorian);
    QTest::keyClicks(&combo(3, 2), QStringLiteral("1"));
    EXPECT_EQ(dateIn(Gregorian), (Date{31, 1, 2026}));
    expectPanesShowTheState();
    QTest::keyClicks(&combo(3, 2), QStringLiteral("2"));
    EXPECT_EQ(dateIn(Gregorian), (Date{31, 12, 2026})) << "where the typing began";
    expectPanesShowTheState();
}

TEST_F(TypedNumbers, ALeapYearOfTheJewishCalendarIsTypedFromItsLastMonths) {
    setDate(Jewish, 30, 7, 5787); // 30 days in Adar I of a leap year
    ChangeCals::ChangeCal(Jewish);
    QTest::keyClicks(&combo(3, 3), QStringLiteral("13"));
    EXPECT_EQ(dateIn(Jewish), (Date{29, 13, 5787}));
    QTest::keyClicks(&combo(3, 3), QStringLiteral("0"));
    EXPECT_EQ(m_beeps, 1);
    EXPECT_EQ(dateIn(Jewish), (Date{29, 13, 5787}));
    expectPanesShowTheState();
}

TEST_F(TypedNumbers, AWeekThatStopsAtTheYearsFirstDayOnTheWayKeepsTheWeekday) {
    setDate(Gregorian, 18, 11, 2026); // a Wednesday; the year begins on a Thursday
    ChangeCals::ChangeCal(Gregorian);
    QTest::keyClicks(&combo(5, 2), QStringLiteral("1"));
    EXPECT_EQ(dateIn(Gregorian), (Date{1, 1, 2026}));
    QTest::keyClicks(&combo(5, 2), QStringLiteral("2"));
    EXPECT_EQ(dateIn(Gregorian), (Date{18, 3, 2026}));
    expectPanesShowTheState();
}

TEST_F(TypedNumbers, AYearIsTypedAcrossTheBeginningsOfOtherCalendars) {
    QTest::keyClicks(&combo(2, 2), QStringLiteral("2"));
    EXPECT_FALSE(combo(2, 4).isVisible()) << "no Moslem year yet";
    QTest::keyClicks(&combo(2, 2), QStringLiteral("027"));
    EXPECT_EQ(dateIn(Gregorian), (Date{20, 11, 2027}));
    expectPanesShowTheState();
}

TEST_F(TypedNumbers, ACommandBetweenTwoDigitsBeginsAnew) {
    setDate(Gregorian, 30, 3, 2026);
    ChangeCals::ChangeCal(Gregorian);
    combo(3, 2).setFocus();
    QTest::keyClick(&combo(3, 2), '1');
    EXPECT_EQ(dateIn(Gregorian), (Date{30, 1, 2026}));
    QTest::keyClick(&combo(3, 2), Qt::Key_T, Qt::ControlModifier);
    EXPECT_EQ(CurJD, 2461365);
    QTest::keyClick(&combo(3, 2), '2');
    EXPECT_EQ(dateIn(Gregorian), (Date{20, 2, 2026})) << "neither December nor the 28th";
    expectPanesShowTheState();
}

TEST_F(TypedNumbers, AnotherDayBetweenTwoDigitsBeginsAnew) {
    QTest::keyClick(&combo(3, 2), '1');
    goTo(2451545); // 1 January 2000, which the list shows by the same entry
    QTest::keyClick(&combo(3, 2), '2');
    EXPECT_EQ(dateIn(Gregorian), (Date{1, 2, 2000}));
    expectPanesShowTheState();
}

TEST_F(TypedNumbers, AKeyAfterANumberIsMeasuredFromTheNumbersDay) {
    setDate(Gregorian, 31, 3, 2026);
    ChangeCals::ChangeCal(Gregorian);
    QTest::keyClick(&combo(3, 2), '2');
    EXPECT_EQ(dateIn(Gregorian), (Date{28, 2, 2026}));
    QTest::keyClick(&combo(3, 2), Qt::Key_Down);
    EXPECT_EQ(dateIn(Gregorian), (Date{28, 3, 2026}));
}

} // namespace
