// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QPushButton>

/// A button with a picture; under the pointer with that of the same name and
/// "-pointed" where there is one. It takes the focus when it is clicked, as every
/// control does here, so that a field that is left hears of it.
class CommandButton : public QPushButton {
    Q_OBJECT

public:
    CommandButton(const QString& name, const QString& picture, QWidget* parent);

    /// Least edge length of the button and of its picture, in pixels.
    static constexpr int side = 30;
    static constexpr int pictureSide = 24;

    /// The picture grows with the button.
    void SetSide(int pixels);

Q_SIGNALS:
    /// Any mouse button, at the press.
    void MouseDown(Qt::MouseButton button);

protected:
    void initStyleOption(QStyleOptionButton* option) const override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QIcon m_pointedAt;
};
