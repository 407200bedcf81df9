// SPDX-License-Identifier: MIT
#pragma once

#include "moon/phaseshadow.h"
#include "platform/twips.h"

#include <QImage>
#include <QPixmap>
#include <QWidget>
#include <functional>
#include <optional>

/// The moon's picture with its shadow (Picture1 with Shape1 and Shape2). It
/// shows the full moon scaled to the control, or a plain disc where there is
/// no picture, and the shadow over it.
class MoonPicture : public QWidget {
    Q_OBJECT

public:
    MoonPicture(const QString& name, QWidget* parent);

    /// The picture of the full moon; a null image asks for the substitute disc. Of the
    /// picture, which is many times as large, only what is shown is kept: `again` gives
    /// it anew where it is to be shown in another size.
    void SetPicture(const QImage& picture, std::function<QImage()> again = {});

    void SetShadow(const Shadow& shadow);

    Twips Width() const { return ToTwips(width()); }
    Twips Height() const { return ToTwips(height()); }

Q_SIGNALS:
    void DblClick();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    QSize pixels() const;
    QPixmap scaled(const QImage& picture) const;
    void paintMoon(QPainter& painter);
    void paintSubstitute(QPainter& painter) const;

    std::function<QImage()> m_again;
    QPixmap m_scaled;
    std::optional<Shadow> m_shadow;
};
