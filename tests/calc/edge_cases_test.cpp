// SPDX-License-Identifier: MIT
#include "support/state.h"

namespace {

class Roman : public StateTest {};
class JewishCalendar : public StateTest {};
class MoslemCalendar : public StateTest {};
class Weeks : public StateTest {};
class Tables : public testing::Test {};

void goToJD(int julianDay) {
    CurJD = julianDay;
    Calc::JDToJulian();
    Calc::JulianToGregorian();
    Calc::JDToJewish();
    Calc::JDToMoslem();
}

Date enterJulian(Date date) {
    setDate(Julian, date.day, date.month, date.year);
    Calc::JulianToJD();
    return dateIn(Julian);
}

Date enterGregorian(Date date) {
    setDate(Gregorian, date.day, date.month, date.year);
    Calc::GregorianToJD();
    return dateIn(Gregorian);
}

Date gregorianOfJulian(Date date) {
    enterJulian(date);
    Calc::JulianToGregorian();
    return dateIn(Gregorian);
}

Date enterJewish(Date date) {
    setDate(Jewish, date.day, date.month, date.year);
    Calc::JewishToJD();
    return dateIn(Jewish);
}

Date enterMoslem(Date date) {
    setDate(Moslem, date.day, date.month, date.year);
    Calc::MoslemToJD();
    return dateIn(Moslem);
}

// Tables

TEST_F(Tables, BeginAtOne) {
    Table<int, 2, 2> table{1, 2, 3, 4};
    EXPECT_EQ(table(1, 1), 1);
    EXPECT_EQ(table(1, 2), 2);
    EXPECT_EQ(table(2, 1), 3);
    EXPECT_EQ(table(2, 2), 4);
}

TEST_F(Tables, OutsideTheirBoundsReadAsNothingAndTakeNothing) {
    Table<int, 2, 2> table{1, 2, 3, 4};
    const Table<int, 2, 2> before = table;
    for (const int index : {-1, 0, 3}) {
        table(index, 1) = 9;
        table(1, index) = 9;
        EXPECT_EQ(table(index, 1), 0);
        EXPECT_EQ(before(1, index), 0);
    }
    EXPECT_EQ(table, before);
}

TEST_F(Tables, ReportAccessOutsideTheirBounds) {
    static int reported;
    reported = 0;
    onOutOfBounds = [](int, int) { ++reported; };
    const Table<int, 3> table;
    static_cast<void>(table(0));
    static_cast<void>(table(4));
    static_cast<void>(table(3));
    onOutOfBounds = nullptr;
    EXPECT_EQ(reported, 2);
}

TEST_F(Roman, FebruaryIsThirtyUntilAYearIsChosen) {
    EXPECT_EQ(MonthDays(Julian, 2), 30);
    EXPECT_EQ(MonthDays(Gregorian, 2), 30);
    goToJD(2451545);
    EXPECT_EQ(MonthDays(Julian, 2), 28); // still 1999
    EXPECT_EQ(MonthDays(Gregorian, 2), 29);
}

// Julian and Gregorian

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
    EXPECT_EQ(enterGregorian({29, 2, 1900}), (Date{28, 2, 1900}));
    EXPECT_EQ(enterJulian({29, 2, 1900}), (Date{29, 2, 1900}));
}

TEST_F(Roman, DaysBeyondAMonthBecomeItsLast) {
    EXPECT_EQ(enterJulian({31, 4, 1500}), (Date{30, 4, 1500}));
    EXPECT_EQ(enterJulian({31, 2, 1500}), (Date{29, 2, 1500}));
    EXPECT_EQ(enterJulian({31, 2, 1501}), (Date{28, 2, 1501}));
    EXPECT_EQ(enterGregorian({31, 2, 2000}), (Date{29, 2, 2000}));
}

TEST_F(Roman, DifferenceChangesAfterFebruary1900) {
    EXPECT_EQ(gregorianOfJulian({19, 2, 1900}), (Date{3, 3, 1900}));
    EXPECT_EQ(gregorianOfJulian({1, 3, 1900}), (Date{14, 3, 1900}));
}

TEST_F(Roman, GregorianYearBeginsWhileTheJulianIsStillInDecember) {
    EXPECT_EQ(gregorianOfJulian({25, 12, 2000}), (Date{7, 1, 2001}));
}

TEST_F(Roman, GregorianReformDay) {
    EXPECT_EQ(gregorianOfJulian({5, 10, 1582}), (Date{15, 10, 1582}));
}

