// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;

namespace Controls {

/// Gives a control its tool tip, none while ShowTips is off, and its accessible
/// name: the tip, behind the name of calendar c where there is one.
void SetTip(QWidget* control, const QString& tip, int c = 0);

} // namespace Controls
