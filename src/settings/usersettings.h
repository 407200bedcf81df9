// SPDX-License-Identifier: MIT
#pragma once

#include "settings/settingstable.h"

// The user's stored choices: read at the start, saved in groups.

/// Reads every setting into the shared values; absent ones get their standard
/// values, all of them when the file cannot be read, which is told. False, after
/// a message that names the section, the key and the text, when a number cannot
/// be read: the program is then not to start.
bool ReadSettings();

/// Saves the shared values of a group. That they cannot be written is told once
/// since they were read.
void SaveSettings(SettingGroup group);
