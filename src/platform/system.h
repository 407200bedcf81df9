// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QFileDevice>
#include <QString>
#include <thread>

// What every system does in its own way. There is a source for each, system_posix.cpp
// and system_windows.cpp, and the build takes one of them.

/// Before the application is made: takes the one in which windows know their places
/// where the user has several.
void ChooseWindowSystem();

/// Has the system list its fonts, for which a program's first letter waits, beside what
/// the caller does until the thread returned here has ended.
std::jthread FontListing();

/// Brings what was written to a file to the disk; false when it is not known to be
/// there.
bool BringToDisk(QFileDevice& file);

/// While it lasts, what is made is for the user alone.
class ForTheUserAlone {
public:
    ForTheUserAlone();
    ~ForTheUserAlone();
    ForTheUserAlone(const ForTheUserAlone&) = delete;
    ForTheUserAlone& operator=(const ForTheUserAlone&) = delete;

private:
    unsigned m_former;
};

/// Bytes of a Windows code page as text; what has no meaning there becomes a control
/// or the replacement character, as on Windows itself.
QString FromCodePage(const QByteArray& bytes, int codePage);

/// A way to the folder of the executable; no separator at its end.
QString ExecutableFolder();
