// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// The per-user settings store: one text file in the user's configuration
// directory, sections of keys, every value a text.

/// The stored text, or `standard` when the key is absent. Reading writes nothing.
QString GetSetting(const QString& section, const QString& key, const QString& standard);

/// Creates or overwrites a key; it is on disk after the next FlushSettings.
void SaveSetting(const QString& section, const QString& key, const QString& value);

/// Writes what was saved. False when the file could not be written.
bool FlushSettings();

/// The file's full path in the system's form.
QString SettingsFile();
