// SPDX-License-Identifier: MIT
#include "calc/calc_test.h"

#include <cstdlib>

namespace {

class JewishCalendar : public StateTest {};

// What applying a language does: it writes twelve names and leaves month 13.
void applyNames(const Table<std::string, 12>& names) {
    for (int month = 1; month <= 12; ++month)
        MonthNames(Jewish, month) = names(month);
    AdarName = MonthNames(Jewish, 6);
    Calc::ArrangeJewishNames();
}

// The same days under whatever names: two leap years, common years before,
// between and after them.
void expectDatesOfLeapAndCommonYears(const std::string& names) {
    const struct {
        int julianDay;
        Date date;
    } rows[] = {{2460394, {14, 7, 5784}}, {2460440, {1, 9, 5784}},   {2460806, {12, 8, 5785}},
                {2460440, {1, 9, 5784}},  {2460168, {24, 11, 5783}}, {2461471, {27, 6, 5787}},
                {2461502, {28, 7, 5787}}, {2461680, {29, 13, 5787}}};
    for (const auto& row : rows) {
        goToJD(row.julianDay);
        EXPECT_EQ(dateIn(Jewish), row.date) << names << ", " << row.julianDay;
        EXPECT_TRUE(invariantsHold(Jewish)) << names << ", " << row.julianDay;
        EXPECT_EQ(MonthDays(Jewish, 13), JewishLeap ? 29 : 0) << names << ", " << row.julianDay;
        EXPECT_EQ(enter(Jewish, row.date), row.date) << names;
        EXPECT_EQ(CurJD, row.julianDay) << names;
    }
}

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
    enter(Jewish, {1, 13, 5763});
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
    EXPECT_EQ(enter(Jewish, {5, 13, 5762}), (Date{5, 12, 5762}));
    EXPECT_EQ(MonthNames(Jewish, 12), "Elul");
    EXPECT_EQ(MonthDays(Jewish, 13), 0);
    EXPECT_FALSE(JewishLeap);
}

TEST_F(JewishCalendar, MonthThirteenIsReplacedBeforeTheDayIsClamped) {
    EXPECT_EQ(enter(Jewish, {30, 13, 5762}), (Date{29, 12, 5762}));
}

TEST_F(JewishCalendar, AdarIsNamedOnceHoweverOftenTheLayoutChanges) {
    for (int round = 0; round < 3; ++round) {
        enter(Jewish, {1, 1, 5763});
        EXPECT_EQ(MonthNames(Jewish, 6), "Adar I");
        EXPECT_EQ(MonthNames(Jewish, 7), "Adar II");
        EXPECT_EQ(MonthNames(Jewish, 8), "Nisan");
        enter(Jewish, {1, 1, 5762});
        EXPECT_EQ(MonthNames(Jewish, 6), "Adar");
        EXPECT_EQ(MonthNames(Jewish, 7), "Nisan");
        EXPECT_EQ(MonthNames(Jewish, 13), "");
    }
}

TEST_F(JewishCalendar, ChangingTheYearKeepsTheMonthNumber) {
    enter(Jewish, {1, 8, 5784});
    EXPECT_EQ(MonthNames(Jewish, 8), "Nisan");
    CurDate(Jewish, Year) = 5785;
    Calc::JewishToJD();
    EXPECT_EQ(CurDate(Jewish, Month), 8);
    EXPECT_EQ(MonthNames(Jewish, 8), "Iyar");
}

TEST_F(JewishCalendar, ThirtiethOfAdarInAYearWhoseAdarHas29Days) {
    EXPECT_EQ(enter(Jewish, {30, 6, 5762}), (Date{29, 6, 5762}));
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
    enter(Jewish, {1, 1, 5762});
    const auto lengths = MonthDays;
    for (const int days : {352, 356, 382}) {
        YearDays(Jewish, DaysInYear) = days;
        Calc::SetJewishMonths();
        EXPECT_EQ(MonthDays, lengths) << days;
    }
}

TEST_F(JewishCalendar, ArrangingNewNamesKeepsEveryNumber) {
    for (const int year : {5763, 5784, 5762}) {
        enter(Jewish, {14, 7, year});
        const StateSnapshot before;
        for (int round = 0; round < 3; ++round) {
            const std::string last = MonthNames(Jewish, 13);
            setJewishNames();
            MonthNames(Jewish, 13) = last; // the texts of a language have none
            Calc::ArrangeJewishNames();
            EXPECT_EQ(StateSnapshot{}, before) << year;
        }
        EXPECT_EQ(MonthNames(Jewish, 6), year == 5762 ? "Adar" : "Adar I");
    }
    enter(Jewish, {1, 1, 5762});
    EXPECT_EQ(YearDays(Jewish, DaysInYear), 354);
    EXPECT_TRUE(invariantsHold(Jewish));
}

TEST_F(JewishCalendar, NoNameTouchesALength) {
    for (int blank = 1; blank <= 12; ++blank) {
        resetState();
        goToJD(2460394);
        Table<std::string, 12> names = commonNames();
        names(blank).clear();
        applyNames(names);
        expectDatesOfLeapAndCommonYears("month " + std::to_string(blank) + " blank");
        applyNames(commonNames());
        expectDatesOfLeapAndCommonYears("month " + std::to_string(blank) + " named again");
    }
}

TEST_F(JewishCalendar, BlankNamesTouchNoLength) {
    for (const int julianDay : {2460394, 2460806}) {
        resetState();
        goToJD(julianDay);
        applyNames({});
        expectDatesOfLeapAndCommonYears("all blank");
        applyNames(commonNames());
        expectDatesOfLeapAndCommonYears("all named again");
    }
}

TEST_F(JewishCalendar, AnUnnamedLastMonthLeavesTheOthersTheirNames) {
    Table<std::string, 12> names = commonNames();
    names(12).clear();
    goToJD(2460394);
    applyNames(names);
    goToJD(2460806);
    EXPECT_EQ(MonthNames(Jewish, 6), "Adar");
    EXPECT_EQ(MonthNames(Jewish, 7), "Nisan");
    EXPECT_EQ(MonthNames(Jewish, 11), "Av");
    EXPECT_EQ(MonthNames(Jewish, 12), "");
    goToJD(2460394);
    EXPECT_EQ(MonthNames(Jewish, 7), "Adar II");
    EXPECT_EQ(MonthNames(Jewish, 12), "Av");
}

TEST_F(JewishCalendar, ALeapYearOfNoLegalLengthLeavesTheLengths) {
    enter(Jewish, {1, 1, 5763}); // 385 days: Heshvan has 30
    const auto lengths = MonthDays;
    YearDays(Jewish, DaysInYear) = 386;
    Calc::SetJewishMonths();
    EXPECT_EQ(MonthDays, lengths);
}

// In a process of its own, which nothing has set back.
TEST(JewishCalendarDeathTest, AProgramBeginsInTheLayoutOfACommonYear) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(std::exit(JewishLeap ? 1 : 0), testing::ExitedWithCode(0), "");
}

} // namespace
