// SPDX-License-Identifier: MIT
#include "controls/commands.h"

#include "changecals/changecals.h"
#include "support/recording_windows.h"
#include "support/widget_test.h"

#include <QClipboard>
#include <QShortcut>
#include <memory>

namespace {

/// A window with the keys of all commands, on 20 November 2026.
class CommandKeys : public WidgetTest {
protected:
    CommandKeys() {
        startToday();
        useRecordingWindows();
        m_window = std::make_unique<Form>(QStringLiteral("window"));
        m_commands = std::make_unique<Commands>(
            *m_window, MonthlyWindowNumber, [this] { ++m_closed; }, [this] { ++m_printed; });
        m_window->Show();
        EXPECT_TRUE(waitUntil([this] { return m_window->isActiveWindow(); }));
        calls.clear();
    }

    void press(int key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
        QTest::keyClick(m_window.get(), static_cast<Qt::Key>(key), modifiers);
    }

    std::unique_ptr<Form> m_window;
    std::unique_ptr<Commands> m_commands;
    int m_closed = 0;
    int m_printed = 0;
};

TEST_F(CommandKeys, CtrlTChoosesToday) {
    CurJD = 2451545;
    ChangeCals::ChangeJD();
    press(Qt::Key_T);
    EXPECT_EQ(CurJD, 2461365);
}

TEST_F(CommandKeys, CtrlMBringsTheMonthlyWindow) {
    press(Qt::Key_M);
    EXPECT_TRUE(ChangeCals::IsVisible(MonthlyWindowNumber));
}

TEST_F(CommandKeys, CtrlYOpensTheYearWindowsOfThePanes) {
    press(Qt::Key_Y);
    for (const int c : {Julian, Gregorian, Jewish, Moslem})
        EXPECT_TRUE(ChangeCals::IsVisible(YearWindowNumber(c)));
}

TEST_F(CommandKeys, CtrlCommaOpensTheOptionsAndF1TheAboutBox) {
    press(Qt::Key_Comma);
    EXPECT_TRUE(ChangeCals::LoadOptions().Visible());
    press(Qt::Key_F1, Qt::NoModifier);
    EXPECT_TRUE(ChangeCals::LoadAbout().Visible());
}

TEST_F(CommandKeys, CtrlPPrintsWhereTheWindowHasSomethingToPrint) {
    press(Qt::Key_P);
    EXPECT_EQ(m_printed, 1);
    m_commands.reset();
    for (auto* shortcut : m_window->findChildren<QShortcut*>())
        delete shortcut;
    const Commands withoutPaper(*m_window, MonthlyWindowNumber, [] {});
    press(Qt::Key_P);
    EXPECT_EQ(m_printed, 1);
}

TEST_F(CommandKeys, CtrlWCloses) {
    press(Qt::Key_W);
    EXPECT_EQ(m_closed, 1);
    EXPECT_EQ(m_exitStatus, std::nullopt);
}

TEST_F(CommandKeys, CtrlQEndsTheProgramAndKeepsThePositions) {
    press(Qt::Key_Q);
    EXPECT_EQ(m_exitStatus, 0);
    EXPECT_EQ(m_closed, 0);
    EXPECT_TRUE(readFile(settingsPath()).contains("[Monthly]"));
}

TEST_F(CommandKeys, CtrlCCopiesTheChosenDay) {
    QGuiApplication::clipboard()->clear();
    press(Qt::Key_C);
    const QString copied = QGuiApplication::clipboard()->text();
    EXPECT_TRUE(copied.contains(QStringLiteral("Gregorian calendar: 20 November 2026")))
        << copied.toStdString();
}

} // namespace
