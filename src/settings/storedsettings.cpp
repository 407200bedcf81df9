// SPDX-License-Identifier: MIT
#include "settings/storedsettings.h"

#include "platform/message.h"
#include "platform/numbers.h"
#include "platform/settingsstore.h"
#include "platform/text.h"
#include "settings/settingstable.h"
#include "shared/settings.h"

namespace {

bool told = false;

void tellNoNumber(const NumberSetting& row, const QString& text) {
    MsgBox(QStringLiteral("The stored setting is not a number from -32768 to 32767:") +
           LineBreak() + QStringLiteral("[%1] %2=%3").arg(row.section, row.key, Told(text)) +
           LineBreak() + LineBreak() + SettingsFile());
}

bool readNumber(const NumberSetting& row) {
    const QString text = GetSetting(row.section, row.key, QString::number(row.standard));
    const auto number = CInt(text);
    if (number)
        *row.value = *number;
    else
        tellNoNumber(row, text);
    return number.has_value();
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

void saveNumber(const NumberSetting& row, int value) {
    SaveSetting(row.section, row.key, QString::number(value));
}

void saveNumber(const NumberSetting& row) {
    saveNumber(row, *row.value);
}

void flushOrTell() {
    if (FlushSettings() || told)
        return;
    told = true;
    MsgBox(WithEmptyLine(SettingsFile(), QStringLiteral("The settings cannot be written.")));
}

} // namespace

bool ReadSettings() {
    told = false;
    if (!LoadSettings())
        MsgBox(WithEmptyLine(SettingsFile(), QStringLiteral("The settings cannot be read.")));
    for (const NumberSetting& row : NumberSettings()) {
        if (!readNumber(row))
            return false;
    }
    checkCalendarOrder();
    const TextSetting language = LanguageSetting();
    *language.value =
        GetSetting(language.section, language.key, Text(language.standard)).toStdString();
    return true;
}

void SaveCalendarOrder() {
    for (int pane = 1; pane <= paneCount; ++pane)
        saveNumber(CalendarSetting(pane));
    flushOrTell();
}

void SaveOptions(const StoredOptions& options) {
    saveNumber(MoslemTypeSetting(), options.moslemType);
    for (int c = 1; c <= calendarCount; ++c)
        saveNumber(FirstWeekDaySetting(c), options.firstWeekDay(c));
    const TextSetting language = LanguageSetting();
    SaveSetting(language.section, language.key, Text(options.languageName));
    saveNumber(WindowSetting(), options.startupWindow);
    saveNumber(ShowTipsSetting(), options.showTips);
    flushOrTell();
}

void SavePositions() {
    for (int window = 1; window <= mainWindowCount; ++window) {
        saveNumber(TopSetting(window));
        saveNumber(LeftSetting(window));
    }
    flushOrTell();
}
