// SPDX-License-Identifier: MIT
#include "start/dialog.h"

#include <QKeyEvent>

Dialog::Dialog(const QString& name)
    : Form(name), m_commands(*this, MonthlyWindowNumber, [this] { Unload(); }) {
    setWindowFlags(Qt::Dialog);
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
