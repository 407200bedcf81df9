// SPDX-License-Identifier: MIT
#pragma once

/// The start of the program, and the one place that knows all windows.
namespace Start {

/// Reads the settings, fills the tables, chooses today, loads the windows behind
/// a splash and shows the one that the settings name. False when the settings
/// cannot be read; the program is then to end with a status other than 0.
bool Main();

} // namespace Start
