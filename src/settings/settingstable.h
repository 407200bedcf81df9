// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <string>
#include <variant>
#include <vector>

/// Settings that are saved together.
enum class SettingGroup { PaneCalendars, Options, Positions };

/// One setting: where it is kept, what it is when absent, which of the shared values
/// holds it, and with which others it is saved. To add one is to add its row.
struct Setting {
    QString section;
    QString key;
    QString whenAbsent;
    std::variant<int*, std::string*> value; ///< numbers have 16 bits
    SettingGroup group;
    int turn = 0; ///< among those of its group; the lowest is saved first
};

/// All settings in the order in which they are read.
const std::vector<Setting>& Settings();
