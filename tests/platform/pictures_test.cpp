// SPDX-License-Identifier: MIT
#include "platform/pictures.h"

#include "platform/image.h"
#include "support/platform_test.h"

#include <QDirIterator>
#include <QPainter>
#include <QSvgRenderer>

namespace {

const QString name = QStringLiteral("emblems/gregorian");

class Pictures : public PlatformTest {};

// As Qt Svg draws the file itself, without an icon.
QImage drawnBySvg(int side) {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(QStringLiteral(":/%1.svg").arg(name)).render(&painter);
    return image;
}

QImage imageOf(const QPixmap& pixmap) {
    QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(1);
    return image;
}

int mostSaturated(const QImage& image) {
    int most = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            if (color.alpha() > 200)
                most = std::max(most, color.hsvSaturation());
        }
    return most;
}

TEST_F(Pictures, AreDrawnAnewForEveryPixelRatio) {
    for (const int ratio : {1, 2, 3}) {
        const QPixmap pixmap = Picture(name).pixmap(QSize(24, 24), ratio);
        EXPECT_EQ(pixmap.size(), QSize(24, 24) * ratio);
        EXPECT_EQ(pixmap.devicePixelRatio(), ratio);
        EXPECT_EQ(imageOf(pixmap), drawnBySvg(24 * ratio)) << ratio;
    }
}

TEST_F(Pictures, ArePaintedSharpOnADeviceOfManyPixels) {
    QImage device(72, 72, QImage::Format_ARGB32_Premultiplied);
    device.setDevicePixelRatio(3);
    device.fill(Qt::transparent);
    QPainter painter(&device);
    Picture(name).paint(&painter, QRect(0, 0, 24, 24));
    painter.end();
    EXPECT_EQ(imageOf(QPixmap::fromImage(device)), drawnBySvg(72));
}

TEST_F(Pictures, KeepTheirProportions) {
    const QImage wide = imageOf(Picture(name).pixmap(QSize(60, 20)));
    EXPECT_EQ(wide.size(), QSize(60, 20));
    EXPECT_EQ(wide.copy(20, 0, 20, 20), drawnBySvg(20));
    EXPECT_EQ(wide.pixelColor(10, 10).alpha(), 0);
}

TEST_F(Pictures, AreGreyInADisabledControl) {
    const QIcon icon = Picture(name);
    EXPECT_GT(mostSaturated(imageOf(icon.pixmap(QSize(48, 48)))), 100);
    EXPECT_LT(mostSaturated(imageOf(icon.pixmap(QSize(48, 48), QIcon::Disabled))), 60);
}

TEST_F(Pictures, FillAnImage) {
    Image image(QStringLiteral("Image1"), name, nullptr);
    image.setAttribute(Qt::WA_TranslucentBackground);
    image.resize(40, 40);
    EXPECT_EQ(imageOf(image.grab()), drawnBySvg(40));
}

TEST_F(Pictures, AMissingOneIsNamedOnce) {
    const QIcon missing = Picture(QStringLiteral("buttons/none"));
    EXPECT_EQ(m_messages.take(),
              QStringList{QStringLiteral("buttons/none.svg\r\n\r\nThe picture cannot be drawn.")});
    EXPECT_TRUE(missing.isNull());
    EXPECT_TRUE(missing.pixmap(QSize(24, 24)).isNull());
    EXPECT_TRUE(Picture(QStringLiteral("buttons/none")).isNull());
    EXPECT_EQ(m_messages.take(), QStringList{});
}

TEST_F(Pictures, AllThatAreCompiledInCanBeDrawn) {
    QDirIterator file(QStringLiteral(":/"), {QStringLiteral("*.svg")}, QDir::Files,
                      QDirIterator::Subdirectories);
    int ours = 0;
    while (file.hasNext()) {
        const QString path = file.next();
        if (path.startsWith(QStringLiteral(":/qt-project.org")))
            continue;
        ++ours;
        EXPECT_FALSE(Picture(path.mid(2).chopped(4)).isNull()) << path.toStdString();
    }
    EXPECT_GE(ours, 22);
}

TEST_F(Pictures, OnDarkButtonsArePalerAndTheirGroundIsNot) {
    const QPalette former = QApplication::palette();
    QPalette colors = former;
    colors.setColor(QPalette::Button, Qt::black);
    colors.setColor(QPalette::Base, Qt::white);
    QApplication::setPalette(colors);
    const QImage plain = imageOf(Picture(name).pixmap(QSize(48, 48)));
    const QImage pale = imageOf(ButtonPicture(name).pixmap(QSize(48, 48)));
    QApplication::setPalette(former);
    EXPECT_GT(qGray(pale.pixel(24, 24)), qGray(plain.pixel(24, 24)));
    EXPECT_EQ(qAlpha(pale.pixel(24, 24)), 255);
    EXPECT_EQ(qAlpha(pale.pixel(0, 0)), 0) << "beside the drawing";
}

TEST_F(Pictures, OnDarkButtonsHaveAThirdOfWhiteInTheirColors) {
    const QPalette former = QApplication::palette();
    QPalette colors = former;
    colors.setColor(QPalette::Button, Qt::black);
    QApplication::setPalette(colors);
    const QIcon icon = ButtonPicture(QStringLiteral("icon"));
    const QColor red = imageOf(icon.pixmap(QSize(64, 64))).pixelColor(30, 34);
    QApplication::setPalette(former);
    EXPECT_NEAR(red.red(), 255, 1);
    EXPECT_NEAR(red.green(), 90, 1);
    EXPECT_NEAR(red.blue(), 90, 1);
}

TEST_F(Pictures, ButtonsAreDarkBelowTheMiddleGray) {
    const QPalette former = QApplication::palette();
    const QImage plain = imageOf(Picture(name).pixmap(QSize(48, 48)));
    for (const int gray : {127, 128}) {
        QPalette colors = former;
        colors.setColor(QPalette::Button, QColor(gray, gray, gray));
        QApplication::setPalette(colors);
        const QImage image = imageOf(ButtonPicture(name).pixmap(QSize(48, 48)));
        EXPECT_EQ(image != plain, gray == 127) << gray;
    }
    QApplication::setPalette(former);
}

TEST_F(Pictures, AreDrawnOnceForAllThatShowThem) {
    const QPixmap first = Picture(name).pixmap(QSize(47, 47));
    EXPECT_EQ(Picture(name).pixmap(QSize(47, 47)).cacheKey(), first.cacheKey());
}

} // namespace
