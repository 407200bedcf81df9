// SPDX-License-Identifier: MIT
// Dates against judges that share no code with this program.
#include "support/state.h"

#include <chrono>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <unicode/gregocal.h>
#include <vector>

namespace {

constexpr int firstDay = 1721319;
constexpr int lastDay = 2817404;
constexpr double millisecondsPerDay = 86400000.0;
constexpr int unixEpoch = 2440588; // 1 January 1970 Gregorian

class Judges : public StateTest {};

using Calendar = std::unique_ptr<icu::Calendar>;

Calendar icuCalendar(const char* name) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Locale locale(name);
    Calendar calendar(
        icu::Calendar::createInstance(icu::TimeZone::createTimeZone("GMT"), locale, status));
    EXPECT_TRUE(U_SUCCESS(status));
    return calendar;
}

Calendar icuJulianCalendar() {
    Calendar calendar = icuCalendar("en@calendar=gregorian");
    UErrorCode status = U_ZERO_ERROR;
    const double never = 8.64e15;
    dynamic_cast<icu::GregorianCalendar&>(*calendar).setGregorianChange(never, status);
    EXPECT_TRUE(U_SUCCESS(status));
    return calendar;
}

Date icuDate(icu::Calendar& calendar, int julianDay) {
    UErrorCode status = U_ZERO_ERROR;
    calendar.setTime((julianDay - unixEpoch) * millisecondsPerDay, status);
    const Date date{calendar.get(UCAL_DATE, status), calendar.get(UCAL_MONTH, status) + 1,
                    calendar.get(UCAL_YEAR, status)};
    EXPECT_TRUE(U_SUCCESS(status));
    return date;
}

Date chronoDate(int julianDay) {
    const std::chrono::sys_days day{std::chrono::days{julianDay - unixEpoch}};
    const std::chrono::year_month_day date{day};
    return {static_cast<int>(static_cast<unsigned>(date.day())),
            static_cast<int>(static_cast<unsigned>(date.month())), static_cast<int>(date.year())};
}

void goToJD(int julianDay) {
    CurJD = julianDay;
    Calc::JDToJulian();
    Calc::JulianToGregorian();
    Calc::JDToJewish();
    Calc::JDToMoslem();
}

std::vector<std::vector<std::string>> readTable(const std::string& name) {
    std::ifstream file(std::string(TEST_DATA_DIR "/") + name);
    std::vector<std::vector<std::string>> rows;
    std::string line;
    std::getline(file, line); // the column names
    while (std::getline(file, line)) {
        std::vector<std::string> row;
        std::istringstream cells(line + ",");
        for (std::string cell; std::getline(cells, cell, ',');)
            row.push_back(cell);
        rows.push_back(row);
    }
    return rows;
}

std::string yearMonthDay(int c) {
    return std::to_string(CurDate(c, Year)) + "-" + std::to_string(CurDate(c, Month)) + "-" +
           std::to_string(CurDate(c, Day));
}

TEST_F(Judges, ChronoAgreesOnEveryGregorianDay) {
    for (CurJD = MinJD(Gregorian); CurJD <= MaxJD(Gregorian); ++CurJD) {
        Calc::JDToJulian();
        Calc::JulianToGregorian();
        ASSERT_EQ(dateIn(Gregorian), chronoDate(CurJD)) << CurJD;
    }
}

TEST_F(Judges, IcuAgreesOnEveryJulianDay) {
    const Calendar icu = icuJulianCalendar();
    for (CurJD = MinJD(Julian); CurJD <= MaxJD(Julian); ++CurJD) {
        Calc::JDToJulian();
        ASSERT_EQ(dateIn(Julian), icuDate(*icu, CurJD)) << CurJD;
    }
}

TEST_F(Judges, IcuAgreesOnEveryMoslemDayOfTheFridayEra) {
    resetState(2);
    const Calendar icu = icuCalendar("en@calendar=islamic-civil");
    for (CurJD = MinJD(Moslem); CurJD <= MaxJD(Moslem); ++CurJD) {
        Calc::JDToMoslem();
        ASSERT_EQ(dateIn(Moslem), icuDate(*icu, CurJD)) << CurJD;
    }
}

// ICU's cycle has its long year in place 16, ours for this era in place 15: our
// year 16 begins a day later and ends on the same day.
TEST_F(Judges, IcuAgreesOnEveryMoslemDayOfTheThursdayEra) {
    const Calendar icu = icuCalendar("en@calendar=islamic-tbla");
    for (CurJD = MinJD(Moslem); CurJD <= MaxJD(Moslem); ++CurJD) {
        Calc::JDToMoslem();
        const int yearOfCycle = (CurDate(Moslem, Year) - 1) % 30 + 1;
        if (yearOfCycle == 15 && CurJD == YearJD(Moslem, LastDay))
            ASSERT_EQ(dateIn(Moslem).day, 30) << CurJD;
        else
            ASSERT_EQ(dateIn(Moslem), icuDate(*icu, yearOfCycle == 16 ? CurJD - 1 : CurJD))
                << CurJD;
    }
}

TEST_F(Judges, TableAgreesOnEveryJewishNewYear) {
    const auto rows = readTable("jewish-new-years.csv");
    ASSERT_EQ(rows.size(), 3002U);
    for (const auto& row : rows)
        ASSERT_EQ(Calc::JewishNewYear(std::stoi(row.at(0))), std::stoi(row.at(1))) << row.at(0);
}

TEST_F(Judges, KnownDays) {
    const auto rows = readTable("known-days.csv");
    ASSERT_EQ(rows.size(), 2000U);
    for (const auto& row : rows) {
        goToJD(std::stoi(row.at(0)));
        ASSERT_EQ(std::to_string(CurJD % 7 + 1), row.at(1));
        for (const int c : {Julian, Gregorian, Jewish}) {
            if (isWithinRange(c)) {
                ASSERT_EQ(yearMonthDay(c), row.at(static_cast<std::size_t>(c + 1))) << row.at(0);
            }
        }
    }
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

TEST_F(Judges, EveryJewishYearHasALegalLength) {
    for (int year = 3761; year <= 6763; ++year) {
        const int days = Calc::JewishNewYear(year + 1) - Calc::JewishNewYear(year);
        ASSERT_TRUE((days >= 353 && days <= 355) || (days >= 383 && days <= 385)) << year;
    }
}

} // namespace
