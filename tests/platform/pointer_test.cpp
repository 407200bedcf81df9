// SPDX-License-Identifier: MIT
#include "platform/pointer.h"

#include "support/platform_test.h"

namespace {

class Pointer : public PlatformTest {};

TEST_F(Pointer, AShapeIsShownForAsLongAsItLives) {
    {
        const PointerShape outer(Qt::WaitCursor);
        ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
        { const PointerShape inner(Qt::ArrowCursor); }
        ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    }
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

} // namespace
