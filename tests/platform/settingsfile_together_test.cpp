// SPDX-License-Identifier: MIT
// Several programs that save at the same time, and a disk that fails.
#include "platform/settingsfile.h"
#include "support/platform_test.h"

#include <cerrno>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

int synced = 0;
bool syncFails = false;

} // namespace

// In the C library's place, whose own name of the parameter is a reserved one.
// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name)
extern "C" int fsync(int file) {
    ++synced;
    if (syncFails) {
        errno = EIO;
        return -1;
    }
    return static_cast<int>(syscall(SYS_fsync, file));
}

namespace {

constexpr int programs = 3;
constexpr int saves = 12;

class SettingsTogether : public PlatformTest {
protected:
    static QString section(int program) { return QStringLiteral("Program%1").arg(program); }
    static QString key(int save) { return QStringLiteral("Key%1").arg(save); }

    /// Saves key by key, each until it is said to be written.
    static void saveAll(int program) {
        for (int i = 0; i < saves; ++i) {
            SaveSetting(section(program), key(i), QString::number(i));
            while (!FlushSettings()) {
            }
        }
    }
};

TEST_F(SettingsTogether, NobodyLosesWhatAnotherSaves) {
    pid_t children[programs] = {};
    for (int program = 0; program < programs; ++program) {
        children[program] = fork();
        if (children[program] == 0) {
            saveAll(program);
            _exit(0);
        }
    }
    for (const pid_t child : children) {
        int status = 0;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        ASSERT_EQ(status, 0);
    }
    ASSERT_TRUE(LoadSettings());
    for (int program = 0; program < programs; ++program) {
        for (int i = 0; i < saves; ++i)
            EXPECT_EQ(GetSetting(section(program), key(i), QString()), QString::number(i))
                << program;
    }
}

TEST_F(SettingsTogether, WhatTheDiskDoesNotTakeDoesNotTakeTheFilesPlace) {
    writeFile(settingsPath(), "[Startup]\nWindow=1\n");
    ASSERT_TRUE(LoadSettings());
    SaveSetting(QStringLiteral("Startup"), QStringLiteral("Window"), QStringLiteral("2"));
    synced = 0;
    syncFails = true;
    EXPECT_FALSE(FlushSettings());
    syncFails = false;
    EXPECT_GT(synced, 0);
    EXPECT_EQ(readFile(settingsPath()), "[Startup]\nWindow=1\n");
    EXPECT_TRUE(FlushSettings());
}

} // namespace
