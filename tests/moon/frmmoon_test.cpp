// SPDX-License-Identifier: MIT
#include "changecals/changecals.h"
#include "changecals/opening.h"
#include "moon/frmmoon.h"
#include "moon/moonpicture.h"
#include "support/platform_accessible.h"
#include "support/recording_windows.h"
#include "support/widget_test.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>

namespace {

class MoonWindowTest : public WidgetTest {
protected:
    MoonWindowTest() {
        startToday();
        auto factories = recordingFactories();
        factories.moon = [] { return new frmMoon; };
        ChangeCals::BeginRun(factories);
        calls.clear();
    }

    static MoonWindow& moon() { return ChangeCals::LoadMoon(); }
    static MoonPicture& picture() { return *child<MoonPicture>(moon(), "Picture1"); }
    static QLabel& label() { return *child<QLabel>(moon(), "Label1"); }
    QString bitmapPath() const { return programPath(QStringLiteral("Moon.bmp")); }

    // A white moon, on which every shadow is seen.
    void writeBitmap(QSize size = {64, 64}) const {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::white);
        EXPECT_TRUE(image.save(bitmapPath(), "BMP"));
    }

    static QImage drawn(float age) {
        MoonAge = age;
        moon().ReSetForm();
        label().hide();
        return picture().grab().toImage();
    }

    static bool isLit(const QImage& image, double x, double y) {
        return qGray(image.pixel(static_cast<int>(image.width() * x),
                                 static_cast<int>(image.height() * y))) > 128;
    }

    void expectMissing(const char* told = "File not found") {
        EXPECT_EQ(moon().windowTitle(), QStringLiteral("Moon"));
        EXPECT_EQ(m_messages.take(), QStringList{QDir::toNativeSeparators(bitmapPath()) +
                                                 QStringLiteral("\r\n\r\n") + QLatin1String(told)});
        const QImage disc = drawn(14.8F);
        EXPECT_EQ(disc.pixelColor(disc.width() / 2, disc.height() / 2), QColor(255, 255, 192));
        EXPECT_FALSE(isLit(drawn(7.4F), 0.25, 0.5));
        EXPECT_TRUE(isLit(drawn(7.4F), 0.75, 0.5));
        moon().Unload();
        processEvents();
    }
};

TEST_F(MoonWindowTest, APictureThatIsTooLargeIsToldAsSuch) {
    writeBitmap();
    ASSERT_TRUE(QFile::resize(bitmapPath(), 300'000'000));
    expectMissing("The picture is too large.");
}

TEST_F(MoonWindowTest, SizesCaptionAndTip) {
    writeBitmap();
    LabelTexts(MoonLabel) = "Luna";
    EXPECT_EQ(picture().size(), QSize(280, 280));
    EXPECT_EQ(moon().size(), QSize(290, 309));
    EXPECT_EQ(child<QWidget>(moon(), "Label2")->size(), QSize(284, 284));
    EXPECT_EQ(moon().windowTitle(), QStringLiteral("Luna"));
    EXPECT_EQ(picture().toolTip(), QStringLiteral("Moon (Double-click to show monthly calendars)"));
    ShowTips = 0;
    moon().SetTexts();
    EXPECT_EQ(picture().toolTip(), QString());
    EXPECT_EQ(picture().accessibleName(), QStringLiteral("Moon"));
}

TEST_F(MoonWindowTest, StandsWhereItsStoredPositionSays) {
    writeBitmap();
    FormTop(MoonWindowNumber) = 300;
    FormLeft(MoonWindowNumber) = 600;
    EXPECT_EQ(moon().pos(), QPoint(40, 20));
}

TEST_F(MoonWindowTest, TheAgeShowsOneDecimal) {
    writeBitmap();
    const struct {
        float age;
        const char* text;
    } rows[] = {{7.38F, "7.4"}, {12.0F, "12.0"}, {0.0F, "0.0"}, {29.5F, "29.5"}};
    for (const auto& row : rows) {
        MoonAge = row.age;
        moon().ReSetForm();
        EXPECT_EQ(label().text(), QLatin1String(row.text));
        EXPECT_TRUE(picture().rect().contains(label().geometry()));
        EXPECT_EQ(label().size(), label().sizeHint());
    }
}

