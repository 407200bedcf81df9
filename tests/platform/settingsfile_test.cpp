// SPDX-License-Identifier: MIT
#include "platform/settingsfile.h"

#include "support/fulldisk.h"
#include "support/platform_test.h"
#include "support/usualrights.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLockFile>
#include <QSettings>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const QString startup = QStringLiteral("Startup");

class SettingsOnDisk : public PlatformTest {
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
        EXPECT_TRUE(LoadSettings());
    }

    /// Loads a file of these lines.
    void load(const QByteArray& lines) {
        writeFile(settingsPath(), lines);
        ASSERT_TRUE(LoadSettings());
    }

    static void save(const char* key, const char* value) {
        SaveSetting(startup, QLatin1String(key), QString::fromUtf8(value));
    }

    QStringList filesBeside() const {
        return QFileInfo(settingsPath())
            .dir()
            .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System);
    }
};

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

TEST_F(SettingsOnDisk, AFileThatCannotBeWrittenIsTold) {
    writeFile(configFolder(), "a file in the folder's place");
    SaveSetting(startup, QStringLiteral("Window"), QStringLiteral("3"));
    EXPECT_FALSE(FlushSettings());
    EXPECT_EQ(get("Window"), QStringLiteral("3")) << "kept for the rest of the run";
}

TEST_F(SettingsOnDisk, AFileThatCanBeWrittenAgainIsWrittenAndSaidToBe) {
    writeFile(configFolder(), "a file in the folder's place");
    SaveSetting(startup, QStringLiteral("Window"), QStringLiteral("3"));
    EXPECT_FALSE(FlushSettings());
    EXPECT_TRUE(QFile::remove(configFolder()));
    EXPECT_TRUE(FlushSettings());
    EXPECT_TRUE(readFile(settingsPath()).contains("Window=3"));
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
}

TEST_F(SettingsOnDisk, WhatAnotherProgramSavedMeanwhileIsKept) {
    load("[Startup]\nWindow=1\nShowTips=1\n");
    save("Window", "2");
    writeFile(settingsPath(), "[Startup]\nWindow=1\nShowTips=0\n[Moon]\nTop=15\n");
    EXPECT_TRUE(FlushSettings());
    EXPECT_EQ(readFile(settingsPath()), "[Startup]\nWindow=2\nShowTips=0\n[Moon]\nTop=15\n");
}

TEST_F(SettingsOnDisk, ARelativeConfigurationFolderIsNone) {
    qputenv("XDG_CONFIG_HOME", "relative");
    EXPECT_EQ(SettingsFile(),
              QDir::homePath() + QStringLiteral("/.config/Orvalen Years Calendar/settings.ini"));
}

TEST_F(SettingsOnDisk, NothingIsLeftBesideTheFile) {
    save("Window", "2");
    EXPECT_TRUE(FlushSettings());
    EXPECT_EQ(filesBeside(), QStringList{QStringLiteral("settings.ini")});
}

TEST_F(SettingsOnDisk, WhatStandsInTheFilesPlaceIsToldAndLeftAlone) {
    const QByteArray path = QFile::encodeName(settingsPath());
    ASSERT_TRUE(QDir().mkpath(QFileInfo(settingsPath()).path()));
    ASSERT_EQ(mkfifo(path.constData(), 0600), 0);
    EXPECT_FALSE(LoadSettings()) << "a pipe, for which one would wait";
    save("Window", "2");
    EXPECT_FALSE(FlushSettings());
    EXPECT_TRUE(QFile::remove(settingsPath()));
    ASSERT_TRUE(QDir().mkdir(settingsPath()));
    EXPECT_FALSE(LoadSettings()) << "a folder";
    EXPECT_EQ(get("Window", "7"), QStringLiteral("7"));
    save("Window", "2");
    EXPECT_FALSE(FlushSettings());
    EXPECT_TRUE(QFileInfo(settingsPath()).isDir());
}

TEST_F(SettingsOnDisk, AFileTooLargeForSettingsIsToldAndLeftAlone) {
    writeFile(settingsPath(), QByteArray((1 << 20) + 1, '\n'));
    EXPECT_FALSE(LoadSettings());
    save("Window", "2");
    EXPECT_FALSE(FlushSettings());
    EXPECT_EQ(QFileInfo(settingsPath()).size(), (1 << 20) + 1);
}

TEST_F(SettingsOnDisk, WhatIsWrittenCanBeRead) {
    const QByteArray lines =
        QByteArray("[Startup]\nWindow=1\n;").leftJustified((1 << 20) - 1, 'x') + '\n';
    load(lines);
    save("ShowTips", "0");
    EXPECT_FALSE(FlushSettings()) << "the file would be too large to be read";
    EXPECT_EQ(readFile(settingsPath()), lines);
    EXPECT_TRUE(LoadSettings());
    save("Window", "2");
    EXPECT_TRUE(FlushSettings()) << "as large as it was";
    EXPECT_TRUE(LoadSettings());
    EXPECT_EQ(get("Window"), QStringLiteral("2"));
}

TEST_F(SettingsOnDisk, FoldersThatAreMissingAreMadeForTheUserAlone) {
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(configFolder() + QStringLiteral("/below")));
    ASSERT_TRUE(LoadSettings());
    save("Window", "2");
    EXPECT_TRUE(FlushSettings());
    for (const char* folder : {"", "/below", "/below/Orvalen Years Calendar"}) {
        struct stat found = {};
        ASSERT_EQ(stat(QFile::encodeName(configFolder() + QLatin1String(folder)), &found), 0);
        EXPECT_EQ(found.st_mode & 07777U, 0700U) << folder;
    }
}

