// SPDX-License-Identifier: MIT
#include "platform/system.h"

#include <QCoreApplication>
#include <io.h>
#include <qt_windows.h>
#include <string>

void ChooseWindowSystem() {} // there is one

std::jthread FontListing() {
    return {}; // the system has listed them before
}

bool BringToDisk(QFileDevice& file) {
    return file.flush() && _commit(file.handle()) == 0;
}

// In a user's profile everything is for that user alone.
ForTheUserAlone::ForTheUserAlone() : m_former(0) {}

ForTheUserAlone::~ForTheUserAlone() = default;

QString FromCodePage(const QByteArray& bytes, int codePage) {
    const UINT page = IsValidCodePage(codePage) != 0 ? codePage : CP_ACP;
    std::wstring text(bytes.size(), L'\0'); // no byte of these code pages is more than one unit
    const int length = MultiByteToWideChar(page, 0, bytes.data(), int(bytes.size()), text.data(),
                                           int(text.size()));
    return QString::fromWCharArray(text.data(), length);
}

QString ExecutableFolder() {
    return QCoreApplication::applicationDirPath();
}
