// SPDX-License-Identifier: MIT
#include "changecals/windows.h"
#include "platform/assistive.h"
#include "platform/controloutlines.h"
#include "platform/pictures.h"
#include "platform/program.h"
#include "platform/system.h"
#include "start/start.h"

#include <QApplication>

int main(int argc, char* argv[]) {
    ChooseWindowSystem();
    const std::jthread listing = FontListing();
    QApplication app(argc, argv);
    QApplication::setApplicationName(ProgramTitle());
    InstallAssistiveInterfaces();
    InstallControlOutlines();
    QApplication::setWindowIcon(Picture(QStringLiteral("icon"))); // of every window
    QApplication::setDesktopFileName(QStringLiteral("orvalen-years-calendar"));
    const int status = Start::Main() ? QApplication::exec() : 1;
    ChangeCals::EndRun();
    return status;
}
