// SPDX-License-Identifier: MIT
// Jewish dates against judges that share no code with this program.
#include "calc/calc_test.h"
#include "calc/known.h"
#include "support/judgement.h"
#include "support/molads.h"

#include <string>

namespace {

TEST_F(JewishJudges, TableAgreesOnEveryJewishNewYear) {
    const auto rows = readTable("jewish-new-years.csv");
    ASSERT_EQ(rows.size(), 3002U);
    for (const auto& row : rows)
        ASSERT_EQ(Calc::JewishNewYear(std::stoi(row.at(0))), std::stoi(row.at(1))) << row.at(0);
    recordJudgement("ICU 78, GNU Emacs 28.2 and hebcal", "the first day of every Jewish year",
                    static_cast<long long>(rows.size()));
}

// Beyond the range too: a computer's clock may stand there. After 689472 years the calendar
// repeats to the weekday, so that each postponement is met at its very limit.
TEST_F(JewishJudges, TheRuleOfTheNewMoonsAgreesOnEveryJewishNewYear) {
    constexpr int years = 689472;
    for (int year = 3761; year < 3761 + years; ++year)
        ASSERT_EQ(Calc::JewishNewYear(year), Molads::NewYear(year)) << year;
    recordJudgement("the rule of the new moons, in tests/support/molads.h",
                    "the first day of every Jewish year from 3761 to 693232", years);
}

TEST_F(JewishJudges, TheRuleOfTheNewMoonsAgreesWithTheTable) {
    for (const auto& row : readTable("jewish-new-years.csv"))
        ASSERT_EQ(Molads::NewYear(std::stoi(row.at(0))), std::stoi(row.at(1))) << row.at(0);
}

TEST_F(JewishJudges, EveryJewishYearHasALegalLength) {
    for (int year = 3761; year <= 6763; ++year) {
        const int days = Calc::JewishNewYear(year + 1) - Calc::JewishNewYear(year);
        ASSERT_TRUE((days >= 353 && days <= 355) || (days >= 383 && days <= 385)) << year;
    }
}

} // namespace
