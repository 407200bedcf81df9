// SPDX-License-Identifier: MIT
#pragma once

class Form;

/// Where the main windows stand.
namespace ChangeCals {

/// Of a window's frame, in twips.
struct Position {
    int left;
    int top;
};

/// Where a main window stands when it is loaded: at its stored position, or at
/// the designed one when none is stored or when it lies beyond the right or
/// lower edge of the primary screen.
Position PlaceOf(int number);

/// Puts a window that is being loaded there.
void PlaceForm(Form& form, int number);

} // namespace ChangeCals
