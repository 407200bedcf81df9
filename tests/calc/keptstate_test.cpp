// SPDX-License-Identifier: MIT
#include "calc/keptstate.h"
#include "calc/range.h"

#include "calc/calc_test.h"
#include "support/texttables.h"

namespace {

class KeptState : public StateTest {};

TEST_F(KeptState, PutsEveryTableBack) {
    setDate(Jewish, 1, 7, 5787); // a leap year: its names and lengths stand in another layout
    Calc::JewishToJD();
    const StateSnapshot before;
    const TextTables texts;
    const auto firstDays = MinJD;
    const auto lastDays = MaxJD;
    {
        const auto kept = Calc::KeepState();
        CurJD = 1;
        CurDate(Moslem, WeekNumber) = 99;
        YearDays(Jewish, DaysInYear) = 354;
        Calc::SetJewishMonths();
        MonthDays(Julian, 2) = 77;
        YearJD(Gregorian, LastDay) = 7;
        MoslemCycle(30) = 1;
        MinJD(Moslem) = MaxJD(Julian) = 5;
        WeekDayNo = MoonPhase = 6;
        MoonAge = 3.5F;
        EXPECT_FALSE(before == StateSnapshot());
        EXPECT_FALSE(texts == TextTables());
    }
    EXPECT_TRUE(before == StateSnapshot());
    EXPECT_TRUE(texts == TextTables());
    EXPECT_EQ(MinJD, firstDays);
    EXPECT_EQ(MaxJD, lastDays);
}

} // namespace
