// SPDX-License-Identifier: MIT
#include "start/dialog.h"

#include "platform/numbers.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>

Dialog::Dialog(const QString& name)
    : Form(name), m_commands(*this, MonthlyWindowNumber, [this] { Unload(); }) {
    setWindowFlags(Qt::Dialog);
}

void Dialog::Place() {
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    const auto between = [](int start, int room, double parts) {
        return Twips{CLng(ToTwips(start).count + ToTwips(room).count / parts).value_or(0)};
    };
    Move(between(screen.x(), screen.width() - width(), 2),
         between(screen.y(), screen.height() - height(), 3));
}

int Dialog::Metric(QStyle::PixelMetric which) const {
    return style()->pixelMetric(which, nullptr, this);
}

void Dialog::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        Unload();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        Accept();
    else
        Form::keyPressEvent(event);
}
