// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <functional>

/// The desktop's beep; another may take its place.
inline std::function<void()> Beep = QApplication::beep;
