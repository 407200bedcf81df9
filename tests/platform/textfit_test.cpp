// SPDX-License-Identifier: MIT
#include "platform/textfit.h"

#include "support/platform_test.h"

#include <QFontInfo>
#include <QFontMetrics>

namespace {

TEST(FittedFonts, StayAsTheyAreWhereTheTextFits) {
    QFont font;
    font.setPixelSize(14);
    const QString text = QStringLiteral("Heshvan");
    const int width = QFontMetrics(font).horizontalAdvance(text);
    EXPECT_EQ(FittedFont(font, text, width), font);
    EXPECT_LT(QFontInfo(FittedFont(font, text, width - 1)).pixelSize(), 14);
}

TEST(FittedFonts, StayWithinTheWidthDownToTheirSmallestSize) {
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

TEST(FittedFonts, StayAsTheyAreBelowTheSmallestSize) {
    QFont font;
    font.setPixelSize(5);
    EXPECT_EQ(FittedFont(font, QStringLiteral("wide"), 1), font);
}

TEST(FittedFonts, WhoseSizeIsInPointsAreMadeSmallerToo) {
    QFont font;
    font.setPointSize(20);
    const QString text = QStringLiteral("A rather long month title");
    EXPECT_LE(QFontMetrics(FittedFont(font, text, 150)).horizontalAdvance(text), 150);
}

class Wrapping : public PlatformTest {
protected:
    int width(const QString& text) const { return QFontMetrics(font).horizontalAdvance(text); }

    const QFont font = QApplication::font();
};

TEST_F(Wrapping, TextsThatFitStayAsTheyAre) {
    for (const char* text : {"", "one", "one two", "one\ntwo"})
        EXPECT_EQ(Wrapped(QLatin1String(text), font, 1000), QLatin1String(text));
}

TEST_F(Wrapping, LinesBreakBetweenWords) {
    const int lineWidth = width(QStringLiteral("seven words are")) + 2;
    EXPECT_EQ(Wrapped(QStringLiteral("seven words are seven words, or not"), font, lineWidth),
              QStringLiteral("seven words are\nseven words, or\nnot"));
}

TEST_F(Wrapping, AWordThatIsTooWideBreaksWithin) {
    const QString word(254, u'w');
    const QStringList lines = Wrapped(word, font, 200).split(u'\n');
    EXPECT_GT(lines.size(), 1);
    EXPECT_EQ(lines.join(QString()), word) << "no letter is lost";
    for (const QString& line : lines)
        EXPECT_LE(width(line), 200);
}

TEST_F(Wrapping, BreaksOfTheTextStay) {
    const int lineWidth = width(QStringLiteral("one two")) + 2;
    EXPECT_EQ(Wrapped(QStringLiteral("one\n\ntwo one two"), font, lineWidth),
              QStringLiteral("one\n\ntwo one\ntwo"));
}

} // namespace
