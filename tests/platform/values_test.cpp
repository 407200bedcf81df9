// SPDX-License-Identifier: MIT
// Twips, texts, colours, the clock: the small change of the windows.
#include "platform/clock.h"
#include "platform/color.h"
#include "platform/message.h"
#include "platform/text.h"
#include "platform/twips.h"
#include "support/widget_test.h"

#include <QDate>
#include <QFontInfo>
#include <QFontMetrics>

namespace {

class Values : public WidgetTest {};

TEST_F(Values, TwipsBecomeTheNearestPixelsHalfAwayFromZero) {
    const struct {
        double twips;
        int pixels;
    } rows[] = {{0, 0},    {255, 17},  {195, 13}, {7, 0},    {7.5, 1},
                {22.5, 2}, {-7.5, -1}, {-7, 0},   {-30, -2}, {300, 20}};
    for (const auto& row : rows)
        EXPECT_EQ(ToPixels(row.twips), row.pixels) << row.twips;
    EXPECT_EQ(ToTwips(17), 255);
    EXPECT_EQ(ToTwips(-2), -30);
}

TEST_F(Values, CaptionsShowEveryAmpersand) {
    EXPECT_EQ(Caption("a & b"), QStringLiteral("a && b"));
    EXPECT_EQ(Caption("&&x"), QStringLiteral("&&&&x"));
    EXPECT_EQ(Caption("Übernehmen"), QString::fromUtf8("Übernehmen"));
    EXPECT_EQ(Caption(""), QString());
}

TEST_F(Values, TipsThatLookLikeRichTextAreShownAsTheyStand) {
    EXPECT_EQ(PlainTip(QStringLiteral("<b>x</b>")), QStringLiteral("&lt;b&gt;x&lt;/b&gt;"));
    EXPECT_EQ(PlainTip(QStringLiteral("<b>a & b</b>")),
              QStringLiteral("&lt;b&gt;a &amp; b&lt;/b&gt;"));
    for (const char* text : {"", "Today", "a & b", "1 < 2", "a > b", "\"x\""})
        EXPECT_EQ(PlainTip(QLatin1String(text)), QLatin1String(text));
}

TEST_F(Values, FontsThatFitStayAsTheyAre) {
    QFont font;
    font.setPixelSize(14);
    const QString text = QStringLiteral("Heshvan");
    const int width = QFontMetrics(font).horizontalAdvance(text);
    EXPECT_EQ(FittedFont(font, text, width), font);
    EXPECT_LT(QFontInfo(FittedFont(font, text, width - 1)).pixelSize(), 14);
}

TEST_F(Values, FittedFontsStayWithinTheWidthDownToTheirSmallestSize) {
    constexpr int smallest = 7;
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

TEST_F(Values, FontsBelowTheSmallestSizeAreLeftAlone) {
    QFont font;
    font.setPixelSize(5);
    EXPECT_EQ(FittedFont(font, QStringLiteral("wide"), 1), font);
}

TEST_F(Values, ColorNumbersHoldRedInTheirLowestByte) {
    EXPECT_EQ(ToColor(0x0000FF), QColor(255, 0, 0));
    EXPECT_EQ(ToColor(0x800000), QColor(0, 0, 128));
    EXPECT_EQ(ToColor(0x123456), QColor(0x56, 0x34, 0x12));
    EXPECT_EQ(ToColor(0xFFFFFF), QColor(Qt::white));
}

TEST_F(Values, TodayComesFromTheClockThatWasSet) {
    SetClock([] { return SystemDate{29, 2, 2000}; });
    EXPECT_EQ(Today(), (SystemDate{29, 2, 2000}));
}

TEST_F(Values, WithoutAnotherClockTodayIsTheComputers) {
    SetClock({});
    const QDate before = QDate::currentDate();
    const SystemDate today = Today();
    const QDate after = QDate::currentDate();
    const QDate date(today.year, today.month, today.day);
    EXPECT_TRUE(before <= date && date <= after);
}

TEST_F(Values, DaysAreSeconds) {
    EXPECT_DOUBLE_EQ(Days(0.5).count(), 43200);
}

TEST_F(Values, TwoTextsStandWithAnEmptyLineBetween) {
    EXPECT_EQ(WithEmptyLine(QStringLiteral("a"), QStringLiteral("b")),
              QStringLiteral("a\r\n\r\nb"));
}

} // namespace
