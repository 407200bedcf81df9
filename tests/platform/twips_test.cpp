// SPDX-License-Identifier: MIT
#include "platform/twips.h"

#include <gtest/gtest.h>

namespace {

TEST(Twips, TwipsBecomeTheNearestPixelsHalfAwayFromZero) {
    const struct {
        double twips;
        int pixels;
    } rows[] = {{0, 0},    {255, 17},  {195, 13}, {7, 0},    {7.5, 1},
                {22.5, 2}, {-7.5, -1}, {-7, 0},   {-30, -2}, {300, 20}};
    for (const auto& row : rows)
        EXPECT_EQ(ToPixels(row.twips), row.pixels) << row.twips;
    EXPECT_EQ(ToTwips(17), 255);
    EXPECT_EQ(ToTwips(-2), -30);
}

} // namespace
