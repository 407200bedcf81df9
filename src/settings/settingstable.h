// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <string>
#include <vector>

// The table of the settings: where each is kept, what it is when absent, and
// which of the shared values holds it. All are read by it; which are saved together,
// and when, stands in storedsettings.

struct NumberSetting {
    QString section;
    QString key;
    int standard;
    int* value;
};

struct TextSetting {
    QString section;
    QString key;
    std::string standard;
    std::string* value;
};

NumberSetting CalendarSetting(int pane);
NumberSetting FirstWeekDaySetting(int c);
NumberSetting TopSetting(int window);
NumberSetting LeftSetting(int window);
NumberSetting MoslemTypeSetting();
NumberSetting WindowSetting();
NumberSetting ShowTipsSetting();
TextSetting LanguageSetting();

/// All numbers in the order in which they are read.
std::vector<NumberSetting> NumberSettings();
