// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QWidget>

/// A vector picture, drawn to fill the control.
class Image : public QWidget {
    Q_OBJECT

public:
    Image(const QString& name, const QString& picture, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QIcon m_picture;
};
