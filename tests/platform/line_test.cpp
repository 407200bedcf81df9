// SPDX-License-Identifier: MIT
#include "platform/line.h"

#include "support/contrast.h"
#include "support/platform_test.h"

namespace {

class Lines : public PlatformTest {};

QImage lineOn(const QColor& ground, const QColor& text) {
    Line line(QStringLiteral("Line1"), nullptr);
    line.setPalette(QPalette(text, ground, ground, ground, ground, text, ground));
    line.resize(20, 8);
    return line.grab().toImage();
}

TEST_F(Lines, AreSeenOnTheGroundsOfAllThemes) {
    struct Theme {
        QRgb ground;
        QRgb text;
    };
    for (const auto& [ground, text] :
         {Theme{0xffefefef, 0xff000000}, Theme{0xffffffff, 0xff000000},
          Theme{0xff31363b, 0xffffffff}, Theme{0xff000000, 0xffffffff}}) {
        const QImage drawn = lineOn(QColor(ground), QColor(text));
        EXPECT_EQ(drawn.pixelColor(10, 0), QColor(ground));
        EXPECT_GE(contrast(drawn.pixelColor(10, 4), QColor(ground)), enoughContrast)
            << QColor(ground).name().toStdString();
    }
}

TEST_F(Lines, AreLinesToWhoeverAsksForTheirShape) {
    EXPECT_EQ(Line(QStringLiteral("Line1"), nullptr).frameShape(), QFrame::HLine);
}

TEST_F(Lines, ReachFromEndToEnd) {
    const QImage drawn = lineOn(Qt::white, Qt::black);
    EXPECT_EQ(drawn.pixelColor(0, 4), drawn.pixelColor(10, 4));
    EXPECT_EQ(drawn.pixelColor(19, 4), drawn.pixelColor(10, 4));
    EXPECT_NEAR(drawn.pixelColor(10, 4).red(), 127.5, 2) << "half as strong as the text";
    EXPECT_EQ(drawn.pixelColor(10, 5), QColor(Qt::white)) << "one pixel high";
}

} // namespace
