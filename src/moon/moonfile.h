// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QString>

/// Where the picture of the full moon is looked for: a bitmap beside the program.
QString MoonPictureFile();

/// A bitmap file as a picture, a large one scaled down; a null image when it is
/// missing, no bitmap, or a part of its pixels is not in it.
QImage LoadMoonPicture(const QString& path);
