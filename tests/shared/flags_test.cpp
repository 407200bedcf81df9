// SPDX-License-Identifier: MIT
#include "shared/flags.h"

#include <gtest/gtest.h>

TEST(UpdatingGuard, SetsTheFlagForAsLongAsItLives) {
    {
        const UpdatingGuard guard;
        EXPECT_TRUE(Updating);
    }
    EXPECT_FALSE(Updating);
}

TEST(UpdatingGuard, AnInnerRefillLeavesTheOuterOneAtWork) {
    const UpdatingGuard outer;
    {
        const UpdatingGuard inner;
        EXPECT_TRUE(Updating);
    }
    EXPECT_TRUE(Updating);
}

TEST(CurrentWindow, IsTheMonthlyOneAtFirst) {
    EXPECT_EQ(CurrentWindow, 0);
}
