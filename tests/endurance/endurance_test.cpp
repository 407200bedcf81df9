// SPDX-License-Identifier: MIT
// A user who does anything anywhere: after each action all windows show the day to
// which it should have led.
#include "changecals/windows.h"
#include "endurance/controls.h"
#include "endurance/expected.h"
#include "endurance/hand.h"
#include "endurance/judge.h"
#include "endurance/memory.h"
#include "endurance/startagain.h"
#include "endurance/walker.h"
#include "support/judgement.h"
#include "support/seed.h"
#include "support/widget_test.h"

#include <QFile>
#include <QImage>

// Recording where each piece of memory came from, filling it, and looking after what a
// function left on the stack takes longer than the walk itself.
extern "C" const char* __asan_default_options() { // NOLINT(bugprone-reserved-identifier)
    return "malloc_context_size=2:quarantine_size_mb=16:max_malloc_fill_size=0:"
           "detect_stack_use_after_return=0";
}

namespace {

constexpr int today = 2461365;
constexpr int settled = 10000; // actions after which memory is no longer to grow

class Endurance : public WidgetTest {
protected:
    Endurance() : m_expected(today), m_hand(m_seed, m_expected, m_controls, m_messages) {
        Today = [] { return QDate(2026, 11, 20); };
        for (const char* language : {"German", "Hebrew", "Russian"})
            copyLanguage(language);
        QImage moon(16, 16, QImage::Format_RGB32);
        moon.fill(Qt::yellow);
        EXPECT_TRUE(moon.save(programPath(QStringLiteral("Moon.bmp")), "BMP"));
        start();
    }

    void start() {
        StartAgain();
        m_exitStatus.reset();
        m_expected.Start();
    }

    void walk(int actions) {
        SCOPED_TRACE(againWith(m_seed));
        for (int action = 1; action <= actions; ++action) {
            m_walker.Play();
            look(action);
            ASSERT_FALSE(HasFailure()) << "after action " << action << ":" << m_hand.Said();
            if (m_expected.ended)
                start();
            if (action == settled)
                m_memory = memoryAtRest();
        }
        EXPECT_LE(memoryAtRest(), m_memory * 11 / 10);
    }

    /// Painting what has changed is the dear part: not after each action.
    void look(int action) {
        EXPECT_EQ(m_exitStatus, m_expected.ended ? std::optional(0) : std::nullopt);
        if (action % 50 == 0)
            processEvents();
        else
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (action % 100 == 0)
            m_judge.LookClosely();
        else
            m_judge.Look();
    }

    std::size_t memoryAtRest() {
        const std::size_t bytes = BytesAtRest();
        m_expected.options.reset();
        m_expected.about = false;
        for (int number = 1; number <= mainWindowCount; ++number)
            m_expected.Show(number);
        return bytes;
    }

    const std::uint32_t m_seed = walkSeed();
    Expected m_expected;
    Controls m_controls;
    Hand m_hand;
    Judge m_judge{m_expected, m_controls};
    Walker m_walker{m_hand};
    std::size_t m_memory = 0; ///< once settled
};

TEST_F(Endurance, TwentyThousandRandomActionsEachLeadToTheirDay) {
    walk(20000);
    recordWithstood("random actions on all windows together, each with its day expected", 20000);
}

TEST_F(Endurance, DISABLED_AMillionRandomActionsEachLeadToTheirDay) {
    walk(1000000);
    recordWithstood("random actions on all windows together, each with its day expected", 1000000);
}

} // namespace
