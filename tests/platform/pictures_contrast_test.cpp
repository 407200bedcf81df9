// SPDX-License-Identifier: MIT
// The pictures on buttons and panes lie on whatever ground the desktop's theme
// gives them, so their rims are judged against light, dark and extreme grounds.
#include "platform/commandbutton.h"
#include "platform/pictures.h"

#include "support/contrast.h"

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QStyle>
#include <algorithm>
#include <gtest/gtest.h>
#include <tuple>

namespace {

constexpr int unitsAcross = 32;  // of the drawings
constexpr int pixelsPerUnit = 3; // in these tests
constexpr int side = unitsAcross * pixelsPerUnit;

QStringList picturesIn(const QString& folder) {
    QStringList names;
    const QDir drawings(QStringLiteral(":/") + folder, QStringLiteral("*.svg"));
    for (const QString& file : drawings.entryList())
        names.append(folder + QLatin1Char('/') + file.chopped(4));
    return names;
}

QStringList allPictures() {
    return picturesIn(QStringLiteral("buttons")) + picturesIn(QStringLiteral("emblems")) +
           picturesIn(QStringLiteral("moon"));
}

QImage drawn(const QString& name) {
    return Picture(name).pixmap(side, side).toImage().convertToFormat(QImage::Format_ARGB32);
}

bool isOpaque(const QImage& image, int x, int y) {
    return image.valid(x, y) && qAlpha(image.pixel(x, y)) == 255;
}

/// Whether a pixel belongs to the drawing, less than a unit from where it ends.
bool isRim(const QImage& image, int x, int y) {
    if (!isOpaque(image, x, y))
        return false;
    for (int dy = -pixelsPerUnit; dy <= pixelsPerUnit; ++dy)
        for (int dx = -pixelsPerUnit; dx <= pixelsPerUnit; ++dx)
            if (dx * dx + dy * dy <= pixelsPerUnit * pixelsPerUnit &&
                !isOpaque(image, x + dx, y + dy))
                return true;
    return false;
}

struct Rim {
    int pixels = 0;
    double worst = 21.0; ///< the lowest contrast of any of them
};

/// How the rim of a picture of this shape, drawn at a place of `image`, stands out from
/// the ground.
Rim rimOf(const QImage& shape, const QImage& image, const QImage& ground, QPoint at = {}) {
    Rim rim;
    for (int y = 0; y < shape.height(); ++y)
        for (int x = 0; x < shape.width(); ++x)
            if (isRim(shape, x, y)) {
                ++rim.pixels;
                rim.worst = std::min(rim.worst, contrast(image.pixelColor(at + QPoint(x, y)),
                                                         ground.pixelColor(at + QPoint(x, y))));
            }
    return rim;
}

void expectSeen(const Rim& rim) {
    EXPECT_GT(rim.pixels, side);
    EXPECT_GE(rim.worst, enoughContrast);
}

void expectSeenOn(const QString& picture, const QColor& ground) {
    SCOPED_TRACE((picture + QStringLiteral(" on ") + ground.name()).toStdString());
    const QImage image = drawn(picture);
    QImage plain = image;
    plain.fill(ground);
    expectSeen(rimOf(image, image, plain));
}

/// On buttons as a style draws them in a theme of windows and buttons in this colour.
class ButtonContrast : public testing::TestWithParam<std::tuple<const char*, QRgb>> {
protected:
    ButtonContrast() : m_formerStyle(QApplication::style()->name()) {
        QApplication::setStyle(QLatin1String(std::get<0>(GetParam())));
        QApplication::setPalette(QPalette(QColor(std::get<1>(GetParam()))));
    }
    ~ButtonContrast() override {
        QApplication::setStyle(m_formerStyle);
        QApplication::setPalette(QPalette());
    }

private:
    QString m_formerStyle;
};

TEST(PictureContrast, AllAreFound) {
    EXPECT_EQ(allPictures().size(), 9 + 4 + 9);
}

TEST(PictureContrast, StandOutFromTheGroundsOfLightAndDarkThemes) {
    for (const QString& picture : allPictures())
        for (const QRgb ground : {0xffefefef, 0xffffffff, 0xff2b2b2b, 0xff31363b})
            expectSeenOn(picture, QColor(ground));
}

TEST(PictureContrast, StandOutFromTheGroundsOfHighContrastThemes) {
    for (const QString& picture : allPictures())
        for (const QRgb ground : {0xff000000, 0xffffffff})
            expectSeenOn(picture, QColor(ground));
}

TEST_P(ButtonContrast, EveryPictureStandsOutFromItsButton) {
    constexpr int edge = CommandButton::side - CommandButton::pictureSide; // both sides of it
    constexpr int scale = side / CommandButton::pictureSide;
    for (const QString& picture : allPictures()) {
        SCOPED_TRACE(picture.toStdString());
        CommandButton button(QStringLiteral("button"), picture, nullptr);
        button.setFixedSize(scale * CommandButton::side, scale * CommandButton::side);
        button.setIconSize({side, side});
        const QImage image = button.grab().toImage();
        button.setIcon({});
        const QImage ground = button.grab().toImage();
        expectSeen(rimOf(drawn(picture), image, ground, {scale * edge / 2, scale * edge / 2}));
    }
}

INSTANTIATE_TEST_SUITE_P(Themes, ButtonContrast,
                         testing::Combine(testing::Values("fusion", "windows"),
                                          testing::Values(0xff353535, 0xff31363b, 0xff2b2b2b,
                                                          0xffefefef, 0xffffffff)));
INSTANTIATE_TEST_SUITE_P(ThemeOfItsOwn, ButtonContrast,
                         testing::Values(std::tuple("adwaita", 0xfff6f5f4),
                                         std::tuple("adwaita-dark", 0xff353535)));

TEST(PictureContrast, TellTheLitPartOfTheMoonFromTheUnlit) {
    const QImage quarter = drawn(QStringLiteral("moon/phase2"));
    const QColor unlit = quarter.pixelColor(side / 4, side / 2);
    EXPECT_GE(contrast(quarter.pixelColor(side / 2 + 6, side / 2), unlit), enoughContrast);
    EXPECT_GE(contrast(quarter.pixelColor(3 * side / 4, side / 3), unlit), enoughContrast);
}

} // namespace
