// SPDX-License-Identifier: MIT
#include "endurance/expected.h"

#include <algorithm>

void Expected::Start() {
    End();
    ended = false;
    GoToToday();
    Show(startup == 0 ? int{MonthlyWindowNumber} : startup);
}

YearAndDay Expected::In(int c) const {
    const Reckoning rules = Rules();
    YearAndDay in{rules.DateOf(c, day), 0, 0, 0, 0, 0, 0};
    in.months = rules.MonthsIn(c, in.date.year);
    in.firstDay = rules.NewYear(c, in.date.year);
    in.days = rules.DaysInYear(c, in.date.year);
    in.dayNumber = day - in.firstDay + 1;
    const int blanks = LeadingBlanks(c, in.date.year, 1);
    in.week = (blanks + in.dayNumber - 1) / daysInWeek + 1;
    in.weeks = (blanks + in.days - 1) / daysInWeek + 1;
    return in;
}

void Expected::MoveBy(int days) {
    if (day + days >= Reckoning::lowestDay)
        day += days;
}

void Expected::MoveWithinYear(int c, int days) {
    const YearAndDay in = In(c);
    day = std::clamp(day + days, in.firstDay, in.firstDay + in.days - 1);
}

void Expected::Exchange(int pane, int c) {
    for (int other = 1; other <= paneCount; ++other) {
        if (order(other) == c)
            order(other) = order(pane);
    }
    order(pane) = c;
}

void Expected::Show(int number) {
    open(number) = true;
    minimised(number) = false;
}

void Expected::ShowYearsOfPanes() {
    for (int c = 1; c <= calendarCount; ++c)
        Show(c);
}

void Expected::OpenOptions() {
    if (!options)
        options = PendingOptions{moslemType, firstWeekDay, order, language, startup, tips};
}

void Expected::Apply() {
    moslemType = options.value().moslemType;
    firstWeekDay = options.value().firstWeekDay;
    language = options.value().language;
    startup = options.value().startup;
    tips = options.value().tips;
    options.reset();
    about = false;
}

void Expected::Close(int number) {
    open(number) = minimised(number) = false;
    if (number != MoonWindowNumber && OpenCalendars() == 0)
        End();
}

void Expected::End() {
    open = {};
    minimised = {};
    options.reset();
    about = false;
    ended = true;
}

int Expected::OpenCalendars() const {
    int count = 0;
    for (int number = 1; number <= MonthlyWindowNumber; ++number)
        count += open(number) ? 1 : 0;
    return count;
}

int Expected::LeadingBlanks(int c, int year, int month) const {
    const int first = Rules().DayOf(c, {1, month, year});
    return (Reckoning::WeekdayOf(first) - firstWeekDay(c) + daysInWeek) % daysInWeek;
}
