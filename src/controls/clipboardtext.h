// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Controls {

/// The chosen day in the language now chosen: a line for each calendar that can
/// show it, then weekday, Julian Day and the moon's age in days.
QString ChosenDayInWords();

} // namespace Controls
