// SPDX-License-Identifier: MIT
#include "platform/system.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QStringDecoder>
#include <fcntl.h>
#include <filesystem>
#include <fontconfig/fontconfig.h>
#include <sched.h>
#include <sys/stat.h>
#include <unistd.h>

// Only X11 lets a program say and know where its windows stand; a choice made outside is
// left alone.
void ChooseWindowSystem() {
    const bool isWayland =
        qEnvironmentVariableIsSet("WAYLAND_DISPLAY") || qgetenv("XDG_SESSION_TYPE") == "wayland";
    if (isWayland && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM") &&
        qEnvironmentVariableIsSet("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "xcb;wayland");
}

std::jthread FontListing() {
    return std::jthread([] {
        // The desktop, with which the program talks meanwhile, goes first.
        const sched_param none{};
        sched_setscheduler(0, SCHED_IDLE, &none);
        FcInit();
    });
}

bool BringToDisk(QFileDevice& file) {
    return file.flush() && fsync(file.handle()) == 0;
}

ForTheUserAlone::ForTheUserAlone() : m_former(umask(S_IRWXG | S_IRWXO)) {}

ForTheUserAlone::~ForTheUserAlone() {
    umask(m_former);
}

QString FromCodePage(const QByteArray& bytes, int codePage) {
    QStringDecoder decoder("windows-" + QByteArray::number(codePage));
    if (!decoder.isValid()) // the toolkit was built without the tables: as the system has it
        decoder = QStringDecoder(QStringDecoder::System);
    return decoder.decode(bytes);
}

// A folder whose name is not UTF-8 has no name for the toolkit: it is kept open, and
// reached by that.
QString ExecutableFolder() {
    QString named = QCoreApplication::applicationDirPath();
    if (QFileInfo::exists(named))
        return named;
    std::error_code none;
    const auto folder = std::filesystem::read_symlink("/proc/self/exe", none).parent_path();
    return QStringLiteral("/proc/self/fd/%1").arg(open(folder.c_str(), O_RDONLY | O_CLOEXEC));
}
