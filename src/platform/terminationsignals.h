// SPDX-License-Identifier: MIT
#pragma once

#include <QSocketNotifier>
#include <functional>

/// Takes the signals by which a system asks a program to end (SIGTERM, SIGINT and
/// SIGHUP) while it lives; one that was ignored before stays ignored. `end` is
/// called from the event loop, once for signals that come together. One at a time
/// in a process.
class TerminationSignals {
public:
    explicit TerminationSignals(std::function<void()> end);
    ~TerminationSignals();

    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

private:
    QSocketNotifier m_notifier;
};
