// SPDX-License-Identifier: MIT
#include "settings/usersettings.h"

#include "platform/message.h"
#include "platform/numbers.h"
#include "platform/settingsfile.h"
#include "platform/text.h"
#include "shared/settings.h"

#include <map>
#include <set>

namespace {

bool failureIsTold = false;

void tellNoNumber(const Setting& row, const QString& text) {
    MsgBox(QStringLiteral("The stored setting is not a number from -32768 to 32767:") +
           LineBreak() + QStringLiteral("[%1] %2=%3").arg(row.section, row.key, Told(text)) +
           LineBreak() + LineBreak() + SettingsFile());
}

bool take(const QString& text, std::string* value) {
    *value = text.toStdString();
    return true;
}

bool take(const QString& text, int* value) {
    const auto number = CInt(text);
    *value = number.value_or(*value);
    return number.has_value();
}

bool read(const Setting& row) {
    const QString text = GetSetting(row.section, row.key, row.whenAbsent);
    const bool taken = std::visit([&text](auto* value) { return take(text, value); }, row.value);
    if (!taken)
        tellNoNumber(row, text);
    return taken;
}

// The first pane's number is only compared, never checked by itself.
void checkCalendarOrder() {
    std::set<int> before{CalendarOrder(1)};
    for (int pane = 2; pane <= paneCount; ++pane) {
        const int c = CalendarOrder(pane);
        if (!IsCalendar(c) || !before.insert(c).second)
            CalendarOrder = {Julian, Gregorian, Jewish, Moslem};
    }
}

QString asText(const std::string* value) {
    return Text(*value);
}

QString asText(const int* value) {
    return QString::number(*value);
}

// By their turns; those of the same turn are saved as they are read.
std::multimap<int, Setting> rowsOf(SettingGroup group) {
    std::multimap<int, Setting> rows;
    for (const Setting& row : Settings()) {
        if (row.group == group)
            rows.emplace(row.turn, row);
    }
    return rows;
}

} // namespace

bool ReadSettings() {
    failureIsTold = false;
    if (!LoadSettings())
        MsgBox(WithEmptyLine(SettingsFile(), QStringLiteral("The settings cannot be read.")));
    for (const Setting& row : Settings()) {
        if (!read(row))
            return false;
    }
    checkCalendarOrder();
    return true;
}

void SaveSettings(SettingGroup group) {
    for (const auto& [turn, row] : rowsOf(group))
        SaveSetting(row.section, row.key,
                    std::visit([](auto* value) { return asText(value); }, row.value));
    if (FlushSettings() || failureIsTold)
        return;
    failureIsTold = true;
    MsgBox(WithEmptyLine(SettingsFile(), QStringLiteral("The settings cannot be written.")));
}
