// SPDX-License-Identifier: MIT
#pragma once

#include <QCursor>
#include <QGuiApplication>

/// Shows the hourglass as the mouse pointer for as long as it lives.
class HourglassPointer {
public:
    HourglassPointer() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~HourglassPointer() { QGuiApplication::restoreOverrideCursor(); }
    HourglassPointer(const HourglassPointer&) = delete;
    HourglassPointer& operator=(const HourglassPointer&) = delete;
};
