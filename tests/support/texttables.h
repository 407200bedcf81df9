// SPDX-License-Identifier: MIT
#pragma once

#include "shared/texts.h"

/// Every text table, to be compared as a whole.
struct TextTables {
    decltype(CalendarNames) calendarNames = CalendarNames;
    decltype(MonthNames) monthNames = MonthNames;
    std::string adarName = AdarName;
    std::string selectedWord = SelectedWord;
    decltype(WeekDayNames) weekDayNames = WeekDayNames;
    decltype(WeekDayAbbrs) weekDayAbbrs = WeekDayAbbrs;
    decltype(LabelTexts) labelTexts = LabelTexts;
    decltype(StringTexts) stringTexts = StringTexts;

    bool operator==(const TextTables& other) const = default;
};

/// Empties them, as they are before the start.
inline void clearTexts() {
    CalendarNames = {};
    MonthNames = {};
    AdarName.clear();
    SelectedWord.clear();
    WeekDayNames = {};
    WeekDayAbbrs = {};
    LabelTexts = {};
    StringTexts = {};
}
