// SPDX-License-Identifier: MIT
#pragma once

#include "calc/calc.h"
#include "calc/state.h"
#include "shared/flags.h"
#include "shared/texts.h"
#include "support/tables.h"

#include <gtest/gtest.h>

/// The Jewish month names of a common year, which the arithmetic rearranges.
inline Table<std::string, 12> commonNames() {
    return {"Tishri", "Heshvan", "Kislev", "Tevet",  "Shevat", "Adar",
            "Nisan",  "Iyar",    "Sivan",  "Tammuz", "Av",     "Elul"};
}

inline void setJewishNames() {
    const Table<std::string, 12> names = commonNames();
    for (int month = 1; month <= 12; ++month)
        MonthNames(Jewish, month) = names(month);
    MonthNames(Jewish, 13).clear();
    AdarName = "Adar";
}

/// The shared tables as they are at start, before a day is chosen.
inline void resetState(int moslemType = 1) {
    setJewishNames();
    JewishLeap = false;
    MonthDays = {};
    Calc::FillConstantRows();
    CurDate = {};
    YearDays = {};
    YearJD = {};
    resetSettings(moslemType);
    Updating = false;
    CurrentWindow = 0;
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

/// The civil dates from which and to which calendar c can show days: from 1
/// January 1, 1 Tishri 3761 or 1 Muharram 1 to the ends of 3000, 6761 or 2452.
/// The second Moslem variant runs a day later.
inline bool isBeforeRange(int c) {
    const Table<int, calendarCount> first{1721424, 1721426, 1721319, 1948439};
    return CurJD < first(c) + (c == Moslem && MoslemType != 1 ? 1 : 0);
}

inline bool isAfterRange(int c) {
    const Table<int, calendarCount> last{2817173, 2817152, 2817404, 2817345};
    return CurJD > last(c) + (c == Moslem && MoslemType != 1 ? 1 : 0);
}

inline bool isWithinRange(int c) {
    return !isBeforeRange(c) && !isAfterRange(c);
}

/// The first and the last year of a calendar.
inline int firstYear(int c) {
    return Table<int, calendarCount>{1, 1, 3761, 1}(c);
}

inline int lastYear(int c) {
    return Table<int, calendarCount>{3000, 3000, 6761, 2452}(c);
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
           CurDate(c, Year) >= firstYear(c) && CurDate(c, Year) <= lastYear(c);
}

/// Starts from a fresh state and fails when any table is read outside its bounds.
class StateTest : public testing::Test, protected BoundsWatch {
protected:
    StateTest() { resetState(); }
};

inline void setDate(int c, int day, int month, int year) {
    CurDate(c, Day) = day;
    CurDate(c, Month) = month;
    CurDate(c, Year) = year;
}

inline Date dateIn(int c) {
    return {CurDate(c, Day), CurDate(c, Month), CurDate(c, Year)};
}

inline std::ostream& operator<<(std::ostream& out, const Date& date) {
    return out << date.day << "." << date.month << "." << date.year;
}
