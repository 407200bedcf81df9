// SPDX-License-Identifier: MIT
#pragma once

#include "shared/calendars.h"
#include "shared/table.h"

#include <string>

// Every text that the windows show, in UTF-8 and in the language now chosen.

/// The four calendars, then "Monthly calendars".
inline Table<std::string, 5> CalendarNames;
inline constexpr int monthlyCalendarsName = 5;

/// MonthNames(c, m). Month 13 is Jewish only. The Jewish row is kept in the
/// layout of the current Jewish year: in a leap year it reads Adar I, Adar II,
/// Nisan .. Elul from month 6 on, in a common year month 13 is empty.
inline Table<std::string, calendarCount, monthLimit> MonthNames;

/// The plain name of Adar, and what a leap year appends to it in months 6 and 7,
/// the same in every language.
inline std::string AdarName;
extern const Table<std::string, 2> AdarSuffixes;

/// What is said of the chosen day behind its date.
inline std::string SelectedWord;

inline Table<std::string, 7> WeekDayNames; ///< Monday first
inline Table<std::string, 7> WeekDayAbbrs; ///< Monday first
inline Table<std::string, 12> LabelTexts;
inline Table<std::string, 25> StringTexts;

/// Entries of LabelTexts.
enum LabelText : int {
    OptionsLabel = 1,
    MoslemCalendarLabel,
    MoslemTypesLabel,
    MoslemEra1Label,
    MoslemLeapYears1Label,
    MoslemEra2Label,
    MoslemLeapYears2Label,
    FirstWeekDayLabel,
    LanguageLabel,
    StartupWindowLabel,
    ShowTipsLabel,
    MoonLabel,
};

/// Entries of StringTexts.
enum StringText : int {
    CalendarText = 1,
    YearText,
    MonthText,
    MonthGridText,
    DayOfYearText,
    WeekOfYearText,
    WeekDayText,
    MoonAgeText,
    JulianDayText,
    MoonText,
    YearCalendarsText,
    TodayText,
    OptionsText,
    AboutText,
    ExitText,
    CloseOrExitText,
    PreviousYearText,
    NextYearText,
    YearGridText,
    MoonPictureText,
    ApplyText,
    CloseText,
    FileNotFoundText,
    JulianDayRangeText,
    SelectLanguageText,
};
