// SPDX-License-Identifier: MIT
#include "platform/settingsfile_test.h"

#include "support/fulldisk.h"
#include "support/usualrights.h"

#include <QElapsedTimer>
#include <QLockFile>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

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

} // namespace
