// SPDX-License-Identifier: MIT
#pragma once

/// Sets every text table to the built-in English texts. Month 13 of the Jewish
/// names is left as it is.
void SetEnglishTexts();
