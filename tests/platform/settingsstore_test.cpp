// SPDX-License-Identifier: MIT
#include "platform/settingsstore.h"

#include "support/widget_test.h"

#include <QDir>
#include <QFile>

namespace {

const QString startup = QStringLiteral("Startup");

class SettingsStore : public WidgetTest {
protected:
    QString get(const char* key, const char* standard = "none") const {
        return GetSetting(startup, QLatin1String(key), QLatin1String(standard));
    }

    QString configFolder() const { return m_folder.filePath(QStringLiteral("config")); }

    /// Continues with a copy of the file elsewhere, so that it is read anew.
    void reopen() {
        const QByteArray bytes = readFile(settingsPath());
        const QString folder = m_folder.filePath(QStringLiteral("copy"));
        writeFile(folder + QStringLiteral("/Orvalen Years Calendar/settings.ini"), bytes);
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder));
    }
};

TEST_F(SettingsStore, LiesInTheUsersConfigurationFolder) {
    EXPECT_EQ(SettingsFile(), QDir::toNativeSeparators(settingsPath()));
}

TEST_F(SettingsStore, ReadingWritesNothing) {
    EXPECT_EQ(get("Window", "0"), QStringLiteral("0"));
    EXPECT_TRUE(FlushSettings());
    EXPECT_FALSE(QFileInfo::exists(configFolder()));
}

TEST_F(SettingsStore, ReadingLeavesAFileAsItIs) {
    const QByteArray bytes("; by hand\n[Startup]\nWindow = 1,5\n");
    writeFile(settingsPath(), bytes);
    EXPECT_EQ(get("Window"), QStringLiteral("1,5"));
    EXPECT_TRUE(FlushSettings());
    EXPECT_EQ(readFile(settingsPath()), bytes);
}

TEST_F(SettingsStore, AbsentKeysReadAsTheStandard) {
    writeFile(settingsPath(), "[Startup]\nEmpty=\n");
    EXPECT_EQ(get("Window", "7"), QStringLiteral("7"));
    EXPECT_EQ(get("Empty", "7"), QString()) << "an empty text is not an absent one";
}

TEST_F(SettingsStore, EveryTextComesBackFromTheFile) {
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

TEST_F(SettingsStore, TextsSavedAreReadBeforeTheyAreWritten) {
    SaveSetting(startup, QStringLiteral("Window"), QStringLiteral("3"));
    EXPECT_EQ(get("Window"), QStringLiteral("3"));
    EXPECT_TRUE(FlushSettings());
    EXPECT_TRUE(readFile(settingsPath()).contains("Window=3"));
}

TEST_F(SettingsStore, OtherKeysSurviveASave) {
    writeFile(settingsPath(), "[Startup]\nWindow=1\nUnknown=x\n[Other]\nKey=\"a, b\"\n");
    SaveSetting(startup, QStringLiteral("Window"), QStringLiteral("2"));
    ASSERT_TRUE(FlushSettings());
    reopen();
    EXPECT_EQ(get("Window"), QStringLiteral("2"));
    EXPECT_EQ(get("Unknown"), QStringLiteral("x"));
    EXPECT_EQ(GetSetting(QStringLiteral("Other"), QStringLiteral("Key"), QString()),
              QStringLiteral("a, b"));
}

TEST_F(SettingsStore, AFileThatCannotBeWrittenIsTold) {
    writeFile(configFolder(), "a file in the folder's place");
    SaveSetting(startup, QStringLiteral("Window"), QStringLiteral("3"));
    EXPECT_FALSE(FlushSettings());
    EXPECT_EQ(get("Window"), QStringLiteral("3")) << "kept for the rest of the run";
    EXPECT_TRUE(QFile::remove(configFolder())); // what is pending must not be written later
    FlushSettings();
}

TEST_F(SettingsStore, AFileThatCanBeWrittenAgainIsWrittenAndSaidToBe) {
    writeFile(configFolder(), "a file in the folder's place");
    SaveSetting(startup, QStringLiteral("Window"), QStringLiteral("3"));
    EXPECT_FALSE(FlushSettings());
    EXPECT_TRUE(QFile::remove(configFolder()));
    EXPECT_TRUE(FlushSettings());
    EXPECT_TRUE(readFile(settingsPath()).contains("Window=3"));
}

TEST_F(SettingsStore, ADamagedFileCanBeWritten) {
    writeFile(settingsPath(), "no section and no key\n[Startup]\nWindow=4\n]=[\n");
    EXPECT_EQ(get("Window"), QStringLiteral("4"));
    SaveSetting(startup, QStringLiteral("ShowTips"), QStringLiteral("0"));
    EXPECT_TRUE(FlushSettings());
    reopen();
    EXPECT_EQ(get("Window"), QStringLiteral("4"));
    EXPECT_EQ(get("ShowTips"), QStringLiteral("0"));
}

} // namespace
