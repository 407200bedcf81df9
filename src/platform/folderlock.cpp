// SPDX-License-Identifier: MIT
#include "platform/folderlock.h"

#include <QFile>
#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <thread>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;

constexpr auto longestWait = std::chrono::milliseconds(900);
constexpr auto shortWait = std::chrono::milliseconds(5);

bool isTaken(int folder) {
    return flock(folder, LOCK_EX | LOCK_NB) != 0 && (errno == EWOULDBLOCK || errno == EINTR);
}

} // namespace

FolderLock::FolderLock(const QString& folder)
    : m_folder(open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    if (m_folder < 0)
        return;
    const auto limit = Clock::now() + longestWait;
    bool taken = isTaken(m_folder);
    while (taken && Clock::now() < limit) {
        std::this_thread::sleep_for(shortWait);
        taken = isTaken(m_folder);
    }
    m_isHeld = !taken;
}

FolderLock::~FolderLock() {
    if (m_folder >= 0)
        close(m_folder);
}
