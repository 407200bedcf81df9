// SPDX-License-Identifier: MIT
// The Jewish calendar. A year of fewer than 383 days has 12 months, a longer one
// 13: Adar is doubled.
#include "calc/calc.h"
#include "calc/state.h"
#include "shared/texts.h"

namespace {

constexpr int julianYearsBehind = 3760; // Passover of Jewish year x is in Julian year x - 3760
constexpr int passoverToNewYear = 163;
constexpr int shortestLeapYear = 383;

enum JewishMonth : int { Heshvan = 2, Kislev = 3, Adar = 6, AdarTwo = 7, lastMonth = 13 };

int floorOf(double value) {
    const int whole = static_cast<int>(value);
    return value < whole ? whole - 1 : whole;
}

// Passover of a Jewish year as a day of March, with the fraction of the day at
// which its moon is born.
double passover(int x, int cycleYear) {
    const int b = x % 4;
    return 4343.0 / 98496.0 + 32 + cycleYear + (272953.0 / 492480.0) * cycleYear + b / 4.0 -
           (313.0 / 98496.0) * x;
}

// The days by which Passover is put off, so that the new year falls on no Sunday,
// Wednesday or Friday (first rule) and every year has a legal length.
int postponement(double day, int x, int cycleYear) {
    const int whole = floorOf(day);
    const double fraction = day - whole;
    const int weekday = (whole + 3 * x + 5 * (x % 4) + 5) % 7;
    if (weekday == 2 || weekday == 4 || weekday == 6)
        return 1;
    if (weekday == 1 && cycleYear > 6 && fraction >= 1367.0 / 2160.0)
        return 2;
    if (weekday == 0 && cycleYear > 11 && fraction >= 23269.0 / 25920.0)
        return 1;
    return 0;
}

// A day counted from 1 March as a day and a month. Passover lies in March or
// April; the further months complete the rule.
void carryIntoMonths(int& day, int& month) {
    struct Carry {
        int days;
        int month;
    };
    for (const Carry carry : {Carry{153, 8}, {122, 7}, {92, 6}, {61, 5}, {31, 4}}) {
        if (day > carry.days) {
            day -= carry.days;
            month = carry.month;
        }
    }
}

void moveLengthsToCommonLayout() {
    for (int month = AdarTwo; month < lastMonth; ++month)
        MonthDays(Jewish, month) = MonthDays(Jewish, month + 1);
    MonthDays(Jewish, lastMonth) = 0;
}

void enterCommonLayout() {
    moveLengthsToCommonLayout();
    for (int month = AdarTwo; month < lastMonth; ++month)
        MonthNames(Jewish, month).swap(MonthNames(Jewish, month + 1));
    MonthNames(Jewish, Adar) = AdarName;
    MonthNames(Jewish, lastMonth).clear();
    JewishLeap = false;
}

void enterLeapLayout() {
    for (int month = lastMonth; month > AdarTwo; --month) {
        MonthDays(Jewish, month) = MonthDays(Jewish, month - 1);
        MonthNames(Jewish, month).swap(MonthNames(Jewish, month - 1));
    }
    MonthNames(Jewish, Adar) = AdarName + " I";
    MonthNames(Jewish, AdarTwo) = AdarName + " II";
    JewishLeap = true;
}

void setVaryingLengths(int yearDays) {
    const bool leap = yearDays >= shortestLeapYear;
    const int excess = yearDays - (leap ? 383 : 353); // 0 deficient, 1 regular, 2 full
    if (excess < 0 || excess > 2)
        return;
    MonthDays(Jewish, Heshvan) = excess == 2 ? 30 : 29;
    MonthDays(Jewish, Kislev) = excess >= 1 ? 30 : 29;
    MonthDays(Jewish, Adar) = leap ? 30 : 29;
    if (leap)
        MonthDays(Jewish, AdarTwo) = 29;
    else
        MonthDays(Jewish, lastMonth) = 0;
}

void setJewishYear(int newYear, int nextNewYear) {
    YearJD(Jewish, FirstDay) = newYear;
    YearJD(Jewish, LastDay) = nextNewYear - 1;
    YearDays(Jewish, DaysInYear) = YearJD(Jewish, LastDay) - YearJD(Jewish, FirstDay) + 1;
    Calc::SetJewishMonths();
}

} // namespace

int Calc::JewishNewYear(int year) {
    const int x = year - 1;
    const int cycleYear = (12 * x + 17) % 19;
    const double day = passover(x, cycleYear);
    int passoverDay = floorOf(day + postponement(day, x, cycleYear));
    int passoverMonth = 3;
    carryIntoMonths(passoverDay, passoverMonth);
    return JulianJD(passoverDay, passoverMonth, x - julianYearsBehind) + passoverToNewYear;
}

void Calc::JewishToJD() {
    int& day = CurDate(Jewish, Day);
    int& month = CurDate(Jewish, Month);
    const int year = CurDate(Jewish, Year);
    setJewishYear(JewishNewYear(year), JewishNewYear(year + 1));
    if (month == lastMonth && !JewishLeap)
        --month;
    if (day > MonthDays(Jewish, month))
        day = MonthDays(Jewish, month);
    CurDate(Jewish, DayNumber) = DayOfYear(Jewish, month, day);
    CurJD = YearJD(Jewish, FirstDay) + CurDate(Jewish, DayNumber) - 1;
    SetMonthStarts(Jewish);
}

void Calc::JDToJewish() {
    int& year = CurDate(Jewish, Year);
    year = MinYear(Jewish) + CurDate(Julian, Year); // at most one too high
    int newYear = JewishNewYear(year);
    int nextNewYear = 0;
    for (; newYear > CurJD; newYear = JewishNewYear(--year))
        nextNewYear = newYear;
    if (nextNewYear == 0)
        nextNewYear = JewishNewYear(year + 1);
    setJewishYear(newYear, nextNewYear);
    CurDate(Jewish, DayNumber) = CurJD - YearJD(Jewish, FirstDay) + 1;
    CurDate(Jewish, Day) = CurDate(Jewish, DayNumber);
    DayToMonth(Jewish, CurDate(Jewish, Month), CurDate(Jewish, Day));
    SetMonthStarts(Jewish);
}

void Calc::SetJewishMonths() {
    const int yearDays = YearDays(Jewish, DaysInYear);
    const bool leapLayout = !MonthNames(Jewish, lastMonth).empty();
    if (yearDays < shortestLeapYear && leapLayout)
        enterCommonLayout();
    else if (yearDays >= shortestLeapYear && !leapLayout)
        enterLeapLayout();
    setVaryingLengths(yearDays);
}

void Calc::ResetJewishLayout() {
    if (JewishLeap)
        moveLengthsToCommonLayout();
    JewishLeap = false;
    MonthNames(Jewish, lastMonth).clear();
}