TEST_F(SettingsOnDisk, TheFileKeepsItsPermissionsAndItsLink) {
    const QString linked = m_folder.filePath(QStringLiteral("elsewhere"));
    writeFile(linked, "[Startup]\nWindow=1\n");
    ASSERT_TRUE(
        QFile::setPermissions(linked, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup));
    ASSERT_TRUE(QDir().mkpath(QFileInfo(settingsPath()).path()));
    ASSERT_TRUE(QFile::link(linked, settingsPath()));
    ASSERT_TRUE(LoadSettings());
    save("Window", "2");
    EXPECT_TRUE(FlushSettings());
    EXPECT_TRUE(QFileInfo(settingsPath()).isSymLink());
    EXPECT_EQ(readFile(linked), "[Startup]\nWindow=2\n");
    struct stat found = {};
    ASSERT_EQ(stat(QFile::encodeName(linked), &found), 0);
    EXPECT_EQ(found.st_mode & 07777U, 0640U);
}

TEST_F(SettingsOnDisk, AFolderThatCannotBeEnteredIsTold) {
    load("[Startup]\nWindow=1\n");
    const QString folder = QFileInfo(settingsPath()).path();
    ASSERT_TRUE(QFile::setPermissions(folder, {}));
    {
        const UsualRights usual;
        EXPECT_FALSE(LoadSettings());
        save("Window", "2");
        EXPECT_FALSE(FlushSettings());
    }
    ASSERT_TRUE(
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    EXPECT_TRUE(LoadSettings());
    EXPECT_EQ(get("Window"), QStringLiteral("1"));
}

TEST_F(SettingsOnDisk, AFileThatMayOnlyBeReadStaysAsItIs) {
    load("[Startup]\nWindow=1\n");
    save("Window", "2");
    const QFileInfo file(settingsPath());
    const auto readOnly = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
    ASSERT_TRUE(QFile::setPermissions(file.path(), QFile::Permissions(0x7777)));
    ASSERT_TRUE(QFile::setPermissions(m_folder.path(), QFile::Permissions(0x7777)));
    ASSERT_TRUE(QFile::setPermissions(settingsPath(), readOnly));
    {
        const UsualRights usual;
        EXPECT_FALSE(FlushSettings());
    }
    EXPECT_EQ(readFile(settingsPath()), "[Startup]\nWindow=1\n");
}

TEST_F(SettingsOnDisk, WithoutAHomeNothingIsReadOrWritten) {
    const QByteArray home = qgetenv("HOME");
    qunsetenv("HOME");
    qunsetenv("XDG_CONFIG_HOME");
    EXPECT_EQ(SettingsFile(), QStringLiteral("$HOME/.config/Orvalen Years Calendar/settings.ini"));
    EXPECT_FALSE(LoadSettings());
    save("Window", "2");
    EXPECT_FALSE(FlushSettings());
    EXPECT_FALSE(QFileInfo::exists(QStringLiteral("/.config/Orvalen Years Calendar")));
    EXPECT_FALSE(QFileInfo::exists(QStringLiteral("$HOME")));
    qputenv("HOME", home);
}

TEST_F(SettingsOnDisk, AFullDiskLeavesTheFileWholeAndIsTold) {
    const QByteArray lines("[Startup]\nWindow=1\nLanguage=German\n");
    load(lines);
    save("Window", "2");
    for (const rlim_t bytes : {0UL, 1UL, 20UL, 34UL}) {
        const FullDisk disk(bytes);
        EXPECT_FALSE(FlushSettings()) << bytes;
        EXPECT_EQ(readFile(settingsPath()), lines) << bytes;
        EXPECT_EQ(filesBeside(), QStringList{QStringLiteral("settings.ini")}) << bytes;
    }
    EXPECT_TRUE(FlushSettings()) << "once there is room again";
    EXPECT_EQ(readFile(settingsPath()), "[Startup]\nWindow=2\nLanguage=German\n");
}

TEST_F(SettingsOnDisk, ALockThatIsNeverFreeHoldsForASecondAtMost) {
    load("[Startup]\nWindow=1\n");
    save("Window", "2");
    QLockFile other(settingsPath() + QStringLiteral(".lock"));
    ASSERT_TRUE(other.tryLock());
    QElapsedTimer watch;
    watch.start();
    EXPECT_FALSE(FlushSettings());
    EXPECT_LT(watch.elapsed(), 2000) << "on a busy machine";
    EXPECT_EQ(readFile(settingsPath()), "[Startup]\nWindow=1\n");
    other.unlock();
    EXPECT_TRUE(FlushSettings());
}

// Whoever may read a folder may lock it.
TEST_F(SettingsOnDisk, WhoeverReadsTheFolderCannotHoldItsLock) {
    load("[Startup]\nWindow=1\n");
    save("Window", "2");
    const int folder = open(QFile::encodeName(QFileInfo(settingsPath()).path()).constData(),
                            O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    ASSERT_EQ(flock(folder, LOCK_EX), 0);
    EXPECT_TRUE(FlushSettings());
    close(folder);
}

TEST_F(SettingsOnDisk, LockFilesOfKilledProgramsHoldNobody) {
    load("[Startup]\nWindow=1\n");
    writeFile(settingsPath() + QStringLiteral(".lock"), "999999999\nanother program\n\n\n\n");
    save("Window", "2");
    QElapsedTimer watch;
    watch.start();
    EXPECT_TRUE(FlushSettings());
    EXPECT_LT(watch.elapsed(), 1000);
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
