// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

/// The colour of a 0x00BBGGRR number.
inline QColor ToColor(int number) {
    return QColor(number & 0xFF, (number >> 8) & 0xFF, (number >> 16) & 0xFF);
}
