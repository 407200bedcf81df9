// SPDX-License-Identifier: MIT
#include "platform/encoding.h"

#include <gtest/gtest.h>

namespace {

TEST(CodePage, FollowsTheScriptOfTheUsersLanguage) {
    const struct {
        const char* locale;
        int codePage;
    } rows[] = {{"ru", 1251}, {"uk", 1251},      {"be", 1251},      {"he", 1255}, {"ar", 1256},
                {"fa", 1256}, {"ur", 1256},      {"tr", 1254},      {"az", 1254}, {"az_Cyrl", 1251},
                {"pl", 1250}, {"cs", 1250},      {"hu", 1250},      {"ro", 1250}, {"hr", 1250},
                {"bs", 1250}, {"bs_Cyrl", 1251}, {"sr_Latn", 1250}, {"sr", 1251}, {"el", 1253},
                {"de", 1252}, {"en", 1252},      {"fr", 1252},      {"id", 1252}, {"C", 1252}};
    for (const auto& row : rows)
        EXPECT_EQ(CodePageOf(QLocale(QLatin1String(row.locale))), row.codePage) << row.locale;
}

TEST(WithoutMark, OtherBytesStayAsTheyAre) {
    EXPECT_EQ(WithoutMark("\xEF\xBB\xBF\xC0x"), "\xC0x");
    EXPECT_EQ(WithoutMark("\xC0x"), "\xC0x");
}

} // namespace
