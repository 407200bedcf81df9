// SPDX-License-Identifier: MIT
#include "platform/image.h"

#include "support/platform_test.h"

namespace {

class Images : public PlatformTest {};

/// The pixels of a picture that are not as in its corner, where the icon is clear.
QRect inkOf(const QImage& image) {
    QRect ink;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != image.pixel(0, 0))
                ink |= QRect(x, y, 1, 1);
    return ink;
}

TEST_F(Images, PicturesFillTheirControl) {
    Image image(QStringLiteral("Image1"), QStringLiteral("icon"), nullptr);
    for (const int side : {32, 64, 200}) {
        image.resize(side, side);
        const QRect ink = inkOf(image.grab().toImage());
        EXPECT_GT(ink.width(), side * 3 / 4) << side;
        EXPECT_GT(ink.height(), side * 3 / 4) << side;
    }
}

} // namespace
