// SPDX-License-Identifier: MIT
#include "changecals/windows.h"
#include "platform/assistive.h"
#include "platform/outlines.h"
#include "platform/pictures.h"
#include "platform/program.h"
#include "start/start.h"

#include <QApplication>

namespace {

// Only X11 lets a program say and know where its windows stand, so it is taken
// first where a desktop offers both; a choice made outside is left alone.
void preferX11() {
    const bool isWayland =
        qEnvironmentVariableIsSet("WAYLAND_DISPLAY") || qgetenv("XDG_SESSION_TYPE") == "wayland";
    if (isWayland && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM") &&
        qEnvironmentVariableIsSet("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "xcb;wayland");
}

} // namespace

int main(int argc, char* argv[]) {
    preferX11();
    QApplication app(argc, argv);
    QApplication::setApplicationName(ProgramTitle());
    InstallAssistiveInterfaces();
    InstallOutlines();
    QApplication::setWindowIcon(Picture(QStringLiteral("icon"))); // of every window
    QApplication::setDesktopFileName(QStringLiteral("orvalen-years-calendar"));
    const int status = Start::Main() ? QApplication::exec() : 1;
    ChangeCals::EndRun();
    return status;
}
