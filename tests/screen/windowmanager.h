// SPDX-License-Identifier: MIT
#pragma once

#include "support/platform_test.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

/// The window manager, who does things in its own time: maps, frames, minimises and
/// gives the keyboard.
class WindowManager {
public:
    WindowManager() {
        m_asking.setFlags(Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
        m_asking.setGeometry(QRect(place(0), QSize(1, 1)));
        m_asking.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&m_asking));
        QObject::connect(&m_asking, &QWindow::xChanged, &m_asking, [this] { m_answered = true; });
    }

    /// Waits until it has done all that was asked before, and the program what follows
    /// from that. Twice, since what follows can be to ask for more.
    void CatchUp() {
        for (int round = 0; round < 2; ++round) {
            processEvents();
            askAndWait();
        }
        processEvents();
    }

private:
    // It answers in the order in which it is asked, this by moving a window: where the
    // window is changes at once, only the answer tells that it has moved.
    void askAndWait() {
        m_there = !m_there;
        m_answered = false;
        m_asking.setPosition(place(m_there ? 1 : 0));
        EXPECT_TRUE(waitUntil([this] { return m_answered; }));
    }

    /// One of two in the corner of the screen.
    static QPoint place(int which) {
        return QGuiApplication::primaryScreen()->geometry().bottomRight() -
               QPoint(40 + 20 * which, 40);
    }

    QWindow m_asking;
    bool m_there = false;
    bool m_answered = false;
};
