// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What the rooms share of the settings file.
namespace ChangeCals {

/// "Julian" .. "Moslem", "Monthly", "Moon" by the main window's number.
QString SettingsSection(int number);

/// Flushes the settings; tells the user, once in a run, when their file cannot
/// be written.
void FlushSettingsOrTell();

/// A run begins: nothing has been told yet.
void ForgetTelling();

} // namespace ChangeCals
