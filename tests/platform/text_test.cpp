// SPDX-License-Identifier: MIT
#include "platform/text.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <gtest/gtest.h>

namespace {

TEST(Texts, CaptionsShowEveryAmpersand) {
    EXPECT_EQ(Caption("a & b"), QStringLiteral("a && b"));
    EXPECT_EQ(Caption("&&x"), QStringLiteral("&&&&x"));
    EXPECT_EQ(Caption("Übernehmen"), QString::fromUtf8("Übernehmen"));
    EXPECT_EQ(Caption(""), QString());
}

TEST(Texts, TipsThatLookLikeRichTextAreShownAsTheyStand) {
    EXPECT_EQ(PlainTip(QStringLiteral("<b>x</b>")), QStringLiteral("&lt;b&gt;x&lt;/b&gt;"));
    EXPECT_EQ(PlainTip(QStringLiteral("<b>a & b</b>")),
              QStringLiteral("&lt;b&gt;a &amp; b&lt;/b&gt;"));
    for (const char* text : {"", "Today", "a & b", "1 < 2", "a > b", "\"x\""})
        EXPECT_EQ(PlainTip(QLatin1String(text)), QLatin1String(text));
}

TEST(Texts, FontsThatFitStayAsTheyAre) {
    QFont font;
    font.setPixelSize(14);
    const QString text = QStringLiteral("Heshvan");
    const int width = QFontMetrics(font).horizontalAdvance(text);
    EXPECT_EQ(FittedFont(font, text, width), font);
    EXPECT_LT(QFontInfo(FittedFont(font, text, width - 1)).pixelSize(), 14);
}

TEST(Texts, FittedFontsStayWithinTheWidthDownToTheirSmallestSize) {
    constexpr int smallest = 6;
    QFont font;
    font.setPixelSize(20);
    const QString text = QStringLiteral("A rather long month title");
    for (int width = 0; width < 400; width += 7) {
        const QFont fitted = FittedFont(font, text, width);
        const int pixels = QFontInfo(fitted).pixelSize();
        EXPECT_GE(pixels, smallest) << width;
        EXPECT_LE(pixels, 20) << width;
        EXPECT_TRUE(pixels == smallest || QFontMetrics(fitted).horizontalAdvance(text) <= width)
            << width;
    }
}

TEST(Texts, AreSpokenWithoutMarksOfDirectionAndLettersOfOtherScripts) {
    EXPECT_EQ(Spoken(QStringLiteral("2/12  \u2068\u05E0\u2069")), QStringLiteral("2/12  \u05E0"));
    EXPECT_EQ(Spoken(QStringLiteral("Dhu\u0491l-Hijjah")), QStringLiteral("Dhul-Hijjah"));
    EXPECT_EQ(Spoken(QStringLiteral("\u0491\u0430\u0491")), QStringLiteral("\u0491\u0430\u0491"))
        << "a word of that script";
}

TEST(Texts, FontsBelowTheSmallestSizeAreLeftAlone) {
    QFont font;
    font.setPixelSize(5);
    EXPECT_EQ(FittedFont(font, QStringLiteral("wide"), 1), font);
}

} // namespace
