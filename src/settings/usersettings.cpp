// SPDX-License-Identifier: MIT
#include "settings/usersettings.h"

#include "platform/message.h"
#include "platform/numbers.h"
#include "platform/settingsfile.h"
#include "platform/text.h"
#include "shared/settings.h"

#include <algorithm>
#include <iterator>

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

bool isAcceptable(int pane) {
    for (int before = 1; before < pane; ++before) {
        if (CalendarOrder(pane) == CalendarOrder(before))
            return false;
    }
    return IsCalendar(CalendarOrder(pane));
}

// The first pane's number is only compared, never checked by itself.
void checkCalendarOrder() {
    for (int pane = 2; pane <= paneCount; ++pane) {
        if (!isAcceptable(pane))
            CalendarOrder = {Julian, Gregorian, Jewish, Moslem};
    }
}

QString asText(const std::string* value) {
    return Text(*value);
}

QString asText(const int* value) {
    return QString::number(*value);
}

std::vector<Setting> rowsOf(SettingGroup group) {
    std::vector<Setting> rows;
    std::copy_if(Settings().begin(), Settings().end(), std::back_inserter(rows),
                 [group](const Setting& row) { return row.group == group; });
    std::stable_sort(rows.begin(), rows.end(),
                     [](const Setting& a, const Setting& b) { return a.turn < b.turn; });
    return rows;
}

void flushOrTell() {
    if (FlushSettings() || failureIsTold)
        return;
    failureIsTold = true;
    MsgBox(WithEmptyLine(SettingsFile(), QStringLiteral("The settings cannot be written.")));
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
    for (const Setting& row : rowsOf(group))
        SaveSetting(row.section, row.key,
                    std::visit([](auto* value) { return asText(value); }, row.value));
    flushOrTell();
}
