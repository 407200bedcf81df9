// SPDX-License-Identifier: MIT
#pragma once

#include <Qt>

class Form;

/// Closing of windows and the end of the program. The program lives while one of
/// the five calendar windows is visible; the moon window and the dialogs do not
/// count.
namespace ChangeCals {

/// A close button: hides the window, or ends the program when it is the last one
/// open. `arg` is handed to ExitProgram, which has no use for it.
void CloseWindow(Form& form, int arg = 0);

/// A mouse button went down on a close button: the right one ends the program.
void MouseDownOnClose(Qt::MouseButton button);

/// Saves the six windows' positions and ends the program. A minimised window and
/// one whose place cannot be known keep the position read at start. A position
/// beyond 16 bits of twips ends the program with a message and status 1, and
/// nothing is saved.
void ExitProgram(int arg = 0);

/// After a calendar window has gone: ends the program without saving when none
/// is left.
void AfterWindowClosed();

/// Ends the program without saving anything; `status` is its exit status.
void LeaveProgram(int status);

} // namespace ChangeCals
