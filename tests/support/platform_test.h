// SPDX-License-Identifier: MIT
#pragma once

#include "platform/beep.h"
#include "platform/clock.h"
#include "platform/program.h"

#include <QApplication> // IWYU pragma: export
#include <QScopedValueRollback>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest> // IWYU pragma: export
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>
#include <optional>

/// Waits until a condition holds; false when it never does.
bool waitUntil(const std::function<bool()>& condition);

/// Shows a window in front of all others, with the focus on this control of it.
void showWithFocus(QWidget& window, QWidget& control);

/// Runs all events that are due.
void processEvents();

/// A child by its object name.
template <typename Widget>
Widget* child(QObject& parent, const char* name) {
    auto* found = parent.findChild<Widget*>(QString::fromLatin1(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
}

/// Answers every message box with Return and keeps its text; any other modal
/// window, or a box that nobody asked about, fails the test, unless it is told how
/// other windows are answered.
class MessageWatch {
public:
    MessageWatch();

    /// The texts since the last call.
    QStringList take();

    void answerOther(std::function<void(QWidget& modal)> answer) {
        m_answerOther = std::move(answer);
    }

    /// The next message is answered by this key instead of Return.
    void AnswerBy(QKeyCombination key) { m_key = key; }

private:
    void answer();

    std::function<void(QWidget& modal)> m_answerOther;

    QTimer m_timer;
    QStringList m_texts;
    QKeyCombination m_key = Qt::Key_Return;
};

/// Clicks in the middle of a widget.
void click(QWidget* widget, Qt::MouseButton button = Qt::LeftButton);

/// Turns the wheel by one step over the middle of a widget.
void turnWheel(QWidget& widget, bool up = false);

/// What a test has in the desktop's place while it lives: a settings folder and a
/// program folder of its own, no end of the process, no beep, no message that the
/// test does not ask for.
class Desk {
protected:
    Desk();
    ~Desk();

    QString settingsPath() const;
    QString programPath(const QString& name) const;
    void writeFile(const QString& path, const QByteArray& bytes) const;
    QByteArray readFile(const QString& path) const;

    QTemporaryDir m_folder;
    MessageWatch m_messages;
    std::optional<int> m_exitStatus;
    int m_beeps = 0;

private:
    template <typename Function>
    using AsBefore = QScopedValueRollback<Function>;

    AsBefore<decltype(Beep)> m_beep{Beep, [this] { ++m_beeps; }};
    AsBefore<decltype(Today)> m_today{Today};
    AsBefore<decltype(EndProgram)> m_end{EndProgram, [this](int status) { m_exitStatus = status; }};
    AsBefore<decltype(HasWindowPositions)> m_positions{HasWindowPositions};
    AsBefore<decltype(ProgramFolder)> m_programFolder{ProgramFolder};
};

/// A test that knows no calendar.
class PlatformTest : public testing::Test, protected Desk {};
