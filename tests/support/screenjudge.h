// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

class QWidget;

/// Bounds of the pixels of a window that the screen shows other than they are when
/// all of the window is painted anew; empty where there are none. What is due is
/// painted first. For a window that nothing covers, on a screen that keeps what
/// was drawn on it, as an X server does: grab() would paint the window itself.
QRect StalePixels(QWidget& window);
