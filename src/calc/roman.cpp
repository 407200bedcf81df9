// SPDX-License-Identifier: MIT
// The Julian and Gregorian calendars: the same months, two leap rules.
#include "calc/calc.h"
#include "calc/state.h"

namespace {

constexpr int february = 2;
constexpr int march = 3;
constexpr int december = 12;

constexpr int dayBeforeYear1 = 1721423; // 31 December of the year before year 1
constexpr int fourYears = 4 * 365 + 1;

// A year that is divisible by 4 is a leap year.
bool isJulianLeap(int year) {
    return year % 4 == 0;
}

// A century year that is not divisible by 400 is common in the Gregorian
// calendar although it is a leap year in the Julian.
bool isDroppedCentury(int year) {
    return year % 100 == 0 && year % 400 != 0;
}

bool isGregorianLeap(int year) {
    return isJulianLeap(year) && !isDroppedCentury(year);
}

void setYearLength(int c, bool leap) {
    MonthDays(c, february) = leap ? 29 : 28;
    YearDays(c, DaysInYear) = leap ? 366 : 365;
}

void clampDay(int c) {
    const int length = MonthDays(c, CurDate(c, Month));
    if (CurDate(c, Day) > length)
        CurDate(c, Day) = length;
}

void setJulianYear() {
    const int year = CurDate(Julian, Year);
    YearJD(Julian, FirstDay) = Calc::JulianJD(1, 1, year);
    YearJD(Julian, LastDay) = YearJD(Julian, FirstDay) + YearDays(Julian, DaysInYear) - 1;
}

// Needs CurJD and the day of the year.
void setGregorianYear() {
    CurDate(Gregorian, DayNumber) =
        Calc::DayOfYear(Gregorian, CurDate(Gregorian, Month), CurDate(Gregorian, Day));
    YearJD(Gregorian, FirstDay) = CurJD - CurDate(Gregorian, DayNumber) + 1;
    YearJD(Gregorian, LastDay) = YearJD(Gregorian, FirstDay) + YearDays(Gregorian, DaysInYear) - 1;
    Calc::SetMonthStarts(Gregorian);
}

// By how many days the Gregorian date is ahead of the Julian date of the same
// day in year `year`. In January and February of a dropped century the
// difference of the century before still holds.
int gregorianLead(int year, int month) {
    const int lead = year / 100 - year / 400 - 2;
    return isDroppedCentury(year) && month < march ? lead - 1 : lead;
}

void crossYear(int& day, int& month, int& year) {
    if (month == december && day >= 32) {
        day -= 31;
        month = 1;
        ++year;
    } else if (month == 1 && day < 1) {
        day += 31;
        month = december;
        --year;
    }
}

void crossMonth(int& day, int& month) {
    if (day < 1) {
        --month;
        day += MonthDays(Gregorian, month);
    }
    if (day > MonthDays(Gregorian, month)) {
        day -= MonthDays(Gregorian, month);
        ++month;
    }
}

} // namespace

int Calc::JulianJD(int day, int month, int year) {
    // The year is counted from March, so that the leap day is its last.
    const int m = month < march ? month + 13 : month + 1;
    const int y = month < march ? year - 1 : year;
    return m * 306 / 10 + y * 1461 / 4 + day + 1720995;
}

void Calc::JulianToJD() {
    const int year = CurDate(Julian, Year);
    setYearLength(Julian, isJulianLeap(year));
    clampDay(Julian);
    CurJD = JulianJD(CurDate(Julian, Day), CurDate(Julian, Month), year);
    setJulianYear();
    CurDate(Julian, DayNumber) = CurJD - YearJD(Julian, FirstDay) + 1;
    SetMonthStarts(Julian);
}

void Calc::JDToJulian() {
    const int days = CurJD - dayBeforeYear1;
    int year = days / fourYears * 4;
    int dayNumber = days % fourYears;
    for (int passed = 0; passed < 3 && dayNumber >= 366; ++passed) {
        dayNumber -= 365;
        ++year;
    }
    if (dayNumber < 1)
        dayNumber = 366; // the last day of the four years, in the year just passed
    else
        ++year;

    CurDate(Julian, Year) = year;
    setYearLength(Julian, isJulianLeap(year));
    CurDate(Julian, DayNumber) = dayNumber;
    CurDate(Julian, Day) = dayNumber;
    DayToMonth(Julian, CurDate(Julian, Month), CurDate(Julian, Day));
    setJulianYear();
    SetMonthStarts(Julian);
}

void Calc::GregorianToJD() {
    const int year = CurDate(Gregorian, Year);
    const int month = CurDate(Gregorian, Month);
    setYearLength(Gregorian, isGregorianLeap(year));
    clampDay(Gregorian);
    CurJD = JulianJD(CurDate(Gregorian, Day) - gregorianLead(year, month), month, year);
    setGregorianYear();
}

void Calc::JulianToGregorian() {
    int year = CurDate(Julian, Year);
    int month = CurDate(Julian, Month);
    int day = CurDate(Julian, Day) + gregorianLead(year, month);
    crossYear(day, month, year);
    setYearLength(Gregorian, isGregorianLeap(year));
    crossMonth(day, month);

    CurDate(Gregorian, Day) = day;
    CurDate(Gregorian, Month) = month;
    CurDate(Gregorian, Year) = year;
    setGregorianYear();
}
