// SPDX-License-Identifier: MIT
// The Julian and Gregorian calendars: the same months, two leap rules.
#include "calc/calc.h"
#include "calc/months.h"
#include "calc/range.h"
#include "calc/state.h"

namespace {

constexpr int february = 2;
constexpr int march = 3;

constexpr int commonYear = 365;
constexpr int leapYear = 366;
constexpr int fourYears = 3 * commonYear + leapYear;

// A year that is divisible by 4 is a leap year.
int julianDays(int year) {
    return year % 4 == 0 ? leapYear : commonYear;
}

// A century year that is not divisible by 400 is common in the Gregorian
// calendar although it is a leap year in the Julian.
bool isDroppedCentury(int year) {
    return year % 100 == 0 && year % 400 != 0;
}

int gregorianDays(int year) {
    return isDroppedCentury(year) ? commonYear : julianDays(year);
}

void setLengths(int c, int yearDays) {
    MonthDays(c, february) = yearDays == leapYear ? 29 : 28;
    YearDays(c, DaysInYear) = yearDays;
}

// By how many days a day's number in the Gregorian year is ahead of its number in the
// Julian year `year`. The leap day of a dropped century is counted by the Julian number
// alone, so the difference of the century before holds for all of its year.
int gregorianLead(int year) {
    const int lead = year / 100 - year / 400 - 2;
    return isDroppedCentury(year) ? lead - 1 : lead;
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
    setLengths(Julian, julianDays(year));
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
    setLengths(Julian, julianDays(year));
    DateFromDayNumber(Julian, JulianJD(1, 1, year), dayNumber);
}

void Calc::GregorianToJD() {
    const int year = CurDate(Gregorian, Year);
    setLengths(Gregorian, gregorianDays(year));
    DateToJD(Gregorian, JulianJD(1 - gregorianLead(year), 1, year));
}

void Calc::JulianToGregorian() {
    int year = CurDate(Julian, Year);
    int dayNumber = CurDate(Julian, DayNumber) + gregorianLead(year);
    if (dayNumber < 1) {
        --year;
        dayNumber += gregorianDays(year);
    }
    while (dayNumber > gregorianDays(year)) {
        dayNumber -= gregorianDays(year);
        ++year;
    }
    CurDate(Gregorian, Year) = year;
    setLengths(Gregorian, gregorianDays(year));
    DateFromDayNumber(Gregorian, CurJD - dayNumber + 1, dayNumber);
}
