// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

/// Shows and enables a control, or not. One that has its window's focus hands it to
/// `focusNext` before it goes; the toolkit would pass it to any other.
void SetAvailable(QWidget& control, bool visible, bool enabled, QWidget& focusNext);
