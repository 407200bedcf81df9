// SPDX-License-Identifier: MIT
#include "platform/commandbutton.h"

#include "platform/pictures.h"

#include <QKeyEvent>
#include <QMouseEvent>

CommandButton::CommandButton(const QString& name, const QString& picture, QWidget* parent)
    : QPushButton(parent) {
    setObjectName(name);
    setFocusPolicy(Qt::StrongFocus);
    setAutoDefault(false);
    setFixedSize(side, side);
    setIconSize({pictureSide, pictureSide});
    SetPicture(picture);
}

void CommandButton::SetPicture(const QString& picture) {
    setIcon(Picture(picture));
}

void CommandButton::SetTabStop(bool on) {
    setFocusPolicy(on ? Qt::StrongFocus : Qt::ClickFocus);
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
