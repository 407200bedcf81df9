// SPDX-License-Identifier: MIT
#include "start/storedsettings.h"

#include "changecals/saving.h"
#include "platform/message.h"
#include "platform/numbers.h"
#include "platform/settingsstore.h"
#include "platform/text.h"
#include "shared/settings.h"

#include <vector>

namespace {

/// A stored number: where it is kept, what it is when absent, where it goes.
struct NumberSetting {
    QString section;
    QString key;
    int standard;
    int* value;
};

QString startup() {
    return QStringLiteral("Startup");
}

void addPosition(std::vector<NumberSetting>& rows, int window) {
    const QString section = ChangeCals::SettingsSection(window);
    rows.push_back({section, QStringLiteral("Top"), noPosition, &FormTop(window)});
    rows.push_back({section, QStringLiteral("Left"), noPosition, &FormLeft(window)});
}

std::vector<NumberSetting> numberSettings() {
    std::vector<NumberSetting> rows;
    for (int pane = 1; pane <= 4; ++pane)
        rows.push_back(
            {startup(), QStringLiteral("Calendar%1").arg(pane), pane, &CalendarOrder(pane)});
    for (int c = 1; c <= calendarCount; ++c) {
        rows.push_back({ChangeCals::SettingsSection(c), QStringLiteral("FirstWeekDay"), Sunday,
                        &FirstWeekDay(c)});
        addPosition(rows, c);
    }
    addPosition(rows, MonthlyWindowNumber);
    addPosition(rows, MoonWindowNumber);
    rows.push_back({ChangeCals::SettingsSection(Moslem), QStringLiteral("Type"), 1, &MoslemType});
    rows.push_back({startup(), QStringLiteral("Window"), 0, &StartupWindow});
    rows.push_back({startup(), QStringLiteral("ShowTips"), 1, &ShowTips});
    return rows;
}

bool readNumber(const NumberSetting& row) {
    const QString text = GetSetting(row.section, row.key, QString::number(row.standard));
    const auto number = CInt(text);
    if (!number) {
        MsgBox(QStringLiteral("The stored setting is not a number from -32768 to 32767:") +
               LineBreak() + QStringLiteral("[%1] %2=%3").arg(row.section, row.key, text) +
               LineBreak() + LineBreak() + SettingsFile());
        return false;
    }
    *row.value = *number;
    return true;
}

bool isAcceptable(int pane) {
    for (int before = 1; before < pane; ++before) {
        if (CalendarOrder(pane) == CalendarOrder(before))
            return false;
    }
    return isCalendar(CalendarOrder(pane));
}

// The first pane's number is only compared, never checked by itself.
void checkCalendarOrder() {
    if (!isAcceptable(2) || !isAcceptable(3) || !isAcceptable(4))
        CalendarOrder = {Julian, Gregorian, Jewish, Moslem};
}

} // namespace

bool ReadSettings() {
    for (const NumberSetting& row : numberSettings()) {
        if (!readNumber(row))
            return false;
    }
    checkCalendarOrder();
    LanguageName =
        GetSetting(startup(), QStringLiteral("Language"), Text(englishLanguage)).toStdString();
    return true;
}
