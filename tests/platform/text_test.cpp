// SPDX-License-Identifier: MIT
#include "platform/text.h"

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

TEST(Texts, NamesThatRunRightToLeftAreIsolatedAmidNumbers) {
    EXPECT_EQ(AmidNumbers(QStringLiteral("\u05E0")), QStringLiteral("\u2068\u05E0\u2069"));
    EXPECT_EQ(AmidNumbers(QStringLiteral("Nisan")), QStringLiteral("Nisan"));
}

TEST(Texts, AreSpokenWithoutMarksOfDirectionAndLettersOfOtherScripts) {
    EXPECT_EQ(Spoken(QStringLiteral("2/12  \u2068\u05E0\u2069")), QStringLiteral("2/12  \u05E0"));
    EXPECT_EQ(Spoken(QStringLiteral("Dhu\u0491l-Hijjah")), QStringLiteral("Dhul-Hijjah"));
    EXPECT_EQ(Spoken(QStringLiteral("\u0491\u0430\u0491")), QStringLiteral("\u0491\u0430\u0491"))
        << "a word of that script";
}

} // namespace
