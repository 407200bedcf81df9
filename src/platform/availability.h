// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

/// Shows and enables a control, or not. One that has its window's focus hands it
/// to `heir` before it goes; the toolkit would pass it to whatever comes next.
void SetAvailable(QWidget& control, bool visible, bool enabled, QWidget& heir);
