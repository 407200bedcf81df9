// SPDX-License-Identifier: MIT
#include "start/dialog.h"

#include "platform/numbers.h"
#include "platform/twips.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>

void Dialog::Place() {
    const QSize screen = QGuiApplication::primaryScreen()->size();
    const double left = (ToTwips(screen.width()) - ToTwips(width())) / 2.0;
    const double top = (ToTwips(screen.height()) - ToTwips(height())) / 3.0;
    Move(CLng(left).value_or(0), CLng(top).value_or(0));
}

void Dialog::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        Unload();
    else
        Form::keyPressEvent(event);
}
