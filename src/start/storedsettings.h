// SPDX-License-Identifier: MIT
#pragma once

/// Reads every setting into the shared tables; absent ones get their standard
/// values. False, after a message that names the section, the key and the text,
/// when a number cannot be read: the program is then not to start.
bool ReadSettings();
