// SPDX-License-Identifier: MIT
#include "settings/settingstable.h"

#include "shared/settings.h"

namespace {

QString startup() {
    return QStringLiteral("Startup");
}

// Of a main window by its number.
QString windowSection(int window) {
    static const Table<QString, mainWindowCount> sections{
        QStringLiteral("Julian"), QStringLiteral("Gregorian"), QStringLiteral("Jewish"),
        QStringLiteral("Moslem"), QStringLiteral("Monthly"),   QStringLiteral("Moon")};
    return sections(window);
}

void addPosition(std::vector<NumberSetting>& rows, int window) {
    rows.push_back(TopSetting(window));
    rows.push_back(LeftSetting(window));
}

} // namespace

NumberSetting CalendarSetting(int pane) {
    return {startup(), QStringLiteral("Calendar%1").arg(pane), pane, &CalendarOrder(pane)};
}

NumberSetting FirstWeekDaySetting(int c) {
    return {windowSection(c), QStringLiteral("FirstWeekDay"), Sunday, &FirstWeekDay(c)};
}

NumberSetting TopSetting(int window) {
    return {windowSection(window), QStringLiteral("Top"), noPosition, &FormTop(window)};
}

NumberSetting LeftSetting(int window) {
    return {windowSection(window), QStringLiteral("Left"), noPosition, &FormLeft(window)};
}

NumberSetting MoslemTypeSetting() {
    return {windowSection(Moslem), QStringLiteral("Type"), 1, &MoslemType};
}

NumberSetting WindowSetting() {
    return {startup(), QStringLiteral("Window"), 0, &StartupWindow};
}

NumberSetting ShowTipsSetting() {
    return {startup(), QStringLiteral("ShowTips"), 1, &ShowTips};
}

TextSetting LanguageSetting() {
    return {startup(), QStringLiteral("Language"), englishLanguage, &LanguageName};
}

std::vector<NumberSetting> NumberSettings() {
    std::vector<NumberSetting> rows;
    for (int pane = 1; pane <= paneCount; ++pane)
        rows.push_back(CalendarSetting(pane));
    for (int c = 1; c <= calendarCount; ++c) {
        rows.push_back(FirstWeekDaySetting(c));
        addPosition(rows, c);
    }
    addPosition(rows, MonthlyWindowNumber);
    addPosition(rows, MoonWindowNumber);
    rows.insert(rows.end(), {MoslemTypeSetting(), WindowSetting(), ShowTipsSetting()});
    return rows;
}
