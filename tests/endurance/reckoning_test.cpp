// SPDX-License-Identifier: MIT
#include "endurance/reckoning.h"

#include "shared/calendars.h"

#include <gtest/gtest.h>

namespace {

using Date = Reckoning::Date;

struct Known {
    int c;
    int type;
    Date date;
    int julianDay;
};

class KnownDays : public testing::TestWithParam<Known> {};

TEST_P(KnownDays, LeadBothWays) {
    const Known& known = GetParam();
    const Reckoning reckoning(known.type);
    EXPECT_EQ(reckoning.DayOf(known.c, known.date), known.julianDay);
    EXPECT_EQ(reckoning.DateOf(known.c, known.julianDay), known.date);
}

INSTANTIATE_TEST_SUITE_P(
    Reckoned, KnownDays,
    testing::Values(
        Known{Julian, 1, {1, 1, 1}, 1721424}, Known{Julian, 1, {31, 12, 4}, 1722884},
        Known{Julian, 1, {31, 12, 3000}, 2817173}, Known{Gregorian, 1, {1, 1, 1}, 1721426},
        Known{Gregorian, 1, {1, 1, 2000}, 2451545}, Known{Gregorian, 1, {31, 12, 3000}, 2817152},
        Known{Jewish, 1, {1, 1, 3761}, 1721319}, Known{Jewish, 1, {1, 1, 5761}, 2451818},
        Known{Jewish, 1, {10, 3, 5787}, 2461365}, Known{Jewish, 1, {29, 12, 6761}, 2817404},
        Known{Moslem, 1, {1, 1, 1}, 1948439}, Known{Moslem, 2, {1, 1, 1}, 1948440},
        Known{Moslem, 1, {1, 1, 2453}, 2817346}, Known{Moslem, 2, {1, 1, 2453}, 2817347}));

TEST(Reckoned, OnlyYears15And16OfTheMoslemCycleTellTheVariants) {
    const Reckoning one(1);
    const Reckoning two(2);
    for (int year = 1; year <= 30; ++year) {
        const int apart = year == 15 ? 1 : year == 16 ? -1 : 0;
        EXPECT_EQ(one.DaysInYear(Moslem, year) - two.DaysInYear(Moslem, year), apart) << year;
    }
    EXPECT_EQ(one.DaysInYear(Moslem, 15), 355);
    EXPECT_EQ(one.DaysInYear(Moslem, 16), 354);
    EXPECT_EQ(two.DaysInYear(Moslem, 15), 354);
    EXPECT_EQ(two.DaysInYear(Moslem, 16), 355);
}

TEST(Reckoned, TheLengthOfAJewishYearLiesInItsSecondThirdAndSixthMonth) {
    const Reckoning reckoning(1);
    EXPECT_EQ(reckoning.DaysInYear(Jewish, 5761), 353);
    EXPECT_EQ(reckoning.DaysInMonth(Jewish, 5761, 2), 29);
    EXPECT_EQ(reckoning.DaysInMonth(Jewish, 5761, 3), 29);
    EXPECT_EQ(reckoning.DaysInYear(Jewish, 5763), 385);
    EXPECT_EQ(reckoning.DaysInMonth(Jewish, 5763, 6), 30);
    EXPECT_EQ(reckoning.DaysInMonth(Jewish, 5763, 7), 29);
}

TEST(Reckoned, TheLastMonthAndDayStandForThoseThatAreNot) {
    const Reckoning reckoning(1);
    const Date elul = reckoning.DateOf(Jewish, reckoning.DayOf(Jewish, {30, 13, 5762}));
    EXPECT_EQ(elul, (Date{29, 12, 5762}));
    EXPECT_EQ(reckoning.DateOf(Gregorian, reckoning.DayOf(Gregorian, {31, 2, 1900})),
              (Date{28, 2, 1900}));
}

} // namespace
