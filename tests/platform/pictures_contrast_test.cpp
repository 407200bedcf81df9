// SPDX-License-Identifier: MIT
// The pictures on buttons and panes lie on whatever ground the desktop's theme
// gives them, so their rims are judged against light, dark and extreme grounds.
#include "platform/pictures.h"

#include "support/contrast.h"

#include <QDir>
#include <QImage>
#include <algorithm>
#include <gtest/gtest.h>

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

Rim rimOn(const QImage& image, const QColor& ground) {
    Rim rim;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (isRim(image, x, y)) {
                ++rim.pixels;
                rim.worst = std::min(rim.worst, contrast(image.pixelColor(x, y), ground));
            }
    return rim;
}

void expectSeenOn(const QString& picture, const QColor& ground) {
    SCOPED_TRACE((picture + QStringLiteral(" on ") + ground.name()).toStdString());
    const Rim rim = rimOn(drawn(picture), ground);
    EXPECT_GT(rim.pixels, side);
    EXPECT_GE(rim.worst, enoughContrast);
}

} // namespace

TEST(PictureContrast, AllAreFound) {
    EXPECT_EQ(allPictures().size(), 8 + 4 + 9);
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

TEST(PictureContrast, TellTheLitPartOfTheMoonFromTheUnlit) {
    const QImage quarter = drawn(QStringLiteral("moon/phase2"));
    const QColor unlit = quarter.pixelColor(side / 4, side / 2);
    EXPECT_GE(contrast(quarter.pixelColor(side / 2 + 6, side / 2), unlit), enoughContrast);
    EXPECT_GE(contrast(quarter.pixelColor(3 * side / 4, side / 3), unlit), enoughContrast);
}
