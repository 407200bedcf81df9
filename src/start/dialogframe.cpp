// SPDX-License-Identifier: MIT
#include "start/dialogframe.h"

#include "platform/text.h"
#include "platform/wrapping.h"

#include <QLabel>
#include <QVBoxLayout>

DialogFrame::DialogFrame(const QString& title, int width, QWidget* parent)
    : QGroupBox(parent), m_rows(new QVBoxLayout(this)) {
    setAccessibleName(title);
    if (fontMetrics().horizontalAdvance(title) <= width)
        setTitle(Caption(title.toStdString()));
    else
        m_rows->addWidget(NewDialogLabel(title, width, this));
}

QLabel* NewDialogLabel(const QString& text, int width, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setText(Wrapped(text, label->font(), width));
    return label;
}

QString WrappedCaption(const QString& text, const QFont& font, int width) {
    return Caption(Wrapped(text, font, width).toStdString());
}
