// SPDX-License-Identifier: MIT
#include "platform/text.h"

#include "support/platform_test.h"

namespace {

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
