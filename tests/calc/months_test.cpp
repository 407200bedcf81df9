// SPDX-License-Identifier: MIT
#include "calc/calc_test.h"

namespace {

class Months : public StateTest {};

TEST_F(Months, DayToMonthStopsAfterTheThirteenthMonth) {
    goToJD(2451545);
    int month = 0;
    int day = 400;
    Calc::DayToMonth(Gregorian, month, day);
    EXPECT_EQ(month, 14);
    EXPECT_EQ(day, 400 - 366);
}

TEST_F(Months, DayOfYearAndBack) {
    goToJD(2451545);
    EXPECT_EQ(Calc::DayOfYear(Gregorian, 3, 1), 61);
    int month = 0;
    int day = 61;
    Calc::DayToMonth(Gregorian, month, day);
    EXPECT_EQ((Date{day, month, 2000}), (Date{1, 3, 2000}));
}

} // namespace
