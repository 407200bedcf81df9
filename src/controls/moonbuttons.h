// SPDX-License-Identifier: MIT
#pragma once

#include "platform/buttonstack.h"

/// The nine buttons that show the moon's phase (Command2, by phase) and open the
/// moon window.
class MoonButtons : public ButtonStack {
    Q_OBJECT

public:
    explicit MoonButtons(QWidget* parent);

    /// Their tool tip; `c` as for SetTip.
    void SetTexts(int c = 0);
};
