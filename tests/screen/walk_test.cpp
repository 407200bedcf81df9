// SPDX-License-Identifier: MIT
// What the screen shows after whatever a user does, on a light and on a dark theme.
#include "endurance/controls.h"
#include "endurance/expected.h"
#include "endurance/hand.h"
#include "endurance/judge.h"
#include "endurance/startagain.h"
#include "endurance/walker.h"
#include "screen/screen.h"
#include "support/judgement.h"
#include "support/seed.h"

#include <QPalette>
#include <array>

namespace {

constexpr int today = 2461365;
constexpr int stay = 8; // actions before the user turns to any of all windows

/// Known before the program starts, as its language depends on it.
class Seed {
protected:
    const std::uint32_t m_seed = walkSeed();
    const std::string m_language =
        std::array{"English (Default)", "German", "Hebrew", "Russian"}.at(m_seed % 4);
};

class ScreenWalk : private Seed, public Screen {
protected:
    ScreenWalk()
        : Screen(QString::fromStdString(m_language)),
          m_expected(today),
          m_hand(m_seed, m_expected, m_controls, m_messages) {
        m_expected.language = m_language;
    }
    ~ScreenWalk() override { QApplication::setPalette({}); }

    /// Half of the actions on a light theme, then half on a dark one.
    void walk(int actions) {
        SCOPED_TRACE(againWith(m_seed));
        walkOnTheme(actions / 2);
        if (HasFailure())
            return;
        QApplication::setPalette({QColor(49, 54, 59), QColor(35, 38, 41)});
        expectFresh("on a theme become dark");
        walkOnTheme(actions - actions / 2);
        QApplication::setPalette({});
        expectFresh("on a theme become light");
        recordWithstood("random actions on a screen, each followed by a comparison with a full "
                        "repaint",
                        actions);
    }

private:
    void walkOnTheme(int actions) {
        for (int action = 0; action < actions; ++action) {
            if (action % stay == 0)
                goToAnyOfAll();
            m_walker.Play();
            if (m_expected.ended)
                startAgain();
            standApart();
            m_judge.Look();
            expectFresh("after an action");
            ASSERT_FALSE(HasFailure()) << "the last actions:" << m_hand.Said();
        }
    }

    /// All windows are open again, one of them in front.
    void goToAnyOfAll() {
        openAll();
        for (int number = 1; number <= mainWindowCount; ++number)
            m_expected.Show(number);
        const int front = 1 + m_hand.Below(mainWindowCount);
        m_hand.Say("all windows, ", front, " in front");
        ChangeCals::LoadedWindow(static_cast<MainWindowNumber>(front))->Show();
        expectFresh("with all windows open");
    }

    void startAgain() {
        StartAgain();
        m_exitStatus.reset();
        m_expected.Start();
    }

    /// Both dialogs open in the same place.
    void standApart() const {
        if (m_expected.about)
            ChangeCals::LoadAbout().move(1500, 1500);
    }

    Expected m_expected;
    Controls m_controls;
    Hand m_hand;
    Judge m_judge{m_expected, m_controls};
    Walker m_walker{m_hand};
};

TEST_F(ScreenWalk, IsFreshAfterEveryRandomAction) {
    walk(80);
}

TEST_F(ScreenWalk, DISABLED_IsFreshAfterEachOfTwoThousandRandomActions) {
    walk(2000);
}

} // namespace
