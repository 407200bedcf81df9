// SPDX-License-Identifier: MIT
// How the moon's picture is drawn: which way round, how smoothly, what stands on
// it and what it answers to.
#include "changecals/opening.h"
#include "changecals/windows.h"
#include "moon/frmmoon.h"
#include "moon/moonpicture.h"
#include "support/paintsof.h"
#include "support/recording_windows.h"
#include "support/widget_test.h"

#include <QFile>
#include <QImage>
#include <QLabel>
#include <QPalette>
#include <cstdlib>

namespace {

constexpr int side = 280;
constexpr float fullMoonAge = 14.8F;
constexpr float newMoonAge = 0.3F;

const QColor red(255, 0, 0);
const QColor green(0, 255, 0);
const QColor blue(0, 0, 255);
const QColor white(255, 255, 255);

class MoonPictures : public WidgetTest {
protected:
    MoonPictures() {
        startToday();
        auto factories = recordingFactories();
        factories.moon = [] { return new frmMoon; };
        ChangeCals::BeginRun(factories);
    }

    static MoonWindow& moon() { return ChangeCals::LoadMoon(); }
    static MoonPicture& picture() { return *child<MoonPicture>(moon(), "Picture1"); }
    static QLabel& label() { return *child<QLabel>(moon(), "Label1"); }

    void store(const QImage& image) const {
        EXPECT_TRUE(image.save(programPath(QStringLiteral("Moon.bmp")), "BMP"));
    }

    /// Red and green above, blue and white below.
    static QImage quarters(int size) {
        QImage image(size, size, QImage::Format_RGB32);
        for (int y = 0; y < size; ++y) {
            for (int x = 0; x < size; ++x) {
                const bool right = x >= size / 2;
                image.setPixelColor(x, y,
                                    y < size / 2 ? (right ? green : red) : (right ? white : blue));
            }
        }
        return image;
    }

    /// Black and white by turns, pixel for pixel.
    static QImage chequered(int size) {
        QImage image(size, size, QImage::Format_RGB32);
        for (int y = 0; y < size; ++y) {
            for (int x = 0; x < size; ++x)
                image.setPixelColor(x, y, (x + y) % 2 == 0 ? Qt::black : Qt::white);
        }
        return image;
    }

    static QImage drawn(float age, bool withLabel = false) {
        MoonAge = age;
        moon().ReSetForm();
        label().setVisible(withLabel);
        return picture().grab().toImage();
    }
};

TEST_F(MoonPictures, AnotherPictureOfTheSameSizeTakesTheFormersPlace) {
    MoonPicture alone(QStringLiteral("Picture1"), nullptr);
    alone.resize(side, side);
    for (const QColor& color : {red, blue}) {
        QImage image(16, 16, QImage::Format_RGB32);
        image.fill(color);
        alone.SetPicture(image);
        EXPECT_EQ(alone.grab().toImage().pixelColor(side / 2, side / 2), color);
    }
}

TEST_F(MoonPictures, AreAskedForAgainWhereTheirSizeIsAnother) {
    MoonPicture alone(QStringLiteral("Picture1"), nullptr);
    alone.resize(side, side);
    QImage now(16, 16, QImage::Format_RGB32);
    now.fill(red);
    QImage later = now;
    later.fill(blue);
    alone.SetPicture(now, [&later] { return later; });
    EXPECT_EQ(alone.grab().toImage().pixelColor(side / 2, side / 2), red);
    alone.resize(side + 1, side + 1);
    EXPECT_EQ(alone.grab().toImage().pixelColor(side, side), blue);
    later = {}; // the file is gone
    alone.resize(side + 2, side + 2);
    EXPECT_EQ(alone.grab().toImage().pixelColor(side + 1, side + 1), blue);
}

TEST_F(MoonPictures, StandTheRightWayRoundAndFillTheFieldWhateverTheirSize) {
    for (const int size : {64, 280, 560}) {
        store(quarters(size));
        const QImage image = drawn(fullMoonAge);
        ASSERT_EQ(image.size(), QSize(side, side));
        EXPECT_EQ(image.pixelColor(20, 20), red) << size;
        EXPECT_EQ(image.pixelColor(130, 130), red) << size;
        EXPECT_EQ(image.pixelColor(260, 20), green) << size;
        EXPECT_EQ(image.pixelColor(150, 130), green) << size;
        EXPECT_EQ(image.pixelColor(20, 260), blue) << size;
        EXPECT_EQ(image.pixelColor(130, 150), blue) << size;
        EXPECT_EQ(image.pixelColor(260, 260), white) << size;
        EXPECT_EQ(image.pixelColor(150, 150), white) << size;
        moon().Unload();
        processEvents();
    }
}

TEST_F(MoonPictures, AreSmoothedAsTheyAreScaled) {
    store(chequered(2 * side));
    const QImage image = drawn(fullMoonAge);
    for (int y = 20; y < side - 20; ++y) {
        for (int x = 20; x < side - 20; ++x)
            ASSERT_NEAR(qGray(image.pixel(x, y)), 127, 4) << x << ' ' << y;
    }
}

TEST_F(MoonPictures, AreKeptInTheSizeInWhichTheyAreShown) {
    store(chequered(side));
    moon();
    ASSERT_TRUE(QFile::remove(programPath(QStringLiteral("Moon.bmp"))));
    const QImage image = drawn(fullMoonAge);
    EXPECT_EQ(image.pixelColor(100, 100), QColor(Qt::black));
    EXPECT_EQ(image.pixelColor(101, 100), white);
}

/// As on a screen of two pixels for one.
class MoonOnASharpScreen : public MoonPicture {
public:
    using MoonPicture::MoonPicture;

