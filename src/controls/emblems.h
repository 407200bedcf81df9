// SPDX-License-Identifier: MIT
#pragma once

#include "shared/calendars.h"
#include "shared/table.h"

#include <QString>

/// The pictures of the calendars.
inline const Table<QString, calendarCount> Emblems{
    QStringLiteral("emblems/julian"), QStringLiteral("emblems/gregorian"),
    QStringLiteral("emblems/jewish"), QStringLiteral("emblems/moslem")};
