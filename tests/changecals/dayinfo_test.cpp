// SPDX-License-Identifier: MIT
#include "changecals/changecals.h"
#include "support/state.h"

namespace {

class DayInformation : public StateTest {};
class EveryDay : public StateTest {};

void goToJD(int julianDay) {
    CurJD = julianDay;
    ChangeCals::ChangeJD();
}

TEST_F(DayInformation, NewMoonOnTheFirstDayOfTheCount) {
    CurJD = 1720993;
    ChangeCals::SetMoonAge();
    EXPECT_EQ(MoonAge, 0.0F);
    EXPECT_EQ(MoonPhase, 0);
    EXPECT_EQ(WeekDayNo, 1720993 % 7 + 1);
}

TEST_F(DayInformation, AgesAndPhases) {
    const struct {
        int julianDay;
        float age;
        int phase;
    } rows[] = {{2451545, 24.310345F, 7},
                {2451580, 0.24916840F, 0},
                {2451787, 0.53505135F, 0},
                {1979740, 29.517218F, 8}};
    for (const auto& row : rows) {
        goToJD(row.julianDay);
        EXPECT_EQ(MoonAge, row.age) << row.julianDay;
        EXPECT_EQ(MoonPhase, row.phase) << row.julianDay;
    }
    goToJD(1759942);
    EXPECT_EQ(MoonPhase, 7);
}

TEST_F(DayInformation, PhasesAreEighthsRoundedToTheNearest) {
    for (int julianDay = 1721319; julianDay <= 2817404; julianDay += 7) {
        goToJD(julianDay);
        ASSERT_GE(MoonAge, 0.0F) << julianDay;
        ASSERT_LT(MoonAge, ChangeCals::lunation) << julianDay;
        const double eighths = MoonAge / static_cast<double>(ChangeCals::lunation) * 8;
        ASSERT_LE(std::abs(MoonPhase - eighths), 0.5) << julianDay;
    }
}

TEST_F(DayInformation, AnUnknownCalendarNumberOnlyRenewsTheDaysFigures) {
    goToJD(2451545);
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

void expectNextWeekday(int& weekday) {
    weekday = weekday % 7 + 1;
    ASSERT_EQ(WeekDayNo, weekday) << CurJD;
}

void expectTheWayBack(int c, const StateSnapshot& before) {
    const Date date = dateIn(c);
    setDate(c, date.day, date.month, date.year);
    ChangeCals::ChangeCal(c);
    ASSERT_EQ(StateSnapshot{}, before) << "day " << before.curJD << " through calendar " << c;
}

void walkEveryDay() {
    int weekday = 1721318 % 7 + 1;
    for (int julianDay = 1721319; julianDay <= 2817404; ++julianDay) {
        goToJD(julianDay);
        ASSERT_NO_FATAL_FAILURE(expectNextWeekday(weekday));
        const StateSnapshot before;
        for (const int c : {Julian, Gregorian, Jewish, Moslem}) {
            if (!isWithinRange(c))
                continue;
            ASSERT_TRUE(invariantsHold(c)) << julianDay << " in calendar " << c;
            ASSERT_NO_FATAL_FAILURE(expectTheWayBack(c, before));
        }
    }
}

TEST_F(EveryDay, LeadsBackThroughEachCalendar) {
    walkEveryDay();
}

TEST_F(EveryDay, LeadsBackThroughEachCalendarInTheOtherMoslemVariant) {
    resetState(2);
    walkEveryDay();
}

} // namespace
