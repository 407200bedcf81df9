// SPDX-License-Identifier: MIT
#include "changecals/saving.h"

#include "platform/message.h"
#include "platform/settingsstore.h"
#include "shared/settings.h"

namespace {

bool told = false;

} // namespace

QString ChangeCals::SettingsSection(int number) {
    static const Table<QString, mainWindowCount> sections{
        QStringLiteral("Julian"), QStringLiteral("Gregorian"), QStringLiteral("Jewish"),
        QStringLiteral("Moslem"), QStringLiteral("Monthly"),   QStringLiteral("Moon")};
    return sections(number);
}

void ChangeCals::FlushSettingsOrTell() {
    if (FlushSettings() || told)
        return;
    told = true;
    MsgBox(WithEmptyLine(SettingsFile(), QStringLiteral("The settings cannot be written.")));
}

void ChangeCals::ForgetTelling() {
    told = false;
}
