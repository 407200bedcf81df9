// SPDX-License-Identifier: MIT
#pragma once

#include "start/frmabout.h"

#include <chrono>

/// What the start shows while it prepares the windows: the upper part of the about
/// box, in the colour of the calendar whose window follows.
class Splash {
public:
    /// Shows it, and returns when it is painted.
    Splash();

    /// Lets the windows paint until the splash has had its time.
    void WaitItsTime() const;

    void Hide() { m_box.Hide(); }

private:
    frmAbout m_box;
    std::chrono::steady_clock::time_point m_release;
};
