// SPDX-License-Identifier: MIT
#pragma once

#include "shared/calendars.h"
#include "shared/table.h"

#include <QString>

namespace Controls {

/// The picture of calendar c.
inline QString EmblemOf(int c) {
    static const Table<QString, calendarCount> names{
        QStringLiteral("emblems/julian"), QStringLiteral("emblems/gregorian"),
        QStringLiteral("emblems/jewish"), QStringLiteral("emblems/moslem")};
    return names(c);
}

} // namespace Controls
