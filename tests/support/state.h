// SPDX-License-Identifier: MIT
#pragma once

#include "calc/calc.h"
#include "calc/state.h"
#include "shared/flags.h"
#include "shared/settings.h"
#include "shared/texts.h"

#include <gtest/gtest.h>

/// The Jewish month names of a common year, which the arithmetic rearranges.
inline void setJewishNames() {
    const Table<std::string, 12> names{"Tishri", "Heshvan", "Kislev", "Tevet",  "Shevat", "Adar",
                                       "Nisan",  "Iyar",    "Sivan",  "Tammuz", "Av",     "Elul"};
    for (int month = 1; month <= 12; ++month)
        MonthNames(Jewish, month) = names(month);
    MonthNames(Jewish, 13).clear();
    AdarName = "Adar";
}

/// The shared tables as they are at start, before a day is chosen.
inline void resetState(int moslemType = 1) {
    setJewishNames();
    JewishLeap = false;
    Calc::FillConstantRows();
    CurDate = {};
    YearDays = {};
    YearJD = {};
    CalendarOrder = {Julian, Gregorian, Jewish, Moslem};
    FirstWeekDay = {Sunday, Sunday, Sunday, Sunday};
    for (int window = 1; window <= mainWindowCount; ++window)
        FormTop(window) = FormLeft(window) = noPosition;
    MoslemType = moslemType;
    StartupWindow = 0;
    LanguageName = englishLanguage;
    ShowTips = 1;
    Updating = false;
    CurrentWindow = 0;
    SourcePane = 0;
    Calc::SetMoslemType();
}

/// Everything that a change of the chosen day writes, to be compared as a whole.
struct StateSnapshot {
    int curJD = CurJD;
    decltype(CurDate) curDate = CurDate;
    decltype(MonthDays) monthDays = MonthDays;
    decltype(YearDays) yearDays = YearDays;
    decltype(YearJD) yearJD = YearJD;
    decltype(MoslemCycle) moslemCycle = MoslemCycle;
    bool jewishLeap = JewishLeap;
    int weekDayNo = WeekDayNo;
    float moonAge = MoonAge;
    int moonPhase = MoonPhase;

    bool operator==(const StateSnapshot& other) const = default;
};

inline bool isWithinRange(int c) {
    return !Calc::IsBeforeRange(c) && !Calc::IsAfterRange(c);
}

/// What holds for calendar c on every day that it can show.
inline bool invariantsHold(int c) {
    int days = 0;
    for (int month = 1; month <= 13; ++month)
        days += MonthDays(c, month);
    const int month = CurDate(c, Month);
    return days == YearDays(c, DaysInYear) &&
           YearJD(c, LastDay) - YearJD(c, FirstDay) + 1 == YearDays(c, DaysInYear) &&
           CurJD - YearJD(c, FirstDay) + 1 == CurDate(c, DayNumber) && CurDate(c, Day) >= 1 &&
           CurDate(c, Day) <= MonthDays(c, month) &&
           Calc::DayOfYear(c, month, CurDate(c, Day)) == CurDate(c, DayNumber) &&
           (MonthDays(c, weekdayRow + month) + CurDate(c, Day) - 2) % 7 + 1 == CurJD % 7 + 1 &&
           CurDate(c, WeekNumber) >= 1 && CurDate(c, WeekNumber) <= YearDays(c, WeeksInYear) &&
           CurDate(c, Year) >= MinYear(c) && CurDate(c, Year) <= MaxYear(c);
}

/// Starts from a fresh state and fails when any table is read outside its bounds.
class StateTest : public testing::Test {
protected:
    StateTest() {
        onOutOfBounds = [](int index, int extent) {
            ADD_FAILURE() << "table index " << index << " outside 1.." << extent;
        };
        resetState();
    }
    ~StateTest() override { onOutOfBounds = nullptr; }
};

inline void setDate(int c, int day, int month, int year) {
    CurDate(c, Day) = day;
    CurDate(c, Month) = month;
    CurDate(c, Year) = year;
}

/// A date of calendar c as day, month and year, to be compared and printed.
struct Date {
    int day;
    int month;
    int year;
    bool operator==(const Date& other) const = default;
};

inline Date dateIn(int c) {
    return {CurDate(c, Day), CurDate(c, Month), CurDate(c, Year)};
}

inline std::ostream& operator<<(std::ostream& out, const Date& date) {
    return out << date.day << "." << date.month << "." << date.year;
}
