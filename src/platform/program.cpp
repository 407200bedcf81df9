// SPDX-License-Identifier: MIT
#include "platform/program.h"

#include "platform/system.h"

#include <QDir>
#include <QGuiApplication>

namespace {

QString replacedFolder;
std::function<void(int)> replacedEnd;
std::function<bool()> replacedPositions;

} // namespace

QString ProgramTitle() {
    return QStringLiteral("Orvalen Years Calendar");
}

QString ProgramFolder() {
    static const QString folder = ExecutableFolder();
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
