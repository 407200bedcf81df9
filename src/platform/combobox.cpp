// SPDX-License-Identifier: MIT
#include "platform/combobox.h"

#include "platform/text.h"

#include <QAbstractItemView>
#include <QFocusEvent>
#include <QStringListModel>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QWheelEvent>

ComboBox::ComboBox(const QString& name, QWidget* parent)
    : QComboBox(parent), m_items(new QStringListModel(this)) {
    setObjectName(name);
    setModel(m_items);
    setFocusPolicy(Qt::StrongFocus);
    setMaxVisibleItems(15);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(1);
    connect(this, &QComboBox::activated, this, &ComboBox::Click);
}

void ComboBox::SetItems(const QStringList& texts, int position) {
    if (m_items->stringList() != texts)
        m_items->setStringList(texts);
    setCurrentIndex(position);
}

void ComboBox::showPopup() {
    Q_EMIT BeforeUse();
    view()->setTextElideMode(Qt::ElideNone);
    view()->setMinimumWidth(view()->sizeHintForColumn(0) +
                            style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    QComboBox::showPopup();
}

void ComboBox::focusInEvent(QFocusEvent* event) {
    // The list gives the focus back when its popup closes: that is no arrival.
    if (event->reason() != Qt::PopupFocusReason)
        Q_EMIT GotFocus();
    QComboBox::focusInEvent(event);
}

void ComboBox::keyPressEvent(QKeyEvent* event) {
    Q_EMIT BeforeUse();
    QComboBox::keyPressEvent(event);
}

void ComboBox::wheelEvent(QWheelEvent* event) {
    if (!hasFocus()) {
        event->ignore();
        return;
    }
    Q_EMIT BeforeUse();
    QComboBox::wheelEvent(event);
}

void ComboBox::paintEvent(QPaintEvent* event) {
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const int width =
        style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this)
            .width();
    if (isEditable() || fontMetrics().horizontalAdvance(option.currentText) <= width) {
        QComboBox::paintEvent(event);
        return;
    }
    QStylePainter painter(this);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.setFont(FittedFont(font(), option.currentText, width));
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}
