// SPDX-License-Identifier: MIT
#include "platform/line.h"

#include <QPainter>

Line::Line(const QString& name, QWidget* parent) : QFrame(parent) {
    setObjectName(name);
    setFrameShape(QFrame::HLine);
}

void Line::paintEvent(QPaintEvent*) {
    QColor color = palette().color(foregroundRole());
    color.setAlphaF(0.5F);
    QPainter(this).fillRect(0, height() / 2, width(), 1, color);
}
