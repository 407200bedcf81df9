// SPDX-License-Identifier: MIT
#include "platform/pictures.h"

#include "platform/message.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QStyle>
#include <QStyleOption>
#include <QSvgRenderer>
#include <map>
#include <memory>

namespace {

using Drawing = std::shared_ptr<QSvgRenderer>;

// So much white makes a picture that stands out from a light theme's buttons stand out
// from those of a dark one. No colour does both.
constexpr QRgb veil = 0x5AFFFFFF;

bool hasDarkButtons() {
    constexpr int middleGray = 128;
    return qGray(QGuiApplication::palette().color(QPalette::Button).rgb()) < middleGray;
}

QPixmap drawn(QSvgRenderer& drawing, const QSize& size, bool pale) {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    drawing.render(&painter);
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    if (pale)
        painter.fillRect(pixmap.rect(), QColor::fromRgba(veil));
    return pixmap;
}

QPixmap inStyle(QIcon::Mode mode, const QPixmap& pixmap) {
    QStyleOption option;
    option.palette = QGuiApplication::palette();
    return QApplication::style()->generatedIconPixmap(mode, pixmap, &option);
}

// As sharp as the toolkit's own engine, which neither pales pictures nor draws them once
// for all windows. Sizes of pixmaps are in pixels of the device.
class PictureEngine : public QIconEngine {
public:
    PictureEngine(QString name, Drawing drawing, bool onButton)
        : m_name(std::move(name)), m_drawing(std::move(drawing)), m_onButton(onButton) {}

    QIconEngine* clone() const override { return new PictureEngine(*this); }

    bool isNull() override { return !m_drawing->isValid(); }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
        const QPixmap normal = kept(size);
        return mode == QIcon::Normal || normal.isNull() ? normal : inStyle(mode, normal);
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
               QIcon::State state) override {
        const qreal ratio = painter->device()->devicePixelRatio();
        painter->drawPixmap(rect, pixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state));
    }

private:
    // Drawing takes much longer than finding what was drawn before.
    QPixmap kept(const QSize& size) {
        const bool pale = m_onButton && hasDarkButtons();
        const QString key = QStringLiteral("%1 %2x%3 %4")
                                .arg(m_name)
                                .arg(size.width())
                                .arg(size.height())
                                .arg(pale);
        QPixmap pixmap;
        if (!QPixmapCache::find(key, &pixmap) && !isNull() && !size.isEmpty()) {
            pixmap = drawn(*m_drawing, size, pale);
            QPixmapCache::insert(key, pixmap);
        }
        return pixmap;
    }

    QString m_name;
    Drawing m_drawing;
    bool m_onButton;
};

Drawing readDrawing(const QString& name) {
    const QString file = name + QStringLiteral(".svg");
    auto drawing = std::make_shared<QSvgRenderer>(QStringLiteral(":/") + file);
    drawing->setAspectRatioMode(Qt::KeepAspectRatio);
    if (!drawing->isValid())
        MsgBox(WithEmptyLine(file, QStringLiteral("The picture cannot be drawn.")));
    return drawing;
}

// Windows share a drawing as long as one of them shows it.
Drawing drawingOf(const QString& name) {
    static std::map<QString, std::weak_ptr<QSvgRenderer>> drawings;
    Drawing drawing = drawings[name].lock();
    if (!drawing) {
        drawing = readDrawing(name);
        drawings[name] = drawing;
    }
    return drawing;
}

} // namespace

QIcon Picture(const QString& name) {
    return QIcon(new PictureEngine(name, drawingOf(name), false));
}

QIcon ButtonPicture(const QString& name) {
    return QIcon(new PictureEngine(name, drawingOf(name), true));
}
