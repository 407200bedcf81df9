// SPDX-License-Identifier: MIT
// The Julian and Gregorian calendars: the same months, two leap rules.
#include "calc/calc.h"
#include "calc/range.h"
#include "calc/state.h"
#include "calc/year.h"

namespace {

constexpr int february = 2;
constexpr int march = 3;
constexpr int december = 12;

constexpr int commonYear = 365;
constexpr int leapYear = 366;
constexpr int fourYears = 3 * commonYear + leapYear;

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

void setRomanLengths(int c, bool leap) {
    MonthDays(c, february) = leap ? 29 : 28;
    YearDays(c, DaysInYear) = leap ? leapYear : commonYear;
}

// By how many days the Gregorian date is ahead of the Julian date of the same
// day in year `year`. In January and February of a dropped century the
// difference of the century before still holds.
int gregorianLead(int year, int month) {
    const int lead = year / 100 - year / 400 - 2;
    return isDroppedCentury(year) && month < march ? lead - 1 : lead;
}

// Into the month before or after.
void crossMonth(int direction, int& month, int& year) {
    month += direction;
    if (month >= 1 && month <= december)
        return;
    month = direction < 0 ? december : 1;
    year += direction;
    setRomanLengths(Gregorian, isGregorianLeap(year));
}

} // namespace

int Calc::JulianJD(int day, int month, int year) {
    // The year is counted from March, so that the leap day is its last.
    const int m = month < march ? month + 13 : month + 1;
    const int y = month < march ? year - 1 : year;
    constexpr int dayZero = 1720995; // by this count
    return m * 306 / 10 + y * 1461 / 4 + day + dayZero;
}

void Calc::JulianToJD() {
    const int year = CurDate(Julian, Year);
    setRomanLengths(Julian, isJulianLeap(year));
    DateToJD(Julian, JulianJD(1, 1, year));
}

void Calc::JDToJulian() {
    const int days = CurJD - MinJD(Julian) + 1;
    int year = days / fourYears * 4;
    int dayNumber = days % fourYears;
    while (dayNumber > commonYear) { // three times at most, by the remainder
        dayNumber -= commonYear;
        ++year;
    }
    if (dayNumber < 1)
        dayNumber = leapYear; // the last day of the four years, in the year just passed
    else
        ++year;

    CurDate(Julian, Year) = year;
    setRomanLengths(Julian, isJulianLeap(year));
    SetMonthAndDay(Julian, dayNumber);
    SetYearEnds(Julian, JulianJD(1, 1, year));
}

void Calc::GregorianToJD() {
    const int year = CurDate(Gregorian, Year);
    setRomanLengths(Gregorian, isGregorianLeap(year));
    DateToJD(Gregorian, JulianJD(1 - gregorianLead(year, 1), 1, year));
}

void Calc::JulianToGregorian() {
    int year = CurDate(Julian, Year);
    int month = CurDate(Julian, Month);
    int day = CurDate(Julian, Day) + gregorianLead(year, month);
    setRomanLengths(Gregorian, isGregorianLeap(year));
    if (day < 1) {
        crossMonth(-1, month, year);
        day += MonthDays(Gregorian, month);
    }
    // More than once where, far beyond the range, the calendars are months apart.
    while (day > MonthDays(Gregorian, month)) {
        day -= MonthDays(Gregorian, month);
        crossMonth(+1, month, year);
    }

    CurDate(Gregorian, Day) = day;
    CurDate(Gregorian, Month) = month;
    CurDate(Gregorian, Year) = year;
    SetYearEnds(Gregorian, CurJD - SetDayNumber(Gregorian) + 1);
}
