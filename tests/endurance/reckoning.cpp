// SPDX-License-Identifier: MIT
#include "endurance/reckoning.h"

#include "shared/calendars.h"
#include "support/molads.h"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace {

constexpr int unixEpoch = 2440588; // Julian Day of 1 January 1970
constexpr int julianEpoch = 1721424;
constexpr int newMoon = 1720993;

bool isRomanLeap(int c, int year) {
    return c == Julian ? year % 4 == 0 : std::chrono::year(year).is_leap();
}

// By a year of the same length, since both calendars have the same months.
int daysInRomanMonth(bool leap, int month) {
    const std::chrono::year_month_day_last last{std::chrono::year(leap ? 2000 : 2001) / month /
                                                std::chrono::last};
    return static_cast<int>(static_cast<unsigned>(last.day()));
}

// Months have 30 and 29 days in turn, but for the two that give a year its length
// and the month that a leap year has more, the sixth.
int daysInJewishMonth(int year, int month) {
    const int excess = (Molads::NewYear(year + 1) - Molads::NewYear(year)) % 10 - 4;
    if ((month == 2 && excess > 0) || (Molads::IsLeap(year) && month == 6))
        return 30;
    if (month == 3 && excess < 0)
        return 29;
    const int place = Molads::IsLeap(year) && month > 6 ? month - 1 : month;
    return place % 2 == 1 ? 30 : 29;
}

double daysInMeanYear(int c) {
    return c == Moslem ? 10631.0 / 30 : 365.25;
}

} // namespace

int Reckoning::MonthsIn(int c, int year) const {
    return c == Jewish && Molads::IsLeap(year) ? 13 : 12;
}

int Reckoning::DaysInMonth(int c, int year, int month) const {
    if (c == Jewish)
        return daysInJewishMonth(year, month);
    if (c != Moslem)
        return daysInRomanMonth(isRomanLeap(c, year), month);
    return month % 2 == 1 || (month == 12 && DaysInYear(c, year) == 355) ? 30 : 29;
}

int Reckoning::NewYear(int c, int year) const {
    const int before = year - 1;
    switch (c) {
    case Julian:
        return julianEpoch + 365 * before + before / 4;
    case Gregorian:
        return unixEpoch + static_cast<int>(std::chrono::sys_days(std::chrono::year(year) / 1 / 1)
                                                .time_since_epoch()
                                                .count());
    case Jewish:
        return Molads::NewYear(year);
    default:
        // Eleven long years in thirty: the fifteenth among them or the sixteenth.
        return m_moslemType == 1 ? 1948439 + 354 * before + (11 * before + 15) / 30
                                 : 1948440 + 354 * before + (11 * before + 14) / 30;
    }
}

Reckoning::Date Reckoning::DateOf(int c, int julianDay) const {
    const int first = FirstYear(c);
    int year = first + static_cast<int>((julianDay - NewYear(c, first)) / daysInMeanYear(c));
    while (NewYear(c, year) > julianDay)
        --year;
    while (NewYear(c, year + 1) <= julianDay)
        ++year;
    Date date{julianDay - NewYear(c, year) + 1, 1, year};
    while (date.day > DaysInMonth(c, year, date.month))
        date.day -= DaysInMonth(c, year, date.month++);
    return date;
}

int Reckoning::DayOf(int c, Date date) const {
    const int last = std::min(date.month, MonthsIn(c, date.year));
    int julianDay = NewYear(c, date.year);
    for (int month = 1; month < last; ++month)
        julianDay += DaysInMonth(c, date.year, month);
    return julianDay + std::min(date.day, DaysInMonth(c, date.year, last)) - 1;
}

int Reckoning::FirstYear(int c) {
    return c == Jewish ? 3761 : 1;
}

int Reckoning::LastYear(int c) {
    if (c == Jewish)
        return 6761;
    return c == Moslem ? 2452 : 3000;
}

double Reckoning::MoonAge(int julianDay) {
    return std::fmod(julianDay - newMoon, static_cast<double>(static_cast<float>(lunation)));
}
