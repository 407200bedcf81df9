// SPDX-License-Identifier: MIT
// The program killed at each of its calls of the system while it writes settings.
#include "platform/settingsfile.h"
#include "support/judgement.h"
#include "support/platform_test.h"

#include <QDateTime>
#include <QDir>
#include <csignal>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

const QByteArray before("[Startup]\nWindow=1\nShowTips=1\n");
const QByteArray after("[Startup]\nWindow=2\nShowTips=0\n");

constexpr auto everything = QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System;

class SettingsKilled : public PlatformTest {
protected:
    /// Flushes in a child that is killed at its stop `stop`, a stop being the
    /// way into a call of the system or out of it. False when it ended before.
    static bool flushUntil(int stop) {
        const pid_t child = fork();
        if (child == 0) {
            ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
            std::raise(SIGSTOP);
            _exit(FlushSettings() ? 0 : 1);
        }
        int status = 0;
        waitpid(child, &status, 0);
        for (int i = 0; i < stop && WIFSTOPPED(status); ++i) {
            ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
            waitpid(child, &status, 0);
        }
        if (!WIFSTOPPED(status)) {
            EXPECT_TRUE(WIFEXITED(status));
            EXPECT_EQ(WEXITSTATUS(status), 0);
            return false;
        }
        kill(child, SIGKILL);
        waitpid(child, &status, 0);
        return true;
    }

    /// Else whoever may read the folder could hold the lock for ever.
    void expectLockOfTheUserAlone() const {
        const QFile lock(settingsPath() + QStringLiteral(".lock"));
        const auto others =
            QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
        EXPECT_FALSE(lock.exists() && (lock.permissions() & others));
    }

    /// As if time had passed: what was killed while it made the lock has left no name in it.
    void ageEmptyLock() const {
        QFile lock(settingsPath() + QStringLiteral(".lock"));
        if (lock.exists() && lock.size() == 0) {
            ASSERT_TRUE(lock.open(QIODevice::ReadWrite));
            ASSERT_TRUE(lock.setFileTime(QDateTime::currentDateTimeUtc().addSecs(-10),
                                         QFileDevice::FileModificationTime));
        }
    }
};

TEST_F(SettingsKilled, TheFileHoldsTheOldValuesOrTheNewAndCanBeSaved) {
    int stop = 0;
    int changed = 0;
    for (bool killed = true; killed; ++stop) {
        // Children draw the same names for what they leave behind.
        QFileInfo(settingsPath()).dir().removeRecursively();
        writeFile(settingsPath(), before);
        ASSERT_TRUE(LoadSettings());
        SaveSetting(QStringLiteral("Startup"), QStringLiteral("Window"), QStringLiteral("2"));
        SaveSetting(QStringLiteral("Startup"), QStringLiteral("ShowTips"), QStringLiteral("0"));
        killed = flushUntil(stop);
        const QByteArray found = readFile(settingsPath());
        ASSERT_TRUE(found == after || (found == before && killed)) << stop << found.constData();
        changed += static_cast<int>(found == after);
        expectLockOfTheUserAlone();
        ageEmptyLock();
        ASSERT_TRUE(FlushSettings()) << stop;
        ASSERT_EQ(readFile(settingsPath()), after) << stop;
        ASSERT_EQ(QFileInfo(settingsPath()).dir().entryList(everything),
                  QStringList{QStringLiteral("settings.ini")})
            << "what the killed one left is cleared: " << stop;
    }
    EXPECT_GT(stop, 20) << "calls were looked at";
    EXPECT_GT(changed, 0);
    EXPECT_LT(changed, stop);
    recordWithstood("the program killed at a system call while it writes its settings", stop - 1);
}

} // namespace
