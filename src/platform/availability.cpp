// SPDX-License-Identifier: MIT
#include "platform/availability.h"

#include <QWidget>

void SetAvailable(QWidget& control, bool visible, bool enabled, QWidget& focusNext) {
    const bool hasFocus = control.window()->focusWidget() == &control;
    if (hasFocus && !(visible && enabled))
        focusNext.setFocus();
    control.setVisible(visible);
    control.setEnabled(enabled);
}
