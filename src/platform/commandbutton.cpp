// SPDX-License-Identifier: MIT
#include "platform/commandbutton.h"

#include "platform/pictures.h"

#include <QFile>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionButton>
#include <algorithm>

namespace {

QString pointedAt(const QString& picture) {
    const QString other = picture + QStringLiteral("-pointed");
    return QFile::exists(QStringLiteral(":/%1.svg").arg(other)) ? other : picture;
}

} // namespace

CommandButton::CommandButton(const QString& name, const QString& picture, QWidget* parent)
    : QPushButton(parent), m_pointedAt(ButtonPicture(pointedAt(picture))) {
    setObjectName(name);
    setFocusPolicy(Qt::StrongFocus);
    SetSide(side);
    setIcon(ButtonPicture(picture));
    setAttribute(Qt::WA_Hover); // not every style has it repainted under the pointer
}

void CommandButton::SetSide(int pixels) {
    const int edge = std::max(side, pixels);
    setFixedSize(edge, edge);
    setIconSize(QSize(edge, edge) * pictureSide / side);
}

void CommandButton::initStyleOption(QStyleOptionButton* option) const {
    QPushButton::initStyleOption(option);
    if (underMouse())
        option->icon = m_pointedAt;
}

void CommandButton::mousePressEvent(QMouseEvent* event) {
    QPushButton::mousePressEvent(event);
    Q_EMIT MouseDown(event->button());
}

// Return presses a button as Space does.
void CommandButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QPushButton::keyPressEvent(event);
}
