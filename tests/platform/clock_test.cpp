// SPDX-License-Identifier: MIT
#include "platform/clock.h"

#include <gtest/gtest.h>

TEST(Clock, TodayIsTheComputers) {
    const QDate before = QDate::currentDate();
    const QDate today = Today();
    const QDate after = QDate::currentDate();
    EXPECT_TRUE(before <= today && today <= after);
}
