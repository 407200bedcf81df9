// SPDX-License-Identifier: MIT
#include "platform/program.h"

#include "support/platform_test.h"

#include <QDir>

namespace {

class ProgramOnDesk : public PlatformTest {};

TEST_F(ProgramOnDesk, ItsFilesLieInItsFolder) {
    const QString name = QStringLiteral("Moon.bmp");
    EXPECT_EQ(ProgramFile(name), QDir::toNativeSeparators(programPath(name)));
}

TEST(Program, LiesWhereItsExecutableDoes) {
    EXPECT_EQ(ProgramFolder(), QCoreApplication::applicationDirPath());
}

TEST(Program, ItsEndHasAStatus) { // and ends no more than the loop of events here
    QTimer::singleShot(0, [] { EndProgram(3); });
    EXPECT_EQ(QCoreApplication::exec(), 3);
}

} // namespace
