// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <functional>

// What is a variable here can be replaced.

/// The product's title: the caption of every message box and the name of the
/// settings.
QString ProgramTitle();

/// The folder of the executable, in which the language files and the moon
/// picture lie; no separator at its end.
extern std::function<QString()> ProgramFolder;

/// A file of the program's folder with its full path in the system's form.
QString ProgramFile(const QString& name);

/// Ends the program: every event loop is left, that of an open message box
/// included, and `status` is the program's exit status.
extern std::function<void(int status)> EndProgram;

/// Whether windows can be placed and know where they stand. On Wayland they
/// do not.
extern std::function<bool()> HasWindowPositions;
