// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class Form;

/// Where the main windows stand, and the sections of the settings file in which
/// that is kept.
namespace ChangeCals {

/// Of a window's frame, in twips.
struct Position {
    int left;
    int top;
};

/// "Julian" .. "Moslem", "Monthly", "Moon" by the main window's number.
QString SettingsSection(int number);

/// Where a main window stands when it is loaded: at its stored position, or at
/// the designed one when none is stored or when it lies beyond the right or
/// lower edge of the primary screen.
Position PlaceOf(int number);

/// Puts a window that is being loaded there.
void PlaceForm(Form& form, int number);

/// Flushes the settings; tells the user, once in a run, when their file cannot
/// be written.
void FlushSettingsOrTell();

} // namespace ChangeCals
