// SPDX-License-Identifier: MIT
#pragma once

#include "start/frmabout.h"

#include <QTimer>

/// What the start shows while it prepares the windows: the upper part of the about
/// box, in the colour of the calendar whose window follows.
class Splash {
public:
    /// Shows it, and returns when it is painted.
    Splash();

    /// Sleeps and lets the windows paint until the splash has had its time.
    void WaitItsTime() const;

    void Hide() { m_box.Hide(); }

private:
    frmAbout m_box;
    QTimer m_time;
};
