// SPDX-License-Identifier: MIT
#include "platform/image.h"

#include "platform/pictures.h"

#include <QPainter>

Image::Image(const QString& name, const QString& picture, QWidget* parent)
    : QWidget(parent), m_picture(Picture(picture)) {
    setObjectName(name);
}

void Image::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    m_picture.paint(&painter, rect());
}
