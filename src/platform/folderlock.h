// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Keeps other instances of the program out of a folder while it lives. The lock
/// is the system's own and goes with its holder: a program that was killed leaves
/// none behind, and there is no file that could be in its place.
class FolderLock {
public:
    /// Waits a second at most for the one who holds it.
    explicit FolderLock(const QString& folder);
    ~FolderLock();
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

    /// Whether it is safe to go on. True also on a file system without locks.
    bool IsHeld() const { return m_isHeld; }

private:
    int m_folder;
    bool m_isHeld = false;
};
