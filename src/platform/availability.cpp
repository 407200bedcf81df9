// SPDX-License-Identifier: MIT
#include "platform/availability.h"

#include <QWidget>

void SetAvailable(QWidget& control, bool visible, bool enabled, QWidget& heir) {
    const bool hasFocus = control.window()->focusWidget() == &control;
    if (hasFocus && !(visible && enabled))
        heir.setFocus();
    control.setVisible(visible);
    control.setEnabled(enabled);
}
