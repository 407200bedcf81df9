// SPDX-License-Identifier: MIT
#include "platform/program.h"

#include "support/platform_test.h"

#include <QDir>

namespace {

class Program : public PlatformTest {};

TEST_F(Program, ItsFilesLieInItsFolder) {
    const QString name = QStringLiteral("Moon.bmp");
    EXPECT_EQ(ProgramFile(name), QDir::toNativeSeparators(programPath(name)));
    SetProgramFolder({});
    EXPECT_EQ(ProgramFolder(), QCoreApplication::applicationDirPath());
}

TEST_F(Program, ItsEndHasAStatus) {
    SetEndProgram({}); // the real one, which ends no more than the loop of events here
    QTimer::singleShot(0, [] { EndProgram(3); });
    EXPECT_EQ(QCoreApplication::exec(), 3);
}

} // namespace
