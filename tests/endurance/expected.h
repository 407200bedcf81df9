// SPDX-License-Identifier: MIT
#pragma once

#include "endurance/reckoning.h"
#include "shared/calendars.h"
#include "shared/mainwindows.h"
#include "shared/settings.h"
#include "shared/table.h"

#include <optional>
#include <string>

/// What the options dialog holds until it is applied.
struct PendingOptions {
    int moslemType;
    Table<int, calendarCount> firstWeekDay;
    Table<int, paneCount> calendarOfPane; ///< as the dialog was opened
    std::string language;
    int startup;
    bool tips;
};

/// The chosen day in one calendar and the year about it.
struct YearAndDay {
    Reckoning::Date date;
    int months;
    int firstDay; ///< Julian Day of the year's first
    int days;
    int dayNumber;
    int week;
    int weeks;
};

/// What the program should be showing, as it follows from the actions so far.
class Expected {
public:
    /// As the program starts for the first time, on a day that is today.
    explicit Expected(int today) : day(today), m_today(today) { Start(); }

    int day;
    int moslemType = 1;
    Table<int, calendarCount> firstWeekDay{Sunday, Sunday, Sunday, Sunday};
    Table<int, paneCount> order{Julian, Gregorian, Jewish, Moslem};
    std::string language = "English (Default)";
    int startup = 0;
    bool tips = true;

    /// Of the main windows by their numbers; a minimised one is open too.
    Table<bool, mainWindowCount> open;
    Table<bool, mainWindowCount> minimised;
    std::optional<PendingOptions> options; ///< while the dialog is open
    bool about = false;
    bool ended = false; ///< the program is to be started again

    /// The program starts with what it has stored.
    void Start();

    Reckoning Rules() const { return Reckoning(moslemType); }
    bool Shows(int c) const { return Rules().Shows(c, day); }
    YearAndDay In(int c) const;

    void GoToToday() { day = m_today; }

    /// A date chosen in a calendar, its day or month perhaps beyond the last.
    void Choose(int c, const Reckoning::Date& date) { day = Rules().DayOf(c, date); }

    /// A step of days, refused where it would lead below the lowest.
    void MoveBy(int days);

    /// A step within or beyond the year that stops at the year's ends.
    void MoveWithinYear(int c, int days);

    /// The calendar chosen for a pane; the pane that had it takes this one's.
    void Exchange(int pane, int c);

    void Show(int number);
    void ShowYearsOfPanes();
    void OpenOptions();
    void Apply();

    /// A main window goes; the program ends with the last calendar window.
    void Close(int number);
    void End();

    int OpenCalendars() const;

    /// The blank cells before the first day of a month of calendar c.
    int LeadingBlanks(int c, int year, int month) const;

private:
    int m_today;
};
