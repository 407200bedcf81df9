// SPDX-License-Identifier: MIT
// The Jewish calendar. A year of fewer than 383 days has 12 months, a longer one
// 13: Adar is doubled.
#include "calc/calc.h"
#include "calc/months.h"
#include "calc/range.h"
#include "calc/state.h"
#include "shared/texts.h"

namespace {

constexpr int shortestCommonYear = 353;
constexpr int shortestLeapYear = 383;

enum JewishMonth : int { Heshvan = 2, Kislev = 3, Adar = 6, AdarTwo = 7, lastMonth = monthLimit };

// Gauss's formula finds Passover of year x as a day of March of Julian year
// x - 3760. All its numbers follow from the rule of the new moons: a lunation has
// 29 d 12 h 793 p, with 1080 p to the hour; 235 lunations are taken for 19 years;
// the first one began on a Monday at 5 h 204 p. The moons are counted six hours
// later than they are, so that one of the afternoon belongs to the next day. The
// unit is a nineteenth of a p, which makes every number a whole one.
constexpr int hourUnits = 19 * 1080;
constexpr int dayUnits = 24 * hourUnits;

constexpr int units(int days, int hours, int parts) {
    return days * dayUnits + hours * hourUnits + 19 * parts;
}

constexpr int cycleStep = units(29, 12, 793) / 19;

// By how much 235 lunations are shorter than 19 years of 365 1/4 days, for each year.
constexpr int yearlyLag = 365 * dayUnits + dayUnits / 4 - 235 * cycleStep;

constexpr int firstMoon = units(58, 5 + 6, 204); // 163 days before 7 October
constexpr int passoverToNewYear = 163;
constexpr int julianYearsBehind = 3760;

// How far year x has gone through the cycle of leap years, 0..18. Up to 6 a leap
// year follows; above 11 it is a leap year itself.
int placeInCycle(int x) {
    return (12 * x + 17) % 19;
}

// In units from the beginning of 0 March.
int passoverMoon(int x) {
    return firstMoon + (placeInCycle(x) - placeInCycle(0)) * cycleStep + x % 4 * (dayUnits / 4) -
           x * yearlyLag;
}

int wholeDays(int moment) {
    return moment < 0 ? (moment + 1) / dayUnits - 1 : moment / dayUnits;
}

// The days by which a new year is put off, so that it falls on no Sunday,
// Wednesday or Friday and leaves every year a legal length.
int postponement(int newYear, int place, int timeOfMoon) {
    switch (Calc::WeekdayOf(newYear)) {
    case Sunday:
    case Wednesday:
    case Friday:
        return 1;
    case Tuesday:
        return place > 6 && timeOfMoon >= units(0, 9 + 6, 204) ? 2 : 0;
    case Monday:
        return place > 11 && timeOfMoon >= units(0, 15 + 6, 589) ? 1 : 0;
    default:
        return 0;
    }
}

void moveLengthsToCommonLayout() {
    for (int month = AdarTwo; month < lastMonth; ++month)
        MonthDays(Jewish, month) = MonthDays(Jewish, month + 1);
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
    MonthNames(Jewish, Adar) = AdarName + AdarSuffixes(1);
    MonthNames(Jewish, AdarTwo) = AdarName + AdarSuffixes(2);
    JewishLeap = true;
}

void setVaryingLengths(int yearDays) {
    const bool leap = yearDays >= shortestLeapYear;
    const int shortest = leap ? shortestLeapYear : shortestCommonYear;
    const int excess = yearDays - shortest; // 0 deficient, 1 regular, 2 full
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

void setJewishLengths(int newYear, int nextNewYear) {
    YearDays(Jewish, DaysInYear) = nextNewYear - newYear;
    Calc::SetJewishMonths();
}

void dateFromJD(int year, int newYear, int nextNewYear) {
    CurDate(Jewish, Year) = year;
    setJewishLengths(newYear, nextNewYear);
    Calc::DateFromDayNumber(Jewish, newYear, CurJD - newYear + 1);
}

} // namespace

int Calc::JewishNewYear(int year) {
    const int x = year - 1;
    const int moon = passoverMoon(x);
    const int passover = wholeDays(moon);
    const int newYear = JulianJD(passover, 3, x - julianYearsBehind) + passoverToNewYear;
    return newYear + postponement(newYear, placeInCycle(x), moon - passover * dayUnits);
}

void Calc::JewishToJD() {
    const int year = CurDate(Jewish, Year);
    const int newYear = JewishNewYear(year);
    setJewishLengths(newYear, JewishNewYear(year + 1));
    if (CurDate(Jewish, Month) == lastMonth && !JewishLeap)
        --CurDate(Jewish, Month);
    DateToJD(Jewish, newYear);
}

void Calc::JDToJewish() {
    const int year = MinYear(Jewish) + CurDate(Julian, Year);
    const int newYear = JewishNewYear(year);
    if (newYear <= CurJD)
        dateFromJD(year, newYear, JewishNewYear(year + 1));
    else
        dateFromJD(year - 1, JewishNewYear(year - 1), newYear);
}

void Calc::SetJewishMonths() {
    const int yearDays = YearDays(Jewish, DaysInYear);
    const bool leapYear = yearDays >= shortestLeapYear;
    if (JewishLeap && !leapYear)
        enterCommonLayout();
    else if (leapYear && !JewishLeap)
        enterLeapLayout();
    setVaryingLengths(yearDays);
}

void Calc::ArrangeJewishNames() {
    if (JewishLeap)
        moveLengthsToCommonLayout();
    JewishLeap = false;
    SetJewishMonths();
}