TEST_F(Roman, EndsOfTheGregorianRange) {
    enterGregorian({1, 1, 1});
    EXPECT_EQ(CurJD, 1721426);
    enterGregorian({31, 12, 3000});
    EXPECT_EQ(CurJD, 2817152);
}

TEST_F(Roman, FirstOfJanuary2000IsASaturday) {
    enterGregorian({1, 1, 2000});
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

// Months and weeks

TEST_F(Roman, DayToMonthStopsAfterTheThirteenthMonth) {
    goToJD(2451545);
    int month = 0;
    int day = 400;
    Calc::DayToMonth(Gregorian, month, day);
    EXPECT_EQ(month, 14);
    EXPECT_EQ(day, 400 - 366);
}

TEST_F(Roman, DayOfYearAndBack) {
    goToJD(2451545);
    EXPECT_EQ(Calc::DayOfYear(Gregorian, 3, 1), 61);
    int month = 0;
    int day = 61;
    Calc::DayToMonth(Gregorian, month, day);
    EXPECT_EQ((Date{day, month, 2000}), (Date{1, 3, 2000}));
}

TEST_F(Weeks, Of2000WithMondayFirst) {
    FirstWeekDay(Gregorian) = Monday;
    enterGregorian({1, 1, 2000});
    EXPECT_EQ(YearDays(Gregorian, WeeksInYear), 53);
    EXPECT_EQ(CurDate(Gregorian, WeekNumber), 1);
    enterGregorian({3, 1, 2000});
    EXPECT_EQ(CurDate(Gregorian, WeekNumber), 2);
}

TEST_F(Weeks, Of2000WithSundayAndSaturdayFirst) {
    enterGregorian({31, 12, 2000});
    EXPECT_EQ(YearDays(Gregorian, WeeksInYear), 54);
    EXPECT_EQ(CurDate(Gregorian, WeekNumber), 54);
    FirstWeekDay(Gregorian) = Saturday;
    Calc::SetWeeks(Gregorian);
    EXPECT_EQ(YearDays(Gregorian, WeeksInYear), 53);
}

TEST_F(Weeks, StoredFirstWeekdaysOutsideTheWeekCountInSevens) {
    const struct {
        int stored;
        int weekday;
    } rows[] = {{1, 1}, {7, 7}, {0, 7}, {8, 1}, {9, 2}, {-3, 4}, {32767, 7}, {-32768, 6}};
    for (const auto& row : rows) {
        FirstWeekDay(Julian) = row.stored;
        EXPECT_EQ(Calc::WeekStart(Julian), row.weekday) << row.stored;
    }
}

// Jewish

TEST_F(JewishCalendar, NewYearOf5761) {
    EXPECT_EQ(Calc::JewishNewYear(5761), 2451818);
    goToJD(2451818);
    EXPECT_EQ(dateIn(Jewish), (Date{1, 1, 5761}));
    EXPECT_EQ(YearDays(Jewish, DaysInYear), 353);
    EXPECT_EQ(MonthDays(Jewish, 2), 29);
    EXPECT_EQ(MonthDays(Jewish, 3), 29);
}

TEST_F(JewishCalendar, EndsOfTheRange) {
    EXPECT_EQ(Calc::JewishNewYear(3761), 1721319);
    EXPECT_EQ(Calc::JewishNewYear(6762) - 1, 2817404);
    goToJD(1721319);
    EXPECT_EQ(dateIn(Jewish), (Date{1, 1, 3761}));
}

TEST_F(JewishCalendar, LeapYear5763HasThirteenMonths) {
    enterJewish({1, 13, 5763});
    EXPECT_EQ(dateIn(Jewish), (Date{1, 13, 5763}));
    EXPECT_EQ(YearDays(Jewish, DaysInYear), 385);
    EXPECT_EQ(MonthDays(Jewish, 6), 30);
    EXPECT_EQ(MonthDays(Jewish, 7), 29);
    EXPECT_EQ(MonthDays(Jewish, 13), 29);
    EXPECT_EQ(MonthNames(Jewish, 13), "Elul");
    EXPECT_TRUE(JewishLeap);
    EXPECT_EQ(Calc::MonthsInYear(Jewish), 13);
}

TEST_F(JewishCalendar, MonthThirteenOfACommonYearIsElul) {
    EXPECT_EQ(enterJewish({5, 13, 5762}), (Date{5, 12, 5762}));
    EXPECT_EQ(MonthNames(Jewish, 12), "Elul");
    EXPECT_EQ(MonthDays(Jewish, 13), 0);
    EXPECT_FALSE(JewishLeap);
}

TEST_F(JewishCalendar, MonthThirteenIsReplacedBeforeTheDayIsClamped) {
    EXPECT_EQ(enterJewish({30, 13, 5762}), (Date{29, 12, 5762}));
}

TEST_F(JewishCalendar, AdarIsNamedOnceHoweverOftenTheLayoutChanges) {
    for (int round = 0; round < 3; ++round) {
        enterJewish({1, 1, 5763});
        EXPECT_EQ(MonthNames(Jewish, 6), "Adar I");
        EXPECT_EQ(MonthNames(Jewish, 7), "Adar II");
        EXPECT_EQ(MonthNames(Jewish, 8), "Nisan");
        enterJewish({1, 1, 5762});
        EXPECT_EQ(MonthNames(Jewish, 6), "Adar");
        EXPECT_EQ(MonthNames(Jewish, 7), "Nisan");
        EXPECT_EQ(MonthNames(Jewish, 13), "");
    }
}

TEST_F(JewishCalendar, ChangingTheYearKeepsTheMonthNumber) {
    enterJewish({1, 8, 5784});
    EXPECT_EQ(MonthNames(Jewish, 8), "Nisan");
    CurDate(Jewish, Year) = 5785;
    Calc::JewishToJD();
    EXPECT_EQ(CurDate(Jewish, Month), 8);
    EXPECT_EQ(MonthNames(Jewish, 8), "Iyar");
}

TEST_F(JewishCalendar, ThirtiethOfAdarInAYearWhoseAdarHas29Days) {
    EXPECT_EQ(enterJewish({30, 6, 5762}), (Date{29, 6, 5762}));
}

TEST_F(JewishCalendar, LengthsOfTheSixKindsOfYear) {
    const struct {
        int days, heshvan, kislev, sixth, seventh, thirteenth;
    } rows[] = {{353, 29, 29, 29, 30, 0},  {354, 29, 30, 29, 30, 0},  {355, 30, 30, 29, 30, 0},
                {383, 29, 29, 30, 29, 29}, {384, 29, 30, 30, 29, 29}, {385, 30, 30, 30, 29, 29}};
    for (const auto& row : rows) {
        YearDays(Jewish, DaysInYear) = row.days;
        Calc::SetJewishMonths();
        EXPECT_EQ(MonthDays(Jewish, 2), row.heshvan) << row.days;
        EXPECT_EQ(MonthDays(Jewish, 3), row.kislev) << row.days;
        EXPECT_EQ(MonthDays(Jewish, 6), row.sixth) << row.days;
        EXPECT_EQ(MonthDays(Jewish, 7), row.seventh) << row.days;
        EXPECT_EQ(MonthDays(Jewish, 13), row.thirteenth) << row.days;
        EXPECT_EQ(Calc::DayOfYear(Jewish, 14, 0), row.days);
    }
}

TEST_F(JewishCalendar, AYearOfNoLegalLengthLeavesTheLengths) {
    enterJewish({1, 1, 5762});
    const auto lengths = MonthDays;
    for (const int days : {352, 356, 382}) {
        YearDays(Jewish, DaysInYear) = days;
        Calc::SetJewishMonths();
        EXPECT_EQ(MonthDays, lengths) << days;
    }
}

TEST_F(JewishCalendar, ResettingTheLayoutForNewNamesKeepsEveryNumber) {
    for (const int year : {5763, 5784, 5762}) {
        enterJewish({14, 7, year});
        const StateSnapshot before;
        for (int round = 0; round < 3; ++round) {
            const std::string last = MonthNames(Jewish, 13);
            setJewishNames();
            MonthNames(Jewish, 13) = last; // loading a language leaves month 13 alone
            Calc::ResetJewishLayout();
            Calc::SetJewishMonths();
            EXPECT_EQ(StateSnapshot{}, before) << year;
        }
        EXPECT_EQ(MonthNames(Jewish, 6), year == 5762 ? "Adar" : "Adar I");
    }
    enterJewish({1, 1, 5762});
    EXPECT_EQ(YearDays(Jewish, DaysInYear), 354);
    EXPECT_TRUE(invariantsHold(Jewish));
}

// Moslem

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
    EXPECT_EQ(enterMoslem({30, 12, 2}), (Date{30, 12, 2}));
    EXPECT_EQ(YearDays(Moslem, DaysInYear), 355);
    EXPECT_EQ(enterMoslem({30, 12, 3}), (Date{29, 12, 3}));
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
        enterMoslem({29, 12, year});
        EXPECT_GT(outside, 0) << year;
        EXPECT_EQ(YearDays(Moslem, DaysInYear), 0) << year;
    }
    onOutOfBounds = nullptr;
    EXPECT_EQ(MoslemCycle, cycle);
}

} // namespace
