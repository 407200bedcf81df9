// SPDX-License-Identifier: MIT
#include "platform/program.h"

#include "platform/system.h"

#include <QDir>
#include <QGuiApplication>

std::function<QString()> ProgramFolder = [] {
    static const QString folder = ExecutableFolder();
    return folder;
};

// quit() would first ask every window to close.
std::function<void(int)> EndProgram = QCoreApplication::exit;

std::function<bool()> HasWindowPositions = [] {
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
};

QString ProgramTitle() {
    return QStringLiteral("Orvalen Years Calendar");
}

QString ProgramFile(const QString& name) {
    return QDir::toNativeSeparators(ProgramFolder() + u'/' + name);
}
