// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

/// The moon as its window draws it, from the program's picture of the full moon.

/// The nine cases of the shadow side by side.
QImage MoonCasesSheet();

/// A lunation day by day.
QImage LunationSheet();