TEST_F(MoonWindowTest, WaxingIsLitOnTheRightWaningOnTheLeft) {
    writeBitmap();
    const struct {
        float age;
        bool farLeft, left, right, farRight;
    } rows[] = {{0.3F, false, false, false, false}, {4.0F, false, false, false, true},
                {7.4F, false, false, true, true},   {11.0F, false, true, true, true},
                {14.8F, true, true, true, true},    {18.5F, true, true, true, false},
                {22.1F, true, true, false, false},  {26.0F, true, false, false, false},
                {29.2F, false, false, false, false}};
    for (const auto& row : rows) {
        const QImage image = drawn(row.age);
        EXPECT_EQ(isLit(image, 0.02, 0.5), row.farLeft) << row.age;
        EXPECT_EQ(isLit(image, 0.4, 0.5), row.left) << row.age;
        EXPECT_EQ(isLit(image, 0.6, 0.5), row.right) << row.age;
        EXPECT_EQ(isLit(image, 0.98, 0.5), row.farRight) << row.age;
    }
}

TEST_F(MoonWindowTest, NoCaseLeavesAnythingForTheNext) {
    writeBitmap();
    const float ages[] = {0.3F, 4, 7.4F, 11, 14.8F, 18, 22.1F, 26, 29.2F};
    QList<QImage> alone;
    for (const float age : ages) {
        moon().Unload();
        processEvents();
        alone.append(drawn(age));
    }
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(drawn(ages[i]), alone.at(i)) << ages[i];
    for (int i = 8; i >= 0; --i)
        EXPECT_EQ(drawn(ages[i]), alone.at(i)) << ages[i];
}

TEST_F(MoonWindowTest, TheTerminatorGoesThroughThePoles) {
    writeBitmap();
    for (const float age : {4.0F, 11.0F, 18.0F, 26.0F}) {
        const QImage image = drawn(age);
        const int middle = image.width() / 2;
        const int edge = image.width() / 12;
        for (const int y : {0, image.height() - 1}) {
            const bool left = qGray(image.pixel(middle - edge, y)) > 128;
            const bool right = qGray(image.pixel(middle + edge, y)) > 128;
            EXPECT_NE(left, right) << age << " at row " << y;
        }
    }
}

TEST_F(MoonWindowTest, FollowsEveryChangeWhileItIsVisible) {
    writeBitmap();
    ChangeCals::ShowMoonWindow();
    CurJD = 2451545;
    ChangeCals::ChangeJD();
    EXPECT_EQ(label().text(), QStringLiteral("24.3"));
    EXPECT_EQ(accessibleName(moon()), QStringLiteral("Moon")) << "the age is told once";
    EXPECT_EQ(moon().Answer(), QStringLiteral("Moon age (in days) 24.3"));
    EXPECT_EQ(accessible(picture()).role(), QAccessible::Graphic);
    EXPECT_EQ(picture().accessibleDescription(), QStringLiteral("Moon age (in days) 24.3"));
    EXPECT_EQ(accessibleName(label()), QStringLiteral("Moon age (in days) 24.3"));
}

TEST_F(MoonWindowTest, ReturnAndEnterBringBackTheMonthlyWindowAndNoOtherKeyDoes) {
    writeBitmap();
    ChangeCals::ShowMoonWindow();
    for (const auto key : {Qt::Key_Space, Qt::Key_A, Qt::Key_Delete}) {
        QTest::keyClick(&picture(), key);
        EXPECT_FALSE(ChangeCals::IsVisible(MonthlyWindowNumber)) << key;
    }
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
        QTest::keyClick(&picture(), key);
        EXPECT_TRUE(ChangeCals::IsVisible(MonthlyWindowNumber)) << key;
        ChangeCals::LoadMonthly().Hide();
    }
}

TEST_F(MoonWindowTest, TheNightIsDarkAndTheFrameOfThePictureIsSeenInIt) {
    writeBitmap();
    ChangeCals::ShowMoonWindow();
    const QImage image = moon().grab().toImage();
    EXPECT_EQ(image.pixelColor(0, 0), QColor(24, 26, 36));
    EXPECT_EQ(image.pixelColor(289, 308), QColor(24, 26, 36));
    EXPECT_EQ(image.pixelColor(4, 150), QColor(70, 76, 96));
    EXPECT_EQ(image.pixelColor(145, 13), QColor(70, 76, 96));
}

