// SPDX-License-Identifier: MIT
#pragma once

#include <QWindow>

/// Presses and releases a key as a user does: the toolkit has it from the desktop
/// and hands it on when it next takes input.
void queueKey(QWindow& window, Qt::Key key);

/// The user turns to another program: no window of ours has the keyboard.
void goToAnotherProgram();

/// Takes what the desktop has told of windows, without painting any.
void takeNewsOfWindows();
