// SPDX-License-Identifier: MIT
#include "changecals/changecals.h"

#include "changecals/moonage.h"
#include "support/judgement.h"
#include "support/recording_windows.h"
#include "support/state.h"

namespace {

class DayInformation : public StateTest {};
class EveryDay : public StateTest {};

TEST_F(DayInformation, AnUnknownCalendarNumberOnlyRenewsTheDaysFigures) {
    goTo(2451545);
    const StateSnapshot before;
    MoonAge = 0;
    WeekDayNo = 0;
    for (const int c : {0, 5, -1}) {
        ChangeCals::ChangeCal(c);
        EXPECT_EQ(StateSnapshot{}, before) << c;
    }
}

TEST_F(DayInformation, MonthThirteenOfACommonYearBecomesElulInTheState) {
    setDate(Jewish, 1, 13, 5762);
    ChangeCals::ChangeCal(Jewish);
    EXPECT_EQ(dateIn(Jewish), (Date{1, 12, 5762}));
}

TEST_F(DayInformation, LeapDayBecomesThe28thInACommonYearAndTheOthersFollow) {
    setDate(Gregorian, 29, 2, 2000);
    ChangeCals::ChangeCal(Gregorian);
    CurDate(Gregorian, Year) = 2001;
    ChangeCals::ChangeCal(Gregorian);
    EXPECT_EQ(dateIn(Gregorian), (Date{28, 2, 2001}));
    EXPECT_EQ(dateIn(Julian), (Date{15, 2, 2001}));
}

// Makes nothing of the tables tell of the day or of the year of calendar c.
void poisonYear(int c) {
    constexpr int poison = 99;
    CurJD = poison;
    MonthDays(c, c == Moslem ? 12 : 2) = poison;
    if (c == Jewish)
        MonthDays(c, 3) = MonthDays(c, 6) = MonthDays(c, JewishLeap ? 7 : 13) = poison;
    for (int month = 1; month <= 13; ++month)
        MonthDays(c, weekdayRow + month) = poison;
    CurDate(c, DayNumber) = CurDate(c, WeekNumber) = poison;
    YearDays(c, DaysInYear) = YearDays(c, WeeksInYear) = poison;
    YearJD(c, FirstDay) = YearJD(c, LastDay) = poison;
}

// Reaches a day by its date in calendar c, from another day, or through its
// number where c cannot show it.
void reach(int c, const StateSnapshot& day, long long& entered) {
    CurJD = day.curJD;
    if (!isWithinRange(c))
        return goTo(day.curJD);
    ++entered;
    poisonYear(c);
    setDate(c, day.curDate(c, Day), day.curDate(c, Month), day.curDate(c, Year));
    ChangeCals::ChangeCal(c);
    ASSERT_EQ(StateSnapshot{}, day) << "day " << day.curJD << " through calendar " << c;
    ASSERT_TRUE(invariantsHold(c)) << "day " << day.curJD << " in calendar " << c;
}

StateSnapshot dayOf(int julianDay) {
    goTo(julianDay);
    return {};
}

// To and fro between the two halves of the range.
void walkEveryDay() {
    constexpr int middle = 2269362;
    long long entered = 0;
    for (int julianDay = 1721319; julianDay < middle; ++julianDay) {
        const StateSnapshot early = dayOf(julianDay);
        const StateSnapshot late = dayOf(julianDay + middle - 1721319);
        for (const int c : {Julian, Gregorian, Jewish, Moslem}) {
            ASSERT_NO_FATAL_FAILURE(reach(c, early, entered));
            ASSERT_NO_FATAL_FAILURE(reach(c, late, entered));
        }
    }
    recordJudgement("the way back",
                    "every day by its date in each calendar, from another day and poisoned tables",
                    entered);
}

TEST_F(EveryDay, LeadsBackThroughEachCalendar) {
    walkEveryDay();
}

TEST_F(EveryDay, LeadsBackThroughEachCalendarInTheOtherMoslemVariant) {
    resetState(2);
    walkEveryDay();
}

TEST_F(EveryDay, HasTheWeekdayAfterTheOneBefore) {
    int weekday = Friday; // 1 Tishri 3761 is a Saturday
    for (CurJD = 1721319; CurJD <= 2817404; ++CurJD) {
        weekday = weekday == Sunday ? Monday : weekday + 1;
        ChangeCals::SetMoonAge();
        ASSERT_EQ(WeekDayNo, weekday) << CurJD;
    }
}

TEST_F(DayInformation, AnUnknownCalendarNumberDerivesNothing) {
    goTo(2451545);
    setDate(Moslem, 1, 1, 1400);
    for (const int c : {0, 5, -1}) {
        ChangeCals::ChangeCal(c);
        EXPECT_EQ(dateIn(Moslem), (Date{1, 1, 1400})) << c;
    }
}

} // namespace
