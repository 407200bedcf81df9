// SPDX-License-Identifier: MIT
#include "platform/image.h"

#include "support/platform_test.h"

namespace {

class Images : public PlatformTest {};

TEST_F(Images, PicturesFillTheirControl) {
    Image image(QStringLiteral("Image1"), QStringLiteral("icon"), nullptr);
    image.resize(64, 64);
    QWidget blank;
    blank.resize(64, 64);
    EXPECT_NE(image.grab().toImage(), blank.grab().toImage());
}

} // namespace
