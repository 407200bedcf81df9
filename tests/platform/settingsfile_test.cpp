// SPDX-License-Identifier: MIT
#include "platform/settingsfile_test.h"

#include <QSettings>

namespace {

TEST_F(SettingsOnDisk, LiesInTheUsersConfigurationFolder) {
    EXPECT_EQ(SettingsFile(), QDir::toNativeSeparators(settingsPath()));
}

TEST_F(SettingsOnDisk, ReadingWritesNothing) {
    EXPECT_EQ(get("Window", "0"), QStringLiteral("0"));
    EXPECT_TRUE(FlushSettings());
    EXPECT_FALSE(QFileInfo::exists(configFolder()));
}

TEST_F(SettingsOnDisk, ReadingLeavesAFileAsItIs) {
    const QByteArray bytes("; by hand\n[Startup]\nWindow = 1,5\n");
    load(bytes);
    EXPECT_EQ(get("Window"), QStringLiteral("1,5"));
    EXPECT_TRUE(FlushSettings());
    EXPECT_EQ(readFile(settingsPath()), bytes);
}

TEST_F(SettingsOnDisk, AbsentKeysReadAsTheStandard) {
    load("[Startup]\nEmpty=\n");
    EXPECT_EQ(get("Window", "7"), QStringLiteral("7"));
    EXPECT_EQ(get("Empty", "7"), QString()) << "an empty text is not an absent one";
}

TEST_F(SettingsOnDisk, EveryTextComesBackFromTheFile) {
    const char* const texts[] = {"",
                                 "0",
                                 "a,b",
                                 "a, b",
                                 "a;b",
                                 "\"quoted\"",
                                 "'x'",
                                 "back\\slash",
                                 "C:\\n\\x41",
                                 "Ümläut ß",
                                 "Русский",
                                 " leading",
                                 "trailing ",
                                 "  ",
                                 "100%",
                                 "%20",
                                 "@",
                                 "@Invalid()",
                                 "@@x",
                                 "a=b",
                                 "[x]",
                                 "#5",
                                 "English (Default)",
                                 "line\r\nbreak"};
    for (int i = 0; i < static_cast<int>(std::size(texts)); ++i)
        SaveSetting(startup, QStringLiteral("Key%1").arg(i), QString::fromUtf8(texts[i]));
    ASSERT_TRUE(FlushSettings());
    reopen();
    for (int i = 0; i < static_cast<int>(std::size(texts)); ++i)
        EXPECT_EQ(GetSetting(startup, QStringLiteral("Key%1").arg(i), QStringLiteral("none")),
                  QString::fromUtf8(texts[i]))
            << texts[i];
}

TEST_F(SettingsOnDisk, TextsSavedAreReadBeforeTheyAreWritten) {
    SaveSetting(startup, QStringLiteral("Window"), QStringLiteral("3"));
    EXPECT_EQ(get("Window"), QStringLiteral("3"));
    EXPECT_TRUE(FlushSettings());
    EXPECT_TRUE(readFile(settingsPath()).contains("Window=3"));
}

TEST_F(SettingsOnDisk, OtherKeysSurviveASave) {
    load("[Startup]\nWindow=1\nUnknown=x\n[Other]\nKey=\"a, b\"\n");
    SaveSetting(startup, QStringLiteral("Window"), QStringLiteral("2"));
    ASSERT_TRUE(FlushSettings());
    reopen();
    EXPECT_EQ(get("Window"), QStringLiteral("2"));
    EXPECT_EQ(get("Unknown"), QStringLiteral("x"));
    EXPECT_EQ(GetSetting(QStringLiteral("Other"), QStringLiteral("Key"), QString()),
              QStringLiteral("a, b"));
}

TEST_F(SettingsOnDisk, ADamagedFileCanBeWritten) {
    load("no section and no key\n[Startup]\nWindow=4\n]=[\n");
    EXPECT_EQ(get("Window"), QStringLiteral("4"));
    SaveSetting(startup, QStringLiteral("ShowTips"), QStringLiteral("0"));
    EXPECT_TRUE(FlushSettings());
    reopen();
    EXPECT_EQ(get("Window"), QStringLiteral("4"));
    EXPECT_EQ(get("ShowTips"), QStringLiteral("0"));
}

TEST_F(SettingsOnDisk, WhatNobodyChangesStaysAsItWritten) {
    load("; by hand\n\n[Startup]\nWindow = 1 ; first\nUnknown=x\n\n[Other]\nKey=\"a, b\"\n");
    save("Window", "2");
    save("ShowTips", "0");
    SaveSetting(QStringLiteral("Moon"), QStringLiteral("Top"), QStringLiteral("15"));
    EXPECT_TRUE(FlushSettings());
    EXPECT_EQ(readFile(settingsPath()), "; by hand\n\n[Startup]\nWindow=2\nUnknown=x\nShowTips=0\n"
                                        "\n[Other]\nKey=\"a, b\"\n\n[Moon]\nTop=15\n");
}

TEST_F(SettingsOnDisk, TheToolkitReadsWhatIsWritten) {
    for (const char* text : {"3", "English (Default)", "a, b;c", "\"q\"", "Русский", " x ", "@x",
                             "back\\slash", "two\r\nlines"}) {
        save("Language", text);
        ASSERT_TRUE(FlushSettings());
        EXPECT_EQ(QSettings(settingsPath(), QSettings::IniFormat)
                      .value(QStringLiteral("Startup/Language"))
                      .toString(),
                  QString::fromUtf8(text));
    }
}

TEST_F(SettingsOnDisk, WhatTheToolkitWroteIsRead) {
    for (const char* text : {"3", "English (Default)", "a, b;c", "\"q\"", "Русский", " x ", "@x",
                             "back\\slash", "two\r\nlines", "\x01 1", "tab\t", "a\x07\x0B", ""}) {
        {
            QSettings toolkit(settingsPath(), QSettings::IniFormat);
            toolkit.setValue(QStringLiteral("Startup/Language"), QString::fromUtf8(text));
        }
        ASSERT_TRUE(LoadSettings());
        EXPECT_EQ(get("Language"), QString::fromUtf8(text)) << text;
    }
}

TEST_F(SettingsOnDisk, OfSeveralPlacesOfAKeyTheLastCounts) {
    load("[Startup]\nWindow=1\n[Moon]\nWindow=9\n[Startup]\nWindow=2\n");
    EXPECT_EQ(get("Window"), QStringLiteral("2"));
    save("Window", "3");
    EXPECT_TRUE(FlushSettings());
    reopen();
    EXPECT_EQ(get("Window"), QStringLiteral("3"));
}

TEST_F(SettingsOnDisk, NamesAreMatchedWithoutRegardToCaseAndNeverInComments) {
    load("[startup]\nWINDOW = 1\n;Window=4\n[Startup\n");
    EXPECT_EQ(get("Window"), QStringLiteral("1"));
    save("Window", "2");
    EXPECT_TRUE(FlushSettings());
    EXPECT_EQ(readFile(settingsPath()), "[startup]\nWindow=2\n;Window=4\n[Startup\n");
}

TEST_F(SettingsOnDisk, ForeignFormsAreRead) {
    load("\xEF\xBB\xBF[ Startup ]\r\nWindow = \"3\"\r\nShowTips=1;on\r\nLanguage=\"unclosed\r\n");
    EXPECT_EQ(get("Window"), QStringLiteral("3"));
    EXPECT_EQ(get("ShowTips"), QStringLiteral("1"));
    EXPECT_TRUE(get("Language").startsWith(QStringLiteral("unclosed")));
    load("[Startup]\nLanguage=\\x41\\x2f\\x44F-\n");
    EXPECT_EQ(get("Language"), QString::fromUtf8("A/я-"));
    load("[Startup]\nLanguage=a\\0b\\q\n");
    EXPECT_EQ(get("Language"), QString::fromUtf16(u"a\0bq", 4));
}

TEST_F(SettingsOnDisk, WhatAnotherProgramSavedMeanwhileIsKept) {
    load("[Startup]\nWindow=1\nShowTips=1\n");
    save("Window", "2");
    writeFile(settingsPath(), "[Startup]\nWindow=1\nShowTips=0\n[Moon]\nTop=15\n");
    EXPECT_TRUE(FlushSettings());
    EXPECT_EQ(readFile(settingsPath()), "[Startup]\nWindow=2\nShowTips=0\n[Moon]\nTop=15\n");
}

TEST_F(SettingsOnDisk, WhatHasBeenWrittenIsNotWrittenAgain) {
    save("Window", "2");
    ASSERT_TRUE(FlushSettings());
    writeFile(settingsPath(), "[Startup]\nWindow=5\n");
    save("ShowTips", "0");
    EXPECT_TRUE(FlushSettings());
    EXPECT_EQ(readFile(settingsPath()), "[Startup]\nWindow=5\nShowTips=0\n");
}

TEST_F(SettingsOnDisk, AnEmptySectionAtTheBeginningIsFilled) {
    load("[Startup]\n");
    save("Window", "2");
    EXPECT_TRUE(FlushSettings());
    EXPECT_EQ(readFile(settingsPath()), "[Startup]\nWindow=2\n");
}

TEST_F(SettingsOnDisk, TabsAreWrittenAsEscapesAndOtherControlsAsTheyAre) {
    load("[Startup]\n");
    save("Language", "a\tb\x07");
    EXPECT_TRUE(FlushSettings());
    EXPECT_EQ(readFile(settingsPath()), "[Startup]\nLanguage=a\\tb\x07\n");
}

} // namespace
