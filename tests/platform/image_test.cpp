// SPDX-License-Identifier: MIT
#include "platform/image.h"

#include "support/ink.h"
#include "support/platform_test.h"

namespace {

class Images : public PlatformTest {};

TEST_F(Images, PicturesFillTheirControl) {
    Image image(QStringLiteral("Image1"), QStringLiteral("icon"), nullptr);
    for (const int side : {32, 64, 200}) {
        image.resize(side, side);
        const QRect ink = InkOf(image.grab().toImage());
        EXPECT_GT(ink.width(), side * 3 / 4) << side;
        EXPECT_GT(ink.height(), side * 3 / 4) << side;
    }
}

} // namespace
