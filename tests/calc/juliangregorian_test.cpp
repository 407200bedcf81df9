// SPDX-License-Identifier: MIT
#include "calc/calc_test.h"

#include <chrono>

namespace {

class Roman : public StateTest {};

Date gregorianOfJulian(Date date) {
    enter(Julian, date);
    Calc::JulianToGregorian();
    return dateIn(Gregorian);
}

TEST_F(Roman, FebruaryIsThirtyUntilAYearIsChosen) {
    EXPECT_EQ(MonthDays(Julian, 2), 30);
    EXPECT_EQ(MonthDays(Gregorian, 2), 30);
    goToJD(2451545);
    EXPECT_EQ(MonthDays(Julian, 2), 28); // still 1999
    EXPECT_EQ(MonthDays(Gregorian, 2), 29);
}

TEST_F(Roman, JulianDayOfTheFirstJanuaryOfYearOne) {
    EXPECT_EQ(Calc::JulianJD(1, 1, 1), 1721424);
    goToJD(1721424);
    EXPECT_EQ(dateIn(Julian), (Date{1, 1, 1}));
    EXPECT_EQ(CurDate(Julian, DayNumber), 1);
}

TEST_F(Roman, JulianFormulaIsOneDayHighAtTheStartOfYearZero) {
    EXPECT_EQ(Calc::JulianJD(1, 1, 0), 1721059);
}

TEST_F(Roman, LastDayOfFourYears) {
    goToJD(1721423 + 1461);
    EXPECT_EQ(dateIn(Julian), (Date{31, 12, 4}));
    EXPECT_EQ(CurDate(Julian, DayNumber), 366);
}

TEST_F(Roman, LeapDayOf1900IsJulianOnly) {
    EXPECT_EQ(enter(Gregorian, {29, 2, 1900}), (Date{28, 2, 1900}));
    EXPECT_EQ(enter(Julian, {29, 2, 1900}), (Date{29, 2, 1900}));
}

TEST_F(Roman, DaysBeyondAMonthBecomeItsLast) {
    EXPECT_EQ(enter(Julian, {31, 4, 1500}), (Date{30, 4, 1500}));
    EXPECT_EQ(enter(Julian, {31, 2, 1500}), (Date{29, 2, 1500}));
    EXPECT_EQ(enter(Julian, {31, 2, 1501}), (Date{28, 2, 1501}));
    EXPECT_EQ(enter(Gregorian, {31, 2, 2000}), (Date{29, 2, 2000}));
}

TEST_F(Roman, DifferenceChangesAfterFebruary1900) {
    EXPECT_EQ(gregorianOfJulian({19, 2, 1900}), (Date{3, 3, 1900}));
    EXPECT_EQ(gregorianOfJulian({1, 3, 1900}), (Date{14, 3, 1900}));
}

// From the year 4200 on the calendars can be more than a month apart.
TEST_F(Roman, TheGregorianDateIsRightAsFarAsClocksGo) {
    for (int julianDay = 2817153; julianDay <= 5373484; julianDay += 3) {
        const std::chrono::sys_days day{std::chrono::days(julianDay - 2440588)};
        const std::chrono::year_month_day date{day};
        goToJD(julianDay);
        ASSERT_EQ(dateIn(Gregorian),
                  (Date{static_cast<int>(unsigned(date.day())),
                        static_cast<int>(unsigned(date.month())), int(date.year())}))
            << julianDay;
    }
}

TEST_F(Roman, GregorianYearBeginsWhileTheJulianIsStillInDecember) {
    EXPECT_EQ(gregorianOfJulian({25, 12, 2000}), (Date{7, 1, 2001}));
}

TEST_F(Roman, GregorianReformDay) {
    EXPECT_EQ(gregorianOfJulian({5, 10, 1582}), (Date{15, 10, 1582}));
}

TEST_F(Roman, EndsOfTheGregorianRange) {
    enter(Gregorian, {1, 1, 1});
    EXPECT_EQ(CurJD, 1721426);
    enter(Gregorian, {31, 12, 3000});
    EXPECT_EQ(CurJD, 2817152);
}

TEST_F(Roman, FirstOfJanuary2000IsASaturday) {
    enter(Gregorian, {1, 1, 2000});
    EXPECT_EQ(CurJD, 2451545);
    EXPECT_EQ(MonthDays(Gregorian, weekdayRow + 1), Saturday);
}

TEST_F(Roman, DaysBeforeYearOneHaveNoDateButDoNoHarm) {
    for (int julianDay = 1721319; julianDay <= 1721423; ++julianDay) {
        goToJD(julianDay);
        ASSERT_EQ(dateIn(Julian), (Date{31, 12, 0})) << julianDay;
        ASSERT_EQ(dateIn(Gregorian), (Date{29, 12, 0})) << julianDay;
        ASSERT_EQ(CurDate(Jewish, Year), 3761) << julianDay;
        ASSERT_TRUE(invariantsHold(Jewish)) << julianDay;
    }
}

TEST_F(Roman, FirstTwoJulianDaysAreGregorianYearZero) {
    goToJD(1721424);
    EXPECT_EQ(dateIn(Gregorian), (Date{30, 12, 0}));
    goToJD(1721425);
    EXPECT_EQ(dateIn(Gregorian), (Date{31, 12, 0}));
}

TEST_F(Roman, JulianFormulaCountsFebruaryToTheYearBefore) {
    EXPECT_EQ(Calc::JulianJD(29, 2, 1900), 2415092); // 13 March 1900 Gregorian
    EXPECT_EQ(Calc::JulianJD(1, 3, 1900), 2415093);
}

} // namespace
