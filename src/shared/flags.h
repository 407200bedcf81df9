// SPDX-License-Identifier: MIT
#pragma once

#include <utility>

/// Set while a window refills its own controls; handlers that would change the
/// chosen day do nothing meanwhile. Set by an UpdatingGuard only.
inline bool Updating = false;

/// Sets Updating for as long as it lives and then puts back what was, so that a
/// refill within another one does not end the outer one's.
class UpdatingGuard {
public:
    UpdatingGuard() : m_former(std::exchange(Updating, true)) {}
    ~UpdatingGuard() { Updating = m_former; }
    UpdatingGuard(const UpdatingGuard&) = delete;
    UpdatingGuard& operator=(const UpdatingGuard&) = delete;

private:
    bool m_former;
};

/// The window in which a change is made: 0 the monthly window, 1..4 the year
/// window of that calendar. It is redrawn first. Other values count as 0.
inline int CurrentWindow = 0;
