// SPDX-License-Identifier: MIT
#include "platform/clock.h"

#include <QDate>

namespace {

std::function<SystemDate()> replacedClock;

} // namespace

SystemDate Today() {
    if (replacedClock)
        return replacedClock();
    const QDate today = QDate::currentDate();
    return {today.day(), today.month(), today.year()};
}

void SetClock(std::function<SystemDate()> clock) {
    replacedClock = std::move(clock);
}
