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
    EndProgram(1);
    EXPECT_EQ(m_exitStatus, 1);
}

} // namespace
