// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <functional>

/// The product's title: the caption of every message box and the name of the
/// settings.
QString ProgramTitle();

/// The folder of the executable, in which the language files and the moon
/// picture lie; no separator at its end.
QString ProgramFolder();

/// A file of the program's folder with its full path in the system's form.
QString ProgramFile(const QString& name);

/// Another folder in the executable's place; an empty one puts it back.
void SetProgramFolder(const QString& folder);

/// Ends the program: every event loop is left, that of an open message box
/// included, and `status` is the program's exit status.
void EndProgram(int status);

/// Replaces what EndProgram does; an empty function puts it back.
void SetEndProgram(std::function<void(int status)> end);

/// Whether windows can be placed and know where they stand. On Wayland they
/// do not.
bool HasWindowPositions();

/// Replaces what HasWindowPositions asks; an empty function puts it back.
void SetHasWindowPositions(std::function<bool()> has);
