// SPDX-License-Identifier: MIT
#include "calc/calc_test.h"
#include "support/judgement.h"

#include <chrono>
#include <string>

namespace {

class Weeks : public StateTest {};

int chronoWeekday(int julianDay) {
    const std::chrono::sys_days day{std::chrono::days{julianDay - 2440588}};
    return static_cast<int>(std::chrono::weekday{day}.iso_encoding());
}

void deriveFromJD(int c) {
    switch (c) {
    case Julian:
        return Calc::JDToJulian();
    case Gregorian:
        Calc::JDToJulian();
        return Calc::JulianToGregorian();
    case Jewish:
        Calc::JDToJulian();
        return Calc::JDToJewish();
    default:
        return Calc::JDToMoslem();
    }
}

// Counts the weeks of a calendar day by day, for each weekday that may open them.
class WeekCounter {
public:
    explicit WeekCounter(int c) : m_calendar(c) {}

    // The next day; expects what the year touched when it was its last.
    void Next(int julianDay) {
        const bool newYear = CurDate(m_calendar, DayNumber) == 1;
        const int weekday = chronoWeekday(julianDay);
        for (int first = Monday; first <= Sunday; ++first) {
            int& week = m_week(first);
            if (newYear)
                expectWhole(first, julianDay);
            week = newYear ? 1 : week + static_cast<int>(weekday == first);
            FirstWeekDay(m_calendar) = first;
            Calc::SetWeeks(m_calendar);
            m_told(first) = YearDays(m_calendar, WeeksInYear);
            ASSERT_EQ(CurDate(m_calendar, WeekNumber), week) << julianDay << " from " << first;
        }
    }

private:
    void expectWhole(int first, int julianDay) const {
        ASSERT_EQ(m_told(first), m_week(first)) << "before " << julianDay << " from " << first;
    }

    int m_calendar;
    Table<int, 7> m_week;
    Table<int, 7> m_told;
};

void countWeeks(int c, int firstDay, int lastDay) {
    WeekCounter counter(c);
    for (int julianDay = firstDay; julianDay <= lastDay + 1; ++julianDay) {
        CurJD = julianDay;
        deriveFromJD(c);
        ASSERT_NO_FATAL_FAILURE(counter.Next(julianDay));
    }
    const std::string calendars[] = {"Julian", "Gregorian", "Jewish", "Moslem"};
    recordJudgement("counting from std::chrono's weekdays",
                    "the week of every " + calendars[c - 1] + " day from each first weekday",
                    daysInWeek * (lastDay - firstDay + 1LL));
}

TEST_F(Weeks, Of2000WithMondayFirst) {
    FirstWeekDay(Gregorian) = Monday;
    enter(Gregorian, {1, 1, 2000});
    EXPECT_EQ(YearDays(Gregorian, WeeksInYear), 53);
    EXPECT_EQ(CurDate(Gregorian, WeekNumber), 1);
    enter(Gregorian, {3, 1, 2000});
    EXPECT_EQ(CurDate(Gregorian, WeekNumber), 2);
}

TEST_F(Weeks, Of2000WithSundayAndSaturdayFirst) {
    enter(Gregorian, {31, 12, 2000});
    EXPECT_EQ(YearDays(Gregorian, WeeksInYear), 54);
    EXPECT_EQ(CurDate(Gregorian, WeekNumber), 54);
    FirstWeekDay(Gregorian) = Saturday;
    Calc::SetWeeks(Gregorian);
    EXPECT_EQ(YearDays(Gregorian, WeeksInYear), 53);
}

TEST_F(Weeks, StoredFirstWeekdaysOutsideTheWeekCountInSevens) {
    const struct {
        int stored;
        int weekday;
    } rows[] = {{1, 1}, {7, 7}, {0, 7}, {8, 1}, {9, 2}, {-3, 4}, {32767, 7}, {-32768, 6}};
    for (const auto& row : rows) {
        FirstWeekDay(Julian) = row.stored;
        EXPECT_EQ(Calc::WeekStart(Julian), row.weekday) << row.stored;
    }
}

TEST_F(Weeks, CountedFromEveryWeekdayOnEveryJulianDay) {
    countWeeks(Julian, 1721424, 2817173);
}

TEST_F(Weeks, CountedFromEveryWeekdayOnEveryGregorianDay) {
    countWeeks(Gregorian, 1721426, 2817152);
}

TEST_F(Weeks, CountedFromEveryWeekdayOnEveryJewishDay) {
    countWeeks(Jewish, 1721319, 2817404);
}

TEST_F(Weeks, CountedFromEveryWeekdayOnEveryMoslemDay) {
    countWeeks(Moslem, 1948439, 2817345);
}

TEST_F(Weeks, CountedFromEveryWeekdayOnEveryMoslemDayOfTheFridayEra) {
    resetState(2);
    countWeeks(Moslem, 1948440, 2817346);
}

TEST_F(Weeks, BeginTheirRowsWithTheFirstWeekday) {
    FirstWeekDay(Jewish) = Saturday;
    EXPECT_EQ(Calc::WeekdayOfRow(Jewish, 0), Saturday);
    EXPECT_EQ(Calc::WeekdayOfRow(Jewish, 1), Sunday);
    EXPECT_EQ(Calc::WeekdayOfRow(Jewish, 6), Friday);
}

TEST_F(Weeks, LeaveBlankWhatLiesBeforeAMonth) {
    enter(Gregorian, {1, 1, 2000});
    EXPECT_EQ(Calc::LeadingBlanks(Gregorian, 1), 6); // a Saturday, from Sunday
    EXPECT_EQ(Calc::LeadingBlanks(Gregorian, 10), 0);
    FirstWeekDay(Gregorian) = Monday;
    EXPECT_EQ(Calc::LeadingBlanks(Gregorian, 1), 5);
    EXPECT_EQ(Calc::LeadingBlanks(Gregorian, 10), 6);
}

TEST_F(Weeks, EachMonthsFirstWeekdayIsOneOfSeven) {
    setDate(Gregorian, 1, 1, 2024);
    Calc::GregorianToJD();
    const std::vector<int> weekdays{1, 4, 5, 1, 3, 6, 1, 4, 7, 2, 5, 7};
    for (int month = 1; month <= 12; ++month)
        EXPECT_EQ(MonthDays(Gregorian, weekdayRow + month),
                  weekdays[static_cast<std::size_t>(month - 1)])
            << month;
}

} // namespace
