// SPDX-License-Identifier: MIT
#include "platform/numbers.h"

#include <QLocale>
#include <gtest/gtest.h>

namespace {

TEST(Numbers, WholeNumbersAreTheNearestWithTiesToEven) {
    const struct {
        double value;
        std::optional<int> whole;
    } rows[] = {{0.5, 0},      {1.5, 2},          {2.5, 2},
                {-0.5, 0},     {-1.5, -2},        {0.4999, 0},
                {0.5001, 1},   {32767.4, 32767},  {32767.5, std::nullopt},
                {-32768.5, -32768}, {-32768.6, std::nullopt}};
    for (const auto& row : rows)
        EXPECT_EQ(CInt(row.value), row.whole) << row.value;
    EXPECT_EQ(CLng(2147483647.4), 2147483647);
    EXPECT_EQ(CLng(2147483647.5), std::nullopt);
    EXPECT_EQ(CLng(1e20), std::nullopt);
    EXPECT_EQ(CLng(std::nan("")), std::nullopt);
}

TEST(Numbers, FixTruncatesAndIntFloors) {
    EXPECT_EQ(Fix(-365.25), -365);
    EXPECT_EQ(Fix(1.9), 1);
    EXPECT_EQ(Int(-365.25), -366);
    EXPECT_EQ(Int(1.9), 1);
}

TEST(Numbers, OneDecimalRoundsTheShortFormHalfAwayFromZero) {
    const struct {
        float value;
        const char* text;
    } rows[] = {{0.0F, "0.0"},   {12.0F, "12.0"}, {12.25F, "12.3"}, {7.45F, "7.5"},
                {3.05F, "3.1"},  {0.35F, "0.4"},  {3.04F, "3.0"},   {29.5F, "29.5"},
                {9.96F, "10.0"}, {0.04F, "0.0"},  {-0.04F, "0.0"},  {-7.45F, "-7.5"},
                {0.06F, "0.1"},  {123.45F, "123.5"}, {1e-9F, "0.0"}};
    for (const auto& row : rows)
        EXPECT_EQ(FormatOneDecimal(row.value), QLatin1String(row.text)) << row.value;
}

} // namespace
