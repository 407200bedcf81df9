// SPDX-License-Identifier: MIT
#pragma once

#include <QCursor> // IWYU pragma: keep (a shape becomes one)
#include <QGuiApplication>

/// Shows another mouse pointer for as long as it lives.
class PointerShape {
public:
    explicit PointerShape(Qt::CursorShape shape) { QGuiApplication::setOverrideCursor(shape); }
    ~PointerShape() { QGuiApplication::restoreOverrideCursor(); }
    PointerShape(const PointerShape&) = delete;
    PointerShape& operator=(const PointerShape&) = delete;
};
