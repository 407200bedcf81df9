// SPDX-License-Identifier: MIT
#include "calc/calc_test.h"

namespace {

class Ranges : public StateTest {};

struct Range {
    int c;
    int first;
    int last;
};

// Where the four calendars begin and end, by their civil dates elsewhere.
constexpr Range ranges[] = {{Julian, 1721424, 2817173},
                            {Gregorian, 1721426, 2817152},
                            {Jewish, 1721319, 2817404},
                            {Moslem, 1948439, 2817345}};
constexpr Range rangeOfTheFridayEra{Moslem, 1948440, 2817346};

// Whether the chosen day lies before (-1), in (0) or after (1) the range.
int sideOf(int c, int julianDay) {
    CurJD = julianDay;
    return static_cast<int>(Calc::IsAfterRange(c)) - static_cast<int>(Calc::IsBeforeRange(c));
}

void expectEnds(const Range& range) {
    EXPECT_EQ(sideOf(range.c, range.first - 1), -1) << range.c;
    EXPECT_EQ(sideOf(range.c, range.first), 0) << range.c;
    EXPECT_EQ(sideOf(range.c, range.last), 0) << range.c;
    EXPECT_EQ(sideOf(range.c, range.last + 1), 1) << range.c;
}

void expectYears(const Range& range, int firstYear, int lastYear) {
    goToJD(range.first);
    EXPECT_EQ(dateIn(range.c), (Date{1, 1, firstYear}));
    goToJD(range.last);
    EXPECT_EQ(CurDate(range.c, Year), lastYear);
    EXPECT_EQ(CurDate(range.c, DayNumber), YearDays(range.c, DaysInYear));
}

TEST_F(Ranges, EndWithTheirFirstAndLastDays) {
    for (const Range& range : ranges)
        expectEnds(range);
    resetState(2);
    expectEnds(rangeOfTheFridayEra);
}

TEST_F(Ranges, HoldWholeYears) {
    expectYears(ranges[0], 1, 3000);
    expectYears(ranges[1], 1, 3000);
    expectYears(ranges[2], 3761, 6761);
    expectYears(ranges[3], 1, 2452);
    resetState(2);
    expectYears(rangeOfTheFridayEra, 1, 2452);
}

TEST_F(Ranges, AreLimitedByTheSameYears) {
    EXPECT_EQ(MinYear, (Table<int, 4>{1, 1, 3761, 1}));
    EXPECT_EQ(MaxYear, (Table<int, 4>{3000, 3000, 6761, 2452}));
}

} // namespace
