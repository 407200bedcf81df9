// SPDX-License-Identifier: MIT
#include "moon/moonpicture.h"

#include "platform/color.h"
#include "platform/twips.h"
#include "shared/calendars.h"
#include "shared/look.h"

#include <QFileInfo>
#include <QImageReader>
#include <QMouseEvent>
#include <QPainter>
#include <QtEndian>

namespace {

constexpr int discMargin = 30;           // twips
constexpr int largestSide = 4096;        // pixels
constexpr qint64 largestFile = 64 << 20; // bytes
constexpr qint64 fileSizeField = 2;      // offset in a bitmap's header
constexpr int sky = 0x000000;            // also the colour of the unlit part

double pixels(double twips) {
    return twips / twipsPerPixel;
}

QRectF pixelRect(const Shadow& shadow) {
    return {pixels(shadow.left), pixels(shadow.top), pixels(shadow.width), pixels(shadow.height)};
}

// The reader itself takes a bitmap whose last rows are missing for a whole one.
bool isWholeBitmap(const QString& path) {
    QFile file(path);
    const QFileInfo info(path);
    if (!info.isFile() || info.size() > largestFile || !file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray header = file.read(fileSizeField + 4);
    return header.startsWith("BM") && header.size() == fileSizeField + 4 &&
           qFromLittleEndian<quint32>(header.constData() + fileSizeField) <= info.size();
}

} // namespace

MoonPicture::MoonPicture(const QString& name, QWidget* parent) : QWidget(parent) {
    setObjectName(name);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void MoonPicture::SetPicture(const QImage& picture) {
    m_picture = picture;
    m_scaled = {};
}

void MoonPicture::SetShadow(const Shadow& shadow) {
    const std::optional<bool> formerFill = m_shadow ? m_shadow->solid : true;
    m_shadow = shadow;
    if (!shadow.solid)
        m_shadow->solid = formerFill;
    update();
}

int MoonPicture::Width() const {
    return ToTwips(width());
}

int MoonPicture::Height() const {
    return ToTwips(height());
}

void MoonPicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), ToColor(sky));
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_picture.isNull())
        paintSubstitute(painter);
    else
        paintMoon(painter);
    if (m_shadow)
        paintShadow(painter);
}

void MoonPicture::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        Q_EMIT DblClick();
}

void MoonPicture::paintMoon(QPainter& painter) {
    const QSize size = this->size() * devicePixelRatio();
    if (m_scaled.size() != size) {
        m_scaled = QPixmap::fromImage(
            m_picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        m_scaled.setDevicePixelRatio(devicePixelRatio());
    }
    painter.drawPixmap(0, 0, m_scaled);
}

void MoonPicture::paintSubstitute(QPainter& painter) const {
    const double margin = pixels(discMargin);
    painter.setPen(QPen(Qt::black, 1));
    painter.setBrush(ToColor(CalendarColors(Jewish)));
    painter.drawEllipse(QRectF(rect()).adjusted(margin, margin, -margin, -margin));
}

void MoonPicture::paintShadow(QPainter& painter) const {
    const QRectF shape = pixelRect(*m_shadow);
    if (shape.width() < 1 && shape.height() < 1)
        return; // less than a pixel covers nothing
    painter.setPen(QPen(ToColor(sky), m_shadow->border));
    painter.setBrush(m_shadow->solid.value_or(true) ? QBrush(ToColor(sky)) : QBrush());
    if (m_shadow->shape == Shadow::Shape::Circle)
        painter.drawEllipse(shape);
    else
        painter.drawRect(shape);
}

QImage LoadMoonPicture(const QString& path) {
    if (!isWholeBitmap(path))
        return {};
    QImageReader reader(path, "bmp");
    const QSize size = reader.size();
    if (size.isEmpty() || size.width() > largestSide || size.height() > largestSide)
        return {};
    // In full colours, which scaling would otherwise reduce to a few.
    return reader.read().convertToFormat(QImage::Format_RGB32);
}
