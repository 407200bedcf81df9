// SPDX-License-Identifier: MIT
#include "platform/numbers.h"

#include <QLocale>
#include <cmath>
#include <gtest/gtest.h>

namespace {

TEST(Numbers, WholeNumbersAreTheNearestWithTiesToEven) {
    const struct {
        double value;
        std::optional<int> whole;
    } rows[] = {{0.5, 0},
                {1.5, 2},
                {2.5, 2},
                {-0.5, 0},
                {-1.5, -2},
                {0.4999, 0},
                {0.5001, 1},
                {32767.4, 32767},
                {32767.5, std::nullopt},
                {-32768.5, -32768},
                {-32768.6, std::nullopt}};
    for (const auto& row : rows)
        EXPECT_EQ(CInt(row.value), row.whole) << row.value;
    EXPECT_EQ(CLng(2147483647.4), 2147483647);
    EXPECT_EQ(CLng(2147483647.5), std::nullopt);
    EXPECT_EQ(CLng(1e20), std::nullopt);
    EXPECT_EQ(CLng(std::nan("")), std::nullopt);
}

TEST(Numbers, OneDecimalRoundsTheShortFormHalfAwayFromZero) {
    const struct {
        float value;
        const char* text;
    } rows[] = {{0.0F, "0.0"},   {12.0F, "12.0"},     {12.25F, "12.3"},    {7.45F, "7.5"},
                {3.05F, "3.1"},  {0.35F, "0.4"},      {3.04F, "3.0"},      {29.5F, "29.5"},
                {9.96F, "10.0"}, {0.04F, "0.0"},      {-0.04F, "0.0"},     {-7.45F, "-7.5"},
                {-0.5F, "-0.5"}, {-0.1F, "-0.1"},     {0.06F, "0.1"},      {123.45F, "123.5"},
                {1e-9F, "0.0"},  {12.34999F, "12.3"}, {29.949999F, "30.0"}};
    for (const auto& row : rows)
        EXPECT_EQ(FormatOneDecimal(row.value), QLatin1String(row.text)) << row.value;
}

/// Another default locale for as long as it lives.
class LocaleForNow {
public:
    explicit LocaleForNow(const QLocale& locale) { QLocale::setDefault(locale); }
    ~LocaleForNow() { QLocale::setDefault(m_before); }
    LocaleForNow(const LocaleForNow&) = delete;
    LocaleForNow& operator=(const LocaleForNow&) = delete;

private:
    QLocale m_before;
};

TEST(Numbers, WholeTextsBecomeNumbersOf16Bits) {
    const struct {
        const char* text;
        int number;
    } rows[] = {{"5", 5},           {" 5 ", 5},           {"+5", 5},        {"-5", -5},
                {"1.5", 2},         {"2.5", 2},           {"-1.5", -2},     {"1e3", 1000},
                {"1E3", 1000},      {"1e-3", 0},          {"1.", 1},        {".5", 0},
                {"-.6", -1},        {"007", 7},           {"32767", 32767}, {"32767.4", 32767},
                {"-32768", -32768}, {"-32768.5", -32768}, {" -7.9e0 ", -8}, {"0", 0}};
    for (const auto& row : rows)
        EXPECT_EQ(CInt(QLatin1String(row.text)), row.number) << '"' << row.text << '"';
}

TEST(Numbers, TextsThatAreNoNumberOf16BitsBecomeNothing) {
    for (const char* text : {"",     " ",   "abc",     "5x",       "x5",    "0x10",   "nan",  "inf",
                             "-inf", "1,5", "1 5",     "+-5",      "- 5",   "+",      ".",    "1e",
                             "1e+",  "e3",  "32767.5", "-32768.6", "40000", "-40000", "1e400"})
        EXPECT_EQ(CInt(QLatin1String(text)), std::nullopt) << '"' << text << '"';
    EXPECT_EQ(CInt(QString::fromUtf8("٣")), std::nullopt);
    EXPECT_EQ(CInt(QString()), std::nullopt);
}

TEST(Numbers, TextsOfTenThousandDigitsAreReadToo) {
    EXPECT_EQ(CInt(QString(10000, u'9')), std::nullopt);
    EXPECT_EQ(CInt(QStringLiteral("0.") + QString(10000, u'9')), 1);
    EXPECT_EQ(CInt(QString(10000, u'0') + u'5'), 5);
}

TEST(Numbers, TextsBecomeTheSameNumbersInEveryLocale) {
    const LocaleForNow german{QLocale(QLocale::German)};
    EXPECT_EQ(CInt(QStringLiteral("1.5")), 2);
    EXPECT_EQ(CInt(QStringLiteral("1,5")), std::nullopt);
    EXPECT_EQ(Val(QStringLiteral("1.5")), 1.5);
}

TEST(Numbers, ValReadsTheNumberAtTheBeginning) {
    const struct {
        const char* text;
        double value;
    } rows[] = {{"45/365", 45},  {"", 0},        {"abc", 0},      {"1.5", 1.5}, {"1,5", 1},
                {" 1 2 3", 123}, {"1e3", 1000},  {"1E-2x", 0.01}, {"1e", 1},    {"1e+", 1},
                {"-3x", -3},     {"+.5", 0.5},   {".", 0},        {"-", 0},     {"-.", 0},
                {"1.", 1},       {"1.2.3", 1.2}, {"--1", 0},      {"inf", 0},   {"nan", 0},
                {"0x10", 0},     {"\t7\r\n", 7}, {"x9", 0}};
    for (const auto& row : rows)
        EXPECT_DOUBLE_EQ(Val(QLatin1String(row.text)), row.value) << '"' << row.text << '"';
}

TEST(Numbers, ACommaIsReadAsTheLocaleDoes) {
    EXPECT_EQ(MyVal(QStringLiteral("1.5")), 1.5F);
    EXPECT_EQ(MyVal(QStringLiteral("abc")), 0.0F);
    EXPECT_EQ(MyVal(QStringLiteral("a,b")), 0.0F);
    const LocaleForNow german{QLocale(QLocale::German)};
    EXPECT_EQ(MyVal(QStringLiteral("1,5")), 1.5F);
    EXPECT_EQ(MyVal(QStringLiteral("1.5")), 1.5F);
}

TEST(Numbers, WholeNumbersAreWesternDigitsWithASignAndBlanksAround) {
    for (const char* text : {"0", "2451545", " 12 ", "+5", "-5", " -5"})
        EXPECT_TRUE(IsWholeNumber(QLatin1String(text))) << '"' << text << '"';
    for (const char* text :
         {"", " ", "-", "+", "1.5", "1,5", "1e3", "5 5", "- 5", "5-", "x", "0x1"})
        EXPECT_FALSE(IsWholeNumber(QLatin1String(text))) << '"' << text << '"';
    EXPECT_FALSE(IsWholeNumber(QString::fromUtf8("٣")));
}

TEST(Numbers, OneDecimalTakesTheLocalesCommaOnly) {
    const struct {
        QLocale::Language language;
        const char* text;
    } rows[] = {{QLocale::German, "12,3"}, {QLocale::Russian, "12,3"}, {QLocale::English, "12.3"},
                {QLocale::Arabic, "12.3"}, {QLocale::Persian, "12.3"}, {QLocale::Hebrew, "12.3"}};
    for (const auto& row : rows) {
        const LocaleForNow locale{QLocale(row.language)};
        EXPECT_EQ(FormatOneDecimal(12.3F), QLatin1String(row.text)) << row.language;
    }
}

} // namespace
