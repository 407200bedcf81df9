// SPDX-License-Identifier: MIT
#include "platform/clock.h"

#include "support/platform_test.h"

#include <QDate>

namespace {

class Clock : public PlatformTest {};

TEST_F(Clock, TodayComesFromTheClockThatWasSet) {
    SetClock([] { return SystemDate{29, 2, 2000}; });
    EXPECT_EQ(Today(), (SystemDate{29, 2, 2000}));
}

TEST_F(Clock, WithoutAnotherClockTodayIsTheComputers) {
    SetClock({});
    const QDate before = QDate::currentDate();
    const SystemDate today = Today();
    const QDate after = QDate::currentDate();
    const QDate date(today.year, today.month, today.day);
    EXPECT_TRUE(before <= date && date <= after);
}

TEST_F(Clock, DaysAreSeconds) {
    EXPECT_DOUBLE_EQ(Days(0.5).count(), 43200);
}

} // namespace
