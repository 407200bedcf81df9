// SPDX-License-Identifier: MIT
#include "platform/terminationsignals.h"

#include <cerrno>
#include <csignal>
#include <sys/eventfd.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr int terminating[] = {SIGTERM, SIGINT, SIGHUP};

int counter = -1; // of the signals that have come

// The few things that a handler may do: count, and leave errno as it was.
extern "C" void countSignal(int) {
    const int before = errno;
    eventfd_write(counter, 1);
    errno = before;
}

void replaceHandler(int signal, void (*before)(int), void (*after)(int)) {
    struct sigaction action = {};
    sigaction(signal, nullptr, &action);
    if (action.sa_handler != before)
        return;
    action = {};
    action.sa_handler = after;
    action.sa_flags = SA_RESTART;
    sigaction(signal, &action, nullptr);
}

int newCounter() {
    counter = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    return counter;
}

} // namespace

TerminationSignals::TerminationSignals(std::function<void()> end)
    : m_notifier(newCounter(), QSocketNotifier::Read) {
    QObject::connect(&m_notifier, &QSocketNotifier::activated, &m_notifier, [end = std::move(end)] {
        eventfd_t signals = 0;
        eventfd_read(counter, &signals);
        end();
    });
    for (const int signal : terminating)
        replaceHandler(signal, SIG_DFL, countSignal);
}

TerminationSignals::~TerminationSignals() {
    for (const int signal : terminating)
        replaceHandler(signal, countSignal, SIG_DFL);
    m_notifier.setEnabled(false);
    close(std::exchange(counter, -1));
}
