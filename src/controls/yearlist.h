// SPDX-License-Identifier: MIT
#pragma once

#include "platform/combobox.h"
#include "shared/mainwindows.h"

/// A list of all years that a calendar can show, in rising order.
namespace Controls {

/// All entries, the chosen day's year selected; none when that year is not among
/// them.
ListEntries YearEntries(int c);

/// Shows the chosen day's year: selected in a full list, else as the only entry. A
/// year that the list has no place for is shown alone in any case.
void ShowYearInList(ComboBox& list, int c);

/// The user chose an entry: carries its year to all calendars, as changed in a
/// window. The year that is chosen already does nothing.
void ChooseYearOf(const ComboBox& list, int c, MainWindowNumber window);

} // namespace Controls
