// SPDX-License-Identifier: MIT
#include "platform/pointer.h"

#include "support/platform_test.h"

namespace {

class Pointer : public PlatformTest {};

TEST_F(Pointer, TheHourglassIsShownForAsLongAsItLives) {
    {
        const HourglassPointer outer;
        ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
        { const HourglassPointer inner; }
        ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    }
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

} // namespace
