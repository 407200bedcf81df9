// SPDX-License-Identifier: MIT
#include "shared/english.h"

#include "shared/texts.h"

const Table<std::string, 2> AdarSuffixes{" I", " II"};

namespace {

const Table<std::string, 12> romanMonths{"January",   "February", "March",    "April",
                                         "May",       "June",     "July",     "August",
                                         "September", "October",  "November", "December"};

const Table<std::string, 12> jewishMonths{"Tishri", "Heshvan", "Kislev", "Tevet",
                                          "Shevat", "Adar",    "Nisan",  "Iyar",
                                          "Sivan",  "Tammuz",  "Av",     "Elul"};

// The letter after "Dhu" is U+0491 and the sign in "Sha‘ban" U+2018; language
// files and earlier releases know the names in this form.
const Table<std::string, 12> moslemMonths{"Muharram",
                                          "Safar",
                                          "Rabi I",
                                          "Rabi II",
                                          "Jumada I",
                                          "Jumada II",
                                          "Rajab",
                                          "Sha\u2018ban",
                                          "Ramadan",
                                          "Shawwal",
                                          "Dhu\u0491l-Qa\u2018dah",
                                          "Dhu\u0491l-Hijjah"};

void setMonthNames() {
    for (int month = 1; month <= 12; ++month) {
        MonthNames(Julian, month) = romanMonths(month);
        MonthNames(Gregorian, month) = MonthNames(Julian, month);
        MonthNames(Jewish, month) = jewishMonths(month);
        MonthNames(Moslem, month) = moslemMonths(month);
    }
    AdarName = MonthNames(Jewish, 6);
}

void setLabels() {
    LabelTexts = {
        "Options",
        "Moslem calendar",
        "This program version support two types of Moslem calendar with 30 years (Arab) cycle:",
        "Hegira \u2014 July 15, 622 A.D.",
        "Leap years of the cycle: 2, 5, 7, 10, 13, 15, 18, 21, 24, 26, 29",
        "Hegira \u2014 July 16, 622 A.D.",
        "Leap years of the cycle: 2, 5, 7, 10, 13, 16, 18, 21, 24, 26, 29",
        "First day of the week",
        "Language",
        "Startup window",
        "Show tips",
        "Moon",
    };
}

void setStrings() {
    StringTexts = {
        "Calendar",
        "Year",
        "Year month number/Number of months in the year. Month",
        "Monthly calendar (Double-click to show year calendar)",
        "Year day number/Number of days in the year",
        "Year week number/Number of weeks in the year",
        "Week day",
        "Moon age (in days)",
        "Julian Day",
        "Moon",
        "Year calendars",
        "Today",
        "Options",
        "About",
        "Exit",
        "Left mouse button \u2014 Close window. Right mouse button \u2014 Exit",
        "Previous year",
        "Next year",
        "Year calendar (Double-click to show monthly calendars)",
        "Moon (Double-click to show monthly calendars)",
        "Apply",
        "Close",
        "File not found",
        "Julian Days admissible range:",
        "Select language",
    };
}

} // namespace

void SetEnglishTexts() {
    SelectedWord = "selected";
    CalendarNames = {"Julian calendar", "Gregorian calendar", "Jewish calendar", "Moslem calendar",
                     "Monthly calendars"};
    WeekDayNames = {"Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"};
    WeekDayAbbrs = {"Mo", "Tu", "We", "Th", "Fr", "Sa", "Su"};
    setMonthNames();
    setLabels();
    setStrings();
}
