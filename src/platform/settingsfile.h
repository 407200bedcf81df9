// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// The settings file: one text file in the user's configuration
// directory, sections of keys, every value a text.

/// Reads the settings file; what was read or saved before is forgotten. False
/// when there is something in its place that cannot be read, be it no file: then
/// every key is absent, and nothing is written over it.
bool LoadSettings();

/// The text that was loaded or saved since, or `whenAbsent` when the key is absent.
QString GetSetting(const QString& section, const QString& key, const QString& whenAbsent);

/// Creates or overwrites a key; it is on disk after the next FlushSettings.
void SaveSetting(const QString& section, const QString& key, const QString& value);

/// Writes what was saved, and only that: keys that another program has changed
/// meanwhile keep its values. False when it could not be written, within a second
/// if another program is at it; the file is then whole and as it was, and what was
/// saved is written with the next flush.
bool FlushSettings();

/// The file's full path in the system's form.
QString SettingsFile();
