// SPDX-License-Identifier: MIT
#pragma once

/// Days and dates of the four calendars by their rules, written for the walk: it
/// shares no code and no table with the program. Calendars are numbered as there,
/// weekdays from 1, Monday; years before the first of a calendar are not asked for.
class Reckoning {
public:
    struct Date {
        int day;
        int month;
        int year;
        bool operator==(const Date& other) const = default;
    };

    /// The Moslem variant is 1, an era from Thursday, or 2, from Friday.
    explicit Reckoning(int moslemType) : m_moslemType(moslemType) {}

    int MonthsIn(int c, int year) const;
    int DaysInMonth(int c, int year, int month) const;
    int DaysInYear(int c, int year) const { return NewYear(c, year + 1) - NewYear(c, year); }

    /// Julian Day of a year's first day.
    int NewYear(int c, int year) const;

    Date DateOf(int c, int julianDay) const;

    /// Julian Day of a date; a month or a day that the year or the month has not
    /// is its last.
    int DayOf(int c, Date date) const;

    /// The first and the last year that a calendar shows, and whether a day lies
    /// before or after them.
    static int FirstYear(int c);
    static int LastYear(int c);
    bool IsBefore(int c, int julianDay) const { return julianDay < NewYear(c, FirstYear(c)); }
    bool IsAfter(int c, int julianDay) const { return julianDay >= NewYear(c, LastYear(c) + 1); }
    bool Shows(int c, int julianDay) const {
        return !IsBefore(c, julianDay) && !IsAfter(c, julianDay);
    }

    static int WeekdayOf(int julianDay) { return julianDay % 7 + 1; }

    /// Days since a mean new moon.
    static double MoonAge(int julianDay);

    static constexpr int lowestDay = 1721319;  // 1 Tishri 3761
    static constexpr int highestDay = 2817404; // the last of Elul 6761
    static constexpr double lunation = 29.530588;

private:
    int m_moslemType;
};
