// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

/// A line across its middle, half as strong as the theme's text, so that it is
/// seen where a theme's shades of its ground are all one black or one white.
class Line : public QFrame {
    Q_OBJECT

public:
    Line(const QString& name, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;
};
