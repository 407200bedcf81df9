// SPDX-License-Identifier: MIT
#include "shared/english.h"

#include "support/tables.h"
#include "support/texttables.h"

#include <algorithm>

namespace {

class English : public testing::Test, protected BoundsWatch {
protected:
    English() {
        clearTexts();
        SetEnglishTexts();
    }
};

template <typename TextTable>
int firstEmptyEntry(const TextTable& table) {
    for (int i = 1; i <= TextTable::size; ++i) {
        if (table(i).empty())
            return i;
    }
    return 0;
}

TEST_F(English, FillsEveryEntry) {
    EXPECT_EQ(firstEmptyEntry(CalendarNames), 0);
    EXPECT_EQ(firstEmptyEntry(WeekDayNames), 0);
    EXPECT_EQ(firstEmptyEntry(WeekDayAbbrs), 0);
    EXPECT_EQ(firstEmptyEntry(LabelTexts), 0);
    EXPECT_EQ(firstEmptyEntry(StringTexts), 0);
    for (int c = 1; c <= calendarCount; ++c) {
        for (int month = 1; month <= 12; ++month)
            EXPECT_FALSE(MonthNames(c, month).empty()) << c << ' ' << month;
    }
}

TEST_F(English, FirstAndLastEntriesOfEveryTable) {
    const struct {
        std::string text;
        const char* expected;
    } rows[] = {{CalendarNames(1), "Julian calendar"},
                {CalendarNames(5), "Monthly calendars"},
                {MonthNames(Julian, 1), "January"},
                {MonthNames(Julian, 12), "December"},
                {MonthNames(Gregorian, 2), "February"},
                {MonthNames(Jewish, 1), "Tishri"},
                {MonthNames(Jewish, 12), "Elul"},
                {MonthNames(Moslem, 1), "Muharram"},
                {MonthNames(Moslem, 6), "Jumada II"},
                {WeekDayNames(1), "Monday"},
                {WeekDayNames(7), "Sunday"},
                {WeekDayAbbrs(1), "Mo"},
                {WeekDayAbbrs(7), "Su"},
                {LabelTexts(OptionsLabel), "Options"},
                {LabelTexts(MoonLabel), "Moon"},
                {StringTexts(CalendarText), "Calendar"},
                {StringTexts(ExitText), "Exit"},
                {StringTexts(FileNotFoundText), "File not found"},
                {StringTexts(SelectLanguageText), "Select language"},
                {SelectedWord, "selected"}};
    for (const auto& row : rows)
        EXPECT_EQ(row.text, row.expected);
}

TEST_F(English, LettersBeyondAsciiAreExact) {
    EXPECT_EQ(MonthNames(Moslem, 8), "Sha\u2018ban");
    EXPECT_EQ(MonthNames(Moslem, 11), "Dhu\u0491l-Qa\u2018dah");
    EXPECT_EQ(MonthNames(Moslem, 12), "Dhu\u0491l-Hijjah");
    EXPECT_EQ(StringTexts(16), "Left mouse button \u2014 Close window. "
                               "Right mouse button \u2014 Exit");
    EXPECT_EQ(LabelTexts(4), "Hegira \u2014 July 15, 622 A.D.");
    EXPECT_EQ(LabelTexts(6), "Hegira \u2014 July 16, 622 A.D.");
}

bool isAscii(const std::string& text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; });
}

TEST_F(English, AllOtherTextsAreAscii) {
    for (int i = 1; i <= StringTexts.size; ++i)
        EXPECT_EQ(isAscii(StringTexts(i)), i != 16) << i;
    for (int i = 1; i <= LabelTexts.size; ++i)
        EXPECT_EQ(isAscii(LabelTexts(i)), i != 4 && i != 6) << i;
    for (int month = 1; month <= 12; ++month)
        EXPECT_EQ(isAscii(MonthNames(Moslem, month)), month != 8 && month < 11) << month;
}

TEST_F(English, TheThirteenthMonthIsLeftAlone) {
    EXPECT_EQ(MonthNames(Jewish, 13), "");
    MonthNames(Jewish, 13) = "Elul";
    SetEnglishTexts();
    EXPECT_EQ(MonthNames(Jewish, 13), "Elul");
}

TEST_F(English, AdarHasItsPlainName) {
    EXPECT_EQ(AdarName, "Adar");
    EXPECT_EQ(MonthNames(Jewish, 6), "Adar");
    MonthNames(Jewish, 6) = AdarName = "Adar I";
    SetEnglishTexts();
    EXPECT_EQ(AdarName, "Adar");
}

TEST_F(English, JulianAndGregorianMonthsAreTheSame) {
    for (int month = 1; month <= 12; ++month)
        EXPECT_EQ(MonthNames(Julian, month), MonthNames(Gregorian, month));
}

} // namespace