TEST_F(MoonWindowTest, EscHidesItAlsoAfterAChangeAndOtherKeysDoNothing) {
    writeBitmap();
    ChangeCals::ShowMoonWindow();
    ASSERT_TRUE(waitUntil([] { return moon().isActiveWindow(); }));
    EXPECT_TRUE(picture().hasFocus());
    for (const auto key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_A, Qt::Key_Delete}) {
        QTest::keyClick(&picture(), key);
        EXPECT_TRUE(moon().Visible());
    }
    ChangeCals::ChangeJD();
    MoonWindow* const window = &moon();
    QTest::keyClick(moon().windowHandle(), Qt::Key_Escape);
    EXPECT_FALSE(window->Visible());
    EXPECT_EQ(&moon(), window);
}

TEST_F(MoonWindowTest, AKeyThatItHasNoUseForIsLeftToOthers) {
    writeBitmap();
    ChangeCals::ShowMoonWindow();
    QKeyEvent press(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    QCoreApplication::sendEvent(&moon(), &press);
    EXPECT_FALSE(press.isAccepted());
}

TEST_F(MoonWindowTest, ADoubleClickBringsBackTheMonthlyWindow) {
    writeBitmap();
    ChangeCals::ShowMoonWindow();
    QTest::mouseDClick(&picture(), Qt::LeftButton);
    EXPECT_TRUE(ChangeCals::LoadMonthly().Visible());
    EXPECT_EQ(takeCalls(), std::vector<std::string>{"monthly.ReSetForm"});
    ChangeCals::LoadMonthly().showMinimized();
    QTest::mouseDClick(&picture(), Qt::LeftButton);
    EXPECT_EQ(ChangeCals::LoadMonthly().WindowState(), Form::Normal);
}

TEST_F(MoonWindowTest, ItsFrameUnloadsItAndTheProgramGoesOn) {
    writeBitmap();
    ChangeCals::LoadYear(Julian).Show();
    ChangeCals::ShowMoonWindow();
    moon().close();
    EXPECT_EQ(ChangeCals::LoadedWindow(MoonWindowNumber), nullptr);
    EXPECT_EQ(m_exitStatus, std::nullopt);
}

TEST_F(MoonWindowTest, AMissingPictureIsToldOnceALoading) {
    expectMissing();
    expectMissing();
}

TEST_F(MoonWindowTest, BrokenPicturesCountAsMissing) {
    writeBitmap();
    const QByteArray whole = readFile(bitmapPath());
    QByteArray absurd = whole;
    absurd.replace(18, 8, QByteArray("\xFF\xFF\xFF\x7F\xFF\xFF\xFF\x7F", 8));
    QByteArray wide = whole;
    wide.replace(18, 8, QByteArray("\x00\x00\x01\x00\x01\x00\x00\x00", 8));
    QByteArray cutHeader = whole.left(20);
    for (const QByteArray& bytes :
         {QByteArray(), QByteArray("not a bitmap at all"), whole.left(whole.size() / 2),
          whole.left(whole.size() - 1), cutHeader, absurd, wide, QByteArray("BM"),
          QByteArray(100, '\0')}) {
        writeFile(bitmapPath(), bytes);
        expectMissing();
    }
}

TEST_F(MoonWindowTest, AFolderOrADanglingLinkInItsPlaceCountsAsMissing) {
    ASSERT_TRUE(QDir().mkpath(bitmapPath()));
    expectMissing();
    ASSERT_TRUE(QDir().rmdir(bitmapPath()));
    ASSERT_TRUE(QFile::link(programPath(QStringLiteral("nowhere")), bitmapPath()));
    expectMissing();
}

TEST_F(MoonWindowTest, TheTerminatorIsSmooth) {
    writeBitmap();
    const QImage image = drawn(4.0F);
    int greys = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const int grey = qGray(image.pixel(x, y));
            greys += grey > 40 && grey < 215 ? 1 : 0;
        }
    }
    EXPECT_GT(greys, 100) << "along 280 rows";
}

TEST_F(MoonWindowTest, TheDiscInThePlaceOfAPictureIsTwoPixelsWithinTheDarkField) {
    const QImage disc = drawn(14.8F);
    EXPECT_EQ(m_messages.take().size(), 1);
    const QColor yellow(255, 255, 192);
    const QColor black(0, 0, 0);
    for (const QPoint inside : {QPoint(140, 3), QPoint(140, 276), QPoint(3, 140), QPoint(276, 140)})
        EXPECT_EQ(disc.pixelColor(inside), yellow) << inside.x() << ' ' << inside.y();
    for (const QPoint outside :
         {QPoint(140, 1), QPoint(140, 278), QPoint(1, 140), QPoint(278, 140), QPoint(5, 5)})
        EXPECT_EQ(disc.pixelColor(outside), black) << outside.x() << ' ' << outside.y();
}

} // namespace
