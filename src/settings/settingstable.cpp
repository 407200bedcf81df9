// SPDX-License-Identifier: MIT
#include "settings/settingstable.h"

#include "shared/english.h"
#include "shared/mainwindows.h"
#include "shared/settings.h"

namespace {

using enum SettingGroup;

const QString startup = QStringLiteral("Startup");

// Of a main window by its number.
const Table<QString, mainWindowCount> windowSections{
    QStringLiteral("Julian"), QStringLiteral("Gregorian"), QStringLiteral("Jewish"),
    QStringLiteral("Moslem"), QStringLiteral("Monthly"),   QStringLiteral("Moon")};

std::vector<Setting> settings() {
    std::vector<Setting> rows;
    const auto add = [&rows](Setting row) { rows.push_back(std::move(row)); };
    const auto text = [](int number) { return QString::number(number); };
    for (int pane = 1; pane <= paneCount; ++pane)
        add({startup, QStringLiteral("Calendar%1").arg(pane), text(pane), &CalendarOrder(pane),
             PaneCalendars});
    for (const MainWindowNumber window : mainWindows) {
        const QString& section = windowSections(window);
        if (IsCalendar(window))
            add({section, QStringLiteral("FirstWeekDay"), text(Sunday), &FirstWeekDay(window),
                 Options, 2});
        add({section, QStringLiteral("Top"), text(noPosition), &FormTop(window), Positions});
        add({section, QStringLiteral("Left"), text(noPosition), &FormLeft(window), Positions});
    }
    add({windowSections(Moslem), QStringLiteral("Type"), text(1), &MoslemType, Options, 1});
    add({startup, QStringLiteral("Window"), text(0), &StartupWindow, Options, 4});
    add({startup, QStringLiteral("Language"), QString::fromStdString(englishLanguage),
         &LanguageName, Options, 3});
    add({startup, QStringLiteral("ShowTips"), text(1), &ShowTips, Options, 5});
    return rows;
}

} // namespace

const std::vector<Setting>& Settings() {
    static const std::vector<Setting> rows = settings();
    return rows;
}
