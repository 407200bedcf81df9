// SPDX-License-Identifier: MIT
#include "platform/terminationsignals.h"
#include "support/platform_test.h"

#include <csignal>

namespace {

class Termination : public testing::TestWithParam<int> {
protected:
    // A shell has it ignored in what it runs in the background.
    Termination() { std::signal(GetParam(), SIG_DFL); }

    int m_ends = 0;
};

TEST_P(Termination, ASignalEndsTheProgramFromItsEventLoop) {
    const TerminationSignals signals([this] { ++m_ends; });
    raise(GetParam());
    EXPECT_EQ(m_ends, 0) << "not amid other work";
    EXPECT_TRUE(waitUntil([this] { return m_ends == 1; }));
}

TEST_P(Termination, SignalsThatComeTogetherAreOne) {
    const TerminationSignals signals([this] { ++m_ends; });
    raise(GetParam());
    raise(GetParam());
    EXPECT_TRUE(waitUntil([this] { return m_ends > 0; }));
    processEvents();
    EXPECT_EQ(m_ends, 1);
}

TEST_P(Termination, AnotherOneLaterIsTakenToo) {
    const TerminationSignals signals([this] { ++m_ends; });
    for (const int expected : {1, 2, 3}) {
        raise(GetParam());
        EXPECT_TRUE(waitUntil([&] { return m_ends == expected; }));
    }
}

TEST_P(Termination, AnIgnoredSignalStaysIgnored) {
    std::signal(GetParam(), SIG_IGN);
    {
        const TerminationSignals signals([this] { ++m_ends; });
        raise(GetParam());
        processEvents();
        EXPECT_EQ(m_ends, 0);
    }
    EXPECT_EQ(std::signal(GetParam(), SIG_DFL), SIG_IGN);
}

TEST_P(Termination, AfterwardsTheSignalDoesWhatItDidBefore) {
    {
        const TerminationSignals signals([] {});
    }
    EXPECT_EQ(std::signal(GetParam(), SIG_DFL), SIG_DFL);
    EXPECT_EXIT(raise(GetParam()), testing::KilledBySignal(GetParam()), "");
}

INSTANTIATE_TEST_SUITE_P(Signals, Termination, testing::Values(SIGTERM, SIGINT, SIGHUP),
                         [](const testing::TestParamInfo<int>& signal) {
                             return signal.param == SIGTERM  ? "Term"
                                    : signal.param == SIGINT ? "Interrupt"
                                                             : "HangUp";
                         });

} // namespace
