// SPDX-License-Identifier: MIT
#pragma once

#include "monthly/monthly_test.h"

#include <QLineEdit>

/// The field of the Julian Day in the monthly window.
class JulianDayEntry : public MonthlyTest {
protected:
    static QLineEdit& edit() { return *combo(8).lineEdit(); }

    static void type(const QString& text) {
        combo(8).setFocus(Qt::MouseFocusReason);
        edit().selectAll();
        QTest::keyClicks(&combo(8), text);
    }

    static void enter(const QString& text) {
        type(text);
        QTest::keyClick(&combo(8), Qt::Key_Return);
    }

    void waitForMessages() {
        ASSERT_TRUE(waitUntil([] { return QApplication::activeModalWidget() == nullptr; }));
        processEvents();
        ASSERT_TRUE(waitUntil([this] {
            m_seen += m_messages.take();
            return !m_seen.isEmpty() && QApplication::activeModalWidget() == nullptr;
        }));
        processEvents();
        m_seen += m_messages.take();
    }

    void expectOneRangeMessage() {
        waitForMessages();
        EXPECT_EQ(m_seen, QStringList{QStringLiteral(
                              "Julian Days admissible range:\r\n1721319 \u2014 2817404")});
        m_seen.clear();
        EXPECT_EQ(window().focusWidget(), &combo(8));
        window().activateWindow();
        EXPECT_TRUE(waitUntil([] { return combo(8).hasFocus(); }));
    }

    QStringList m_seen;
};
