// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;

/// What every window says of its controls.
namespace Controls {

/// Gives a control its tool tip, none while ShowTips is off, and its accessible
/// name: the tip, behind the name of calendar c where there is one.
void SetTip(QWidget* control, const QString& tip, int c = 0);

/// What an assistive tool says of a day in a grid: weekday, day, month, year and
/// calendar, in the current year of calendar c.
QString SpokenDate(int c, int weekday, const QString& day, int month);

} // namespace Controls
