// SPDX-License-Identifier: MIT
#include "changecals/moonage.h"

#include "support/recording_windows.h"
#include "support/state.h"

namespace {

class AgeOfTheMoon : public StateTest {};

TEST_F(AgeOfTheMoon, NewMoonOnTheFirstDayOfTheCount) {
    CurJD = 1720993;
    ChangeCals::SetMoonAge();
    EXPECT_EQ(MoonAge, 0.0F);
    EXPECT_EQ(MoonPhase, 0);
    EXPECT_EQ(WeekDayNo, 1720993 % 7 + 1);
}

TEST_F(AgeOfTheMoon, AgesAndPhases) {
    const struct {
        int julianDay;
        float age;
        int phase;
    } rows[] = {{2451545, 24.310345F, 7},
                {2451580, 0.24916840F, 0},
                {2451787, 0.53505135F, 0},
                {1979740, 29.517218F, 8}};
    for (const auto& row : rows) {
        goTo(row.julianDay);
        EXPECT_EQ(MoonAge, row.age) << row.julianDay;
        EXPECT_EQ(MoonPhase, row.phase) << row.julianDay;
    }
    goTo(1759942);
    EXPECT_EQ(MoonPhase, 7);
}

TEST_F(AgeOfTheMoon, PhasesAreEighthsRoundedToTheNearest) {
    for (int julianDay = 1721319; julianDay <= 2817404; julianDay += 7) {
        goTo(julianDay);
        ASSERT_GE(MoonAge, 0.0F) << julianDay;
        ASSERT_LT(MoonAge, ChangeCals::lunation) << julianDay;
        const double eighths = MoonAge / static_cast<double>(ChangeCals::lunation) * 8;
        ASSERT_LE(std::abs(MoonPhase - eighths), 0.5) << julianDay;
    }
}

} // namespace
