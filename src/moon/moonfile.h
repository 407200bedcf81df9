// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

struct MoonFile {
    QImage picture{};        ///< null when there is none
    bool isTooLarge = false; ///< for the program
};

/// A bitmap file as a picture, a large one scaled down; none when it is missing, no
/// bitmap, too large, or a part of its pixels is not in it.
MoonFile LoadMoonPicture(const QString& path);
