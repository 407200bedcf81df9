// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;

namespace Controls {

/// Gives a control its tool tip, none while ShowTips is off, and its accessible name,
/// behind the name of calendar c where there is one: entry `text` of StringTexts as
/// tip, and as name what of it concerns people without a mouse.
void SetTip(QWidget* control, int text, int c = 0);

/// The same text as tip and as name.
void SetTip(QWidget* control, const QString& text, int c);

} // namespace Controls
