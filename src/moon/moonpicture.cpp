// SPDX-License-Identifier: MIT
#include "moon/moonpicture.h"

#include "platform/color.h"
#include "shared/calendars.h"
#include "shared/colors.h"

#include <QAccessibleWidget>
#include <QMouseEvent>
#include <QPainter>
#include <utility>

namespace {

constexpr int discMargin = 2; // pixels

// What is not lit: the sky, and the moon's shadow that cannot be told from it.
constexpr Qt::GlobalColor skyColor = Qt::black;

// The toolkit would tell a widget that paints itself as a mere filler.
QAccessibleInterface* newInterface(const QString& className, QObject* object) {
    if (className != QLatin1String("MoonPicture"))
        return nullptr;
    return new QAccessibleWidget(qobject_cast<MoonPicture*>(object), QAccessible::Graphic);
}

// A shadow narrower than a pixel covers nothing.
void paintShadow(QPainter& painter, const Shadow& shadow) {
    const QRectF shape(QPointF(shadow.left, shadow.top) / twipsPerPixel,
                       QSizeF(shadow.width, shadow.height) / twipsPerPixel);
    if (shape.width() < 1)
        return;
    painter.setPen(QPen(skyColor, shadow.border));
    painter.setBrush(shadow.solid ? skyColor : QBrush());
    if (shadow.shape == Shadow::Shape::Circle)
        painter.drawEllipse(shape);
    else
        painter.drawRect(shape);
}

} // namespace

MoonPicture::MoonPicture(const QString& name, QWidget* parent) : QWidget(parent) {
    QAccessible::installFactory(newInterface);
    setObjectName(name);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void MoonPicture::SetPicture(const QImage& picture, std::function<QImage()> again) {
    m_again = std::move(again);
    m_scaled = scaled(picture);
}

void MoonPicture::SetShadow(const Shadow& shadow) {
    m_shadow = shadow;
    update();
}

void MoonPicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), skyColor);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_scaled.isNull())
        paintSubstitute(painter);
    else
        paintMoon(painter);
    if (m_shadow)
        paintShadow(painter, *m_shadow);
}

void MoonPicture::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        Q_EMIT DblClick();
}

QSize MoonPicture::pixels() const {
    return size() * devicePixelRatio();
}

QPixmap MoonPicture::scaled(const QImage& picture) const {
    return picture.isNull() ? QPixmap()
                            : QPixmap::fromImage(picture.scaled(pixels(), Qt::IgnoreAspectRatio,
                                                                Qt::SmoothTransformation));
}

// A picture that is gone since is shown as sharp as it was.
void MoonPicture::paintMoon(QPainter& painter) {
    if (m_again && m_scaled.size() != pixels()) {
        const QImage picture = m_again();
        if (!picture.isNull())
            m_scaled = scaled(picture);
    }
    painter.drawPixmap(rect(), m_scaled);
}

void MoonPicture::paintSubstitute(QPainter& painter) const {
    painter.setPen(QPen(Qt::black, 1));
    painter.setBrush(ToColor(CalendarColors(Jewish)));
    painter.drawEllipse(rect().adjusted(discMargin, discMargin, -discMargin, -discMargin));
}
