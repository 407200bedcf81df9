// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// The built-in language's name in the options and in the settings.
inline const std::string englishLanguage = "English (Default)";

/// Sets every text table to the built-in English texts. Month 13 of the Jewish
/// names is left as it is.
void SetEnglishTexts();
