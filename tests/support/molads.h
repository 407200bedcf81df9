// SPDX-License-Identifier: MIT
#pragma once

/// The Jewish new year from the rule itself, in whole numbers: new moons from the
/// first one on, and four postponements. A second witness beside the table, which
/// comes from programs.
namespace Molads {

constexpr long long hour = 1080; // parts
constexpr long long day = 24 * hour;
constexpr long long lunation = 29 * day + 12 * hour + 793;
constexpr long long firstMoon = 5 * hour + 204; // of a day that begins on Sunday at 18:00
constexpr int firstDay = 347998;                // that Monday

constexpr bool IsLeap(int year) {
    return (7 * year + 1) % 19 < 7;
}

constexpr long long MonthsBefore(int year) {
    return (235LL * (year - 1) + 1) / 19;
}

enum Weekday : int { Monday, Tuesday, Wednesday, Thursday, Friday, Saturday, Sunday };

constexpr bool IsForbidden(long long dayNumber) {
    const long long weekday = dayNumber % 7;
    return weekday == Sunday || weekday == Wednesday || weekday == Friday;
}

/// A moon that is too late for its own day: after noon; in a common year on a
/// Tuesday from 9 h 204 p; after a leap year on a Monday from 15 h 589 p.
constexpr bool IsLate(int year, long long dayNumber, long long time) {
    const long long weekday = dayNumber % 7;
    return time >= 18 * hour || (weekday == Tuesday && !IsLeap(year) && time >= 9 * hour + 204) ||
           (weekday == Monday && IsLeap(year - 1) && time >= 15 * hour + 589);
}

/// Julian Day of 1 Tishri.
constexpr int NewYear(int year) {
    const long long moon = firstMoon + MonthsBefore(year) * lunation;
    long long dayNumber = moon / day;
    if (IsLate(year, dayNumber, moon % day))
        ++dayNumber;
    if (IsForbidden(dayNumber))
        ++dayNumber;
    return firstDay + static_cast<int>(dayNumber);
}

} // namespace Molads
