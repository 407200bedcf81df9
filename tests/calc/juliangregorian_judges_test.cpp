// SPDX-License-Identifier: MIT
// Dates against judges that share no code with this program.
#include "calc/calc_test.h"
#include "calc/known.h"
#include "support/judgement.h"

#include <chrono>
#include <string>

namespace {

constexpr int firstDay = 1721319;
constexpr int lastDay = 2817404;

Date chronoDate(int julianDay) {
    const std::chrono::sys_days day{std::chrono::days{julianDay - unixEpoch}};
    const std::chrono::year_month_day date{day};
    return {static_cast<int>(static_cast<unsigned>(date.day())),
            static_cast<int>(static_cast<unsigned>(date.month())), static_cast<int>(date.year())};
}

std::string chronoName() {
    return "std::chrono of GCC " + std::to_string(_GLIBCXX_RELEASE);
}

std::string yearMonthDay(int c) {
    return std::to_string(CurDate(c, Year)) + "-" + std::to_string(CurDate(c, Month)) + "-" +
           std::to_string(CurDate(c, Day));
}

TEST_F(Judges, ChronoAgreesOnEveryGregorianDay) {
    long long answers = 0;
    for (CurJD = 1721426; CurJD <= 2817152; ++CurJD, ++answers) {
        Calc::JDToJulian();
        Calc::JulianToGregorian();
        ASSERT_EQ(dateIn(Gregorian), chronoDate(CurJD)) << CurJD;
    }
    recordJudgement(chronoName(), "the Gregorian date of every day", answers);
}

TEST_F(Judges, KnownDays) {
    const auto rows = readTable("known-days.csv");
    ASSERT_EQ(rows.size(), 2000U);
    for (const auto& row : rows) {
        goToJD(std::stoi(row.at(0)));
        ASSERT_EQ(std::to_string(Calc::WeekdayOf(CurJD)), row.at(1));
        for (const int c : {Julian, Gregorian, Jewish}) {
            if (isWithinRange(c)) {
                ASSERT_EQ(yearMonthDay(c), row.at(static_cast<std::size_t>(c + 1))) << row.at(0);
            }
        }
    }
    recordJudgement("GNU Emacs 28.2, ECMAScript Date, ICU 78",
                    "weekday and Julian, Gregorian and Jewish date of known days",
                    static_cast<long long>(rows.size()));
}

TEST_F(Judges, KnownDaysOfTheFridayEra) {
    resetState(2);
    for (const auto& row : readTable("known-days.csv")) {
        goToJD(std::stoi(row.at(0)));
        if (!row.at(5).empty() && !Calc::IsAfterRange(Moslem)) {
            ASSERT_EQ(yearMonthDay(Moslem), row.at(5)) << row.at(0);
        }
    }
}

// The years on which ICU's cycle and ours differ are left to the sweep above.
TEST_F(Judges, KnownDaysOfTheThursdayEra) {
    for (const auto& row : readTable("known-days.csv")) {
        goToJD(std::stoi(row.at(0)));
        const int yearOfCycle = (CurDate(Moslem, Year) - 1) % 30 + 1;
        const bool sameCycle = yearOfCycle != 15 && yearOfCycle != 16;
        if (!row.at(6).empty() && !Calc::IsAfterRange(Moslem) && sameCycle) {
            ASSERT_EQ(yearMonthDay(Moslem), row.at(6)) << row.at(0);
        }
    }
}

TEST_F(Judges, EveryDayKeepsTheInvariantsOfTheCalendarsThatCanShowIt) {
    for (const int type : {1, 2}) {
        resetState(type);
        for (int julianDay = firstDay; julianDay <= lastDay; ++julianDay) {
            goToJD(julianDay);
            for (const int c : {Julian, Gregorian, Jewish, Moslem})
                ASSERT_TRUE(!isWithinRange(c) || invariantsHold(c)) << julianDay << " in " << c;
        }
    }
}

TEST_F(Judges, DaysAboveTheRangesAreStillSummedUp) {
    for (int julianDay = lastDay + 1; julianDay <= 2900000; ++julianDay) {
        goToJD(julianDay);
        for (const int c : {Julian, Gregorian, Jewish, Moslem}) {
            ASSERT_EQ(julianDay - YearJD(c, FirstDay) + 1, CurDate(c, DayNumber)) << julianDay;
            ASSERT_EQ(Calc::DayOfYear(c, 14, 0), YearDays(c, DaysInYear)) << julianDay;
        }
        ASSERT_EQ(dateIn(Gregorian), chronoDate(julianDay));
    }
}

} // namespace
