// SPDX-License-Identifier: MIT
#pragma once

#include "platform/twips.h"
#include "shared/mainwindows.h"

class Form;
class MainWindow;

/// Where the main windows stand: they are placed as they are loaded and read back to be
/// stored at the end.
namespace ChangeCals {

/// Of a window's frame on the desktop.
struct Position {
    Twips left;
    Twips top;
};

/// Where a main window stands when it is loaded: at its stored position, or at
/// its first place when none is stored or when it lies beyond the right or lower
/// edge of the desktop, which all monitors make up together.
Position PlaceOf(MainWindowNumber window);

/// Puts a window that is being loaded there.
void PlaceForm(Form& form, MainWindowNumber window);

/// Reads where the six windows stand into FormTop and FormLeft. A minimised
/// window and one whose place cannot be known keep the position read at start.
/// Returns the first window whose position does not fit in 16 bits, in which
/// case nothing is changed, otherwise nullptr.
const MainWindow* ReadPositions();

} // namespace ChangeCals
