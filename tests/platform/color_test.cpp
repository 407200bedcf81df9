// SPDX-License-Identifier: MIT
#include "platform/color.h"

#include <gtest/gtest.h>

namespace {

TEST(Colors, ColorNumbersHoldRedInTheirLowestByte) {
    EXPECT_EQ(ToColor(0x0000FF), QColor(255, 0, 0));
    EXPECT_EQ(ToColor(0x800000), QColor(0, 0, 128));
    EXPECT_EQ(ToColor(0x123456), QColor(0x56, 0x34, 0x12));
    EXPECT_EQ(ToColor(0xFFFFFF), QColor(Qt::white));
}

} // namespace
