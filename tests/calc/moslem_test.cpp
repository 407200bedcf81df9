// SPDX-License-Identifier: MIT
#include "calc/calc_test.h"

namespace {

class MoslemCalendar : public StateTest {};

TEST_F(MoslemCalendar, ErasOfTheTwoVariants) {
    goToJD(1948439);
    EXPECT_EQ(dateIn(Moslem), (Date{1, 1, 1}));
    resetState(2);
    goToJD(1948440);
    EXPECT_EQ(dateIn(Moslem), (Date{1, 1, 1}));
    goToJD(1948439);
    EXPECT_TRUE(Calc::IsBeforeRange(Moslem));
}

TEST_F(MoslemCalendar, CycleHas10631DaysInBothVariants) {
    for (const int type : {1, 2, 7}) {
        resetState(type);
        int days = 0;
        for (int year = 1; year <= 30; ++year)
            days += MoslemCycle(year);
        EXPECT_EQ(days, 10631);
        EXPECT_EQ(MoslemCycle(15), type == 1 ? 355 : 354);
        EXPECT_EQ(MoslemCycle(16), type == 1 ? 354 : 355);
    }
}

TEST_F(MoslemCalendar, LastMonthHas30DaysInALongYearOnly) {
    EXPECT_EQ(enter(Moslem, {30, 12, 2}), (Date{30, 12, 2}));
    EXPECT_EQ(YearDays(Moslem, DaysInYear), 355);
    EXPECT_EQ(enter(Moslem, {30, 12, 3}), (Date{29, 12, 3}));
    EXPECT_EQ(YearDays(Moslem, DaysInYear), 354);
}

TEST_F(MoslemCalendar, EndsOfTheRangeInBothVariants) {
    for (const int type : {1, 2}) {
        resetState(type);
        goToJD(MaxJD(Moslem));
        EXPECT_EQ(CurDate(Moslem, Year), 2452);
        EXPECT_EQ(CurJD, YearJD(Moslem, LastDay));
    }
}

TEST_F(MoslemCalendar, TheDayStaysAndItsDateMovesWhenTheVariantChanges) {
    goToJD(2451545);
    EXPECT_EQ(dateIn(Moslem), (Date{25, 9, 1420}));
    MoslemType = 2;
    Calc::SetMoslemType();
    Calc::JDToMoslem();
    EXPECT_EQ(CurJD, 2451545);
    EXPECT_EQ(dateIn(Moslem), (Date{24, 9, 1420}));
}

TEST_F(MoslemCalendar, DaysBeforeTheEraStayInsideTheTables) {
    for (const int type : {1, 2}) {
        resetState(type);
        for (int julianDay = 1721319; julianDay < MinJD(Moslem); ++julianDay) {
            goToJD(julianDay);
            ASSERT_LE(CurDate(Moslem, Year), 0) << julianDay;
            ASSERT_GE(CurDate(Moslem, Month), 1) << julianDay;
            ASSERT_LE(CurDate(Moslem, Month), 12) << julianDay;
        }
    }
}

TEST(MoslemCalendarYearZero, IsReadOutsideTheCycleWithoutHarm) {
    static int outside;
    resetState();
    const auto cycle = MoslemCycle;
    onOutOfBounds = [](int, int) { ++outside; };
    for (const int year : {0, -1, -28}) {
        outside = 0;
        enter(Moslem, {29, 12, year});
        EXPECT_GT(outside, 0) << year;
        EXPECT_EQ(YearDays(Moslem, DaysInYear), 0) << year;
    }
    onOutOfBounds = nullptr;
    EXPECT_EQ(MoslemCycle, cycle);
}

TEST_F(MoslemCalendar, DaysBeforeTheEraAreTheLastOfYearZero) {
    for (const int julianDay : {1948438, 1938000}) {
        goToJD(julianDay);
        EXPECT_EQ(dateIn(Moslem), (Date{29, 12, 0})) << julianDay;
        EXPECT_EQ(CurDate(Moslem, DayNumber), 354) << julianDay;
        EXPECT_EQ(YearJD(Moslem, LastDay), julianDay);
    }
}

} // namespace
