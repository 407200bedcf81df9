// SPDX-License-Identifier: MIT
#include "platform/assistive.h"
#include "platform/controloutlines.h"
#include "platform/pictures.h"

#include <QApplication>
#include <QLocale>
#include <cstdio>
#include <gtest/gtest.h>

namespace {

// The virtual screen of the tests has no stack of windows and says so each time.
void printMessage(QtMsgType, const QMessageLogContext&, const QString& text) {
    if (!text.startsWith(QLatin1String("This plugin does not support")))
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

// Letters are as wide on every computer as on any other.
void useFontsOfTheTests() {
    if (!qEnvironmentVariableIsSet("FONTCONFIG_FILE"))
        qputenv("FONTCONFIG_FILE", TEST_DATA_DIR "/fonts.conf");
}

} // namespace

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    qInstallMessageHandler(printMessage);
    useFontsOfTheTests();
    QApplication app(argc, argv);
    InstallAssistiveInterfaces();
    InstallControlOutlines();
    QApplication::setWindowIcon(Picture(QStringLiteral("icon")));
    QApplication::setQuitOnLastWindowClosed(false);
    QLocale::setDefault(QLocale::c());
    return RUN_ALL_TESTS();
}
