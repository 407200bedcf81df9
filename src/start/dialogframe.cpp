// SPDX-License-Identifier: MIT
#include "start/dialogframe.h"

#include "platform/text.h"
#include "platform/wrapping.h"

#include <QLabel>
#include <QVBoxLayout>

DialogFrame::DialogFrame(const QString& title, int width, QWidget* parent)
    : QGroupBox(parent), m_rows(new QVBoxLayout(this)) {
    setAccessibleName(title);
    const QMargins margins = m_rows->contentsMargins();
    m_rows->setContentsMargins(margins - QMargins(0, margins.top() / 2, 0, margins.bottom() / 2));
    QFont bold = font();
    bold.setBold(true);
    m_rows->addWidget(NewDialogLabel(title, width, this, bold));
}

QLabel* NewDialogLabel(const QString& text, int width, QWidget* parent, const QFont& font) {
    auto* label = new QLabel(parent);
    label->setFont(font);
    label->setTextFormat(Qt::PlainText);
    label->setText(Wrapped(text, label->font(), width));
    return label;
}

QString WrappedCaption(const QString& text, const QFont& font, int width) {
    return Caption(Wrapped(text, font, width).toStdString());
}
