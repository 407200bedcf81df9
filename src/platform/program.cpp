// SPDX-License-Identifier: MIT
#include "platform/program.h"

#include <QDir>
#include <QGuiApplication>
#include <fcntl.h>
#include <filesystem>

namespace {

QString replacedFolder;
std::function<void(int)> replacedEnd;
std::function<bool()> replacedPositions;

// A folder whose name is not UTF-8 has no name for the toolkit: it is kept open, and
// reached by that.
QString findFolder() {
    QString named = QCoreApplication::applicationDirPath();
    if (QFileInfo::exists(named))
        return named;
    std::error_code none;
    const auto folder = std::filesystem::read_symlink("/proc/self/exe", none).parent_path();
    return QStringLiteral("/proc/self/fd/%1").arg(open(folder.c_str(), O_PATH | O_CLOEXEC));
}

} // namespace

QString ProgramTitle() {
    return QStringLiteral("Orvalen Years Calendar");
}

QString ProgramFolder() {
    static const QString folder = findFolder();
    return replacedFolder.isEmpty() ? folder : replacedFolder;
}

QString ProgramFile(const QString& name) {
    return QDir::toNativeSeparators(ProgramFolder() + u'/' + name);
}

void SetProgramFolder(const QString& folder) {
    replacedFolder = folder;
}

void EndProgram(int status) {
    if (replacedEnd)
        replacedEnd(status);
    else
        QCoreApplication::exit(status); // quit() would first ask every window to close
}

void SetEndProgram(std::function<void(int)> end) {
    replacedEnd = std::move(end);
}

bool HasWindowPositions() {
    if (replacedPositions)
        return replacedPositions();
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

void SetHasWindowPositions(std::function<bool()> has) {
    replacedPositions = std::move(has);
}
