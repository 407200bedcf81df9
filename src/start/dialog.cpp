// SPDX-License-Identifier: MIT
#include "start/dialog.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

Dialog::Dialog(const QString& name)
    : Form(name), m_commands(*this, MonthlyWindowNumber, [this] { Unload(); }) {
    setWindowFlags(Qt::Dialog);
}

int Dialog::Metric(QStyle::PixelMetric which) const {
    return style()->pixelMetric(which, nullptr, this);
}

void Dialog::ScrollWhereTooHigh(QWidget* contents, QVBoxLayout& rows) {
    const int screen = QGuiApplication::primaryScreen()->availableSize().height();
    const QSize whole = contents->sizeHint();
    const int others = sizeHint().height() - whole.height();
    const int room = screen - others - 2 * Metric(QStyle::PM_TitleBarHeight);
    if (whole.height() <= room)
        return;
    auto* area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setFixedSize(whole.width() + Metric(QStyle::PM_ScrollBarExtent), room);
    delete rows.replaceWidget(contents, area);
    area->setWidget(contents);
}

void Dialog::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        Unload();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        Accept();
    else
        Form::keyPressEvent(event);
}
