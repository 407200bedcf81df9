// SPDX-License-Identifier: MIT
#include "platform/availability.h"

#include "support/platform_test.h"

#include <QLineEdit>

namespace {

class Availability : public PlatformTest {
protected:
    Availability() {
        m_control.setFocus();
        m_window.show();
        m_window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
    }

    QWidget m_window;
    QLineEdit m_control{&m_window};
    QLineEdit m_next{&m_window};
    QLineEdit m_focusNext{&m_window};
};

TEST_F(Availability, AControlThatGoesHandsItsFocusToItsHeir) {
    for (const bool visible : {true, false}) {
        SetAvailable(m_control, true, true, m_focusNext);
        m_control.setFocus();
        SetAvailable(m_control, visible, false, m_focusNext);
        EXPECT_EQ(m_window.focusWidget(), &m_focusNext);
        EXPECT_EQ(m_control.isVisible(), visible);
        EXPECT_FALSE(m_control.isEnabled());
    }
}

TEST_F(Availability, TheFocusOfOthersStays) {
    m_next.setFocus();
    SetAvailable(m_control, false, false, m_focusNext);
    EXPECT_EQ(m_window.focusWidget(), &m_next);
    SetAvailable(m_next, true, true, m_focusNext);
    EXPECT_EQ(m_window.focusWidget(), &m_next);
}

TEST_F(Availability, TheFocusIsHandedOnInAWindowThatIsNotActiveToo) {
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    SetAvailable(m_control, true, false, m_focusNext);
    EXPECT_EQ(m_window.focusWidget(), &m_focusNext);
}

} // namespace