    QImage drawn() {
        QImage image(size() * 2, QImage::Format_RGB32);
        image.setDevicePixelRatio(2);
        render(&image);
        return image;
    }

protected:
    int metric(PaintDeviceMetric what) const override {
        return what == PdmDevicePixelRatioScaled ? 2 * 0x10000 : MoonPicture::metric(what);
    }
};

TEST_F(MoonPictures, AreShownInEveryPixelOfASharpScreen) {
    MoonOnASharpScreen alone(QStringLiteral("Picture1"), nullptr);
    alone.resize(side, side);
    alone.SetPicture(chequered(2 * side));
    const QImage image = alone.drawn();
    for (int y = 20; y < 2 * side - 20; ++y) {
        for (int x = 20; x < 2 * side - 20; ++x)
            ASSERT_GT(std::abs(qGray(image.pixel(x, y)) - 127), 100) << x << ' ' << y;
    }
}

/// The rectangle of the pixels that are not black.
QRect inked(const QImage& image) {
    QRect found;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qGray(image.pixel(x, y)) > 40)
                found |= QRect(x, y, 1, 1);
        }
    }
    return found;
}

TEST_F(MoonPictures, TheAgeStandsPaleYellowInTheLowerLeftCorner) {
    store(quarters(64));
    const QImage image = drawn(newMoonAge, true);
    EXPECT_EQ(label().x(), 4);
    EXPECT_EQ(label().y() + label().height(), side - 4);
    const QRect ink = inked(image);
    EXPECT_FALSE(ink.isEmpty());
    EXPECT_TRUE(label().geometry().contains(ink));
    int pure = 0;
    for (int y = ink.top(); y <= ink.bottom(); ++y) {
        for (int x = ink.left(); x <= ink.right(); ++x)
            pure += image.pixelColor(x, y) == QColor(255, 236, 170) ? 1 : 0;
    }
    EXPECT_GT(pure, 0);
}

TEST_F(MoonPictures, OnlyTheLeftButtonsDoubleClickBringsBackTheMonthlyWindow) {
    store(quarters(64));
    ChangeCals::ShowMoonWindow();
    for (const auto button : {Qt::RightButton, Qt::MiddleButton}) {
        QTest::mouseDClick(&picture(), button);
        EXPECT_FALSE(ChangeCals::IsVisible(MonthlyWindowNumber)) << button;
    }
    QTest::mouseClick(&picture(), Qt::LeftButton);
    EXPECT_FALSE(ChangeCals::IsVisible(MonthlyWindowNumber)) << "one click";
    QTest::mouseDClick(&picture(), Qt::LeftButton);
    EXPECT_TRUE(ChangeCals::IsVisible(MonthlyWindowNumber));
}

TEST_F(MoonPictures, TheDiscInThePlaceOfAPictureLooksTheSameOnADarkDesktop) {
    MoonPicture alone(QStringLiteral("Picture1"), nullptr);
    alone.resize(side, side);
    alone.SetPicture({});
    const QImage usual = alone.grab().toImage();
    QPalette dark = alone.palette();
    dark.setColor(QPalette::WindowText, Qt::white);
    alone.setPalette(dark);
    EXPECT_EQ(alone.grab().toImage(), usual);
}

// Along the fourth line of such a screen, of which each pixel takes two.
TEST_F(MoonPictures, TheDiscInThePlaceOfAPictureHasAnOutlineOfOnePixel) {
    MoonOnASharpScreen alone(QStringLiteral("Picture1"), nullptr);
    alone.resize(side, side);
    alone.SetPicture({});
    const QImage disc = alone.drawn();
    EXPECT_LT(qGray(disc.pixel(side, 4)), 40);
    EXPECT_GT(qGray(disc.pixel(side, 5)), 200);
}

TEST_F(MoonPictures, AShadowCoversNothingUntilItIsAsWideAsAPixel) {
    MoonPicture alone(QStringLiteral("Picture1"), nullptr);
    alone.resize(side, side);
    QImage bright(16, 16, QImage::Format_RGB32);
    bright.fill(white);
    alone.SetPicture(bright);
    const QImage bare = alone.grab().toImage();
    const struct {
        double twips;
        bool covers;
    } rows[] = {{1, false}, {14, false}, {15, true}, {22, true}};
    for (const auto& row : rows) {
        alone.SetShadow({Shadow::Shape::Rectangle, true, 1, 1500, 1500, row.twips, 1500});
        EXPECT_EQ(alone.grab().toImage() != bare, row.covers) << row.twips;
    }
}

TEST_F(MoonPictures, ArePaintedAnewWhenTheirShadowIsAnother) {
    MoonPicture alone(QStringLiteral("Picture1"), nullptr);
    alone.resize(side, side);
    alone.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&alone));
    processEvents();
    const PaintsOf paints(alone);
    alone.SetShadow({Shadow::Shape::Rectangle, true, 1, 0, 0, 1500, 1500});
    EXPECT_TRUE(waitUntil([&paints] { return paints.count > 0; }));
}

} // namespace
