// SPDX-License-Identifier: MIT
#include "platform/twips.h"

#include <gtest/gtest.h>

namespace {

TEST(Twips, BecomeTheNearestPixels) {
    const struct {
        Twips twips;
        int pixels;
    } rows[] = {{{0}, 0},  {{255}, 17}, {{195}, 13}, {{7}, 0},    {{8}, 1},
                {{22}, 1}, {{-8}, -1},  {{-7}, 0},   {{-30}, -2}, {{300}, 20}};
    for (const auto& row : rows)
        EXPECT_EQ(ToPixels(row.twips), row.pixels) << row.twips.count;
    EXPECT_EQ(ToTwips(17).count, 255);
    EXPECT_EQ(ToTwips(-2).count, -30);
}

TEST(Twips, AreAddedAndTakenSeveralTimes) {
    EXPECT_EQ(Twips{7} + Twips{8}, Twips{15});
    EXPECT_EQ(3 * Twips{8}, Twips{24});
}

} // namespace
