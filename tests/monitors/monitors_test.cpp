// SPDX-License-Identifier: MIT
// A desktop of two monitors, the primary one standing right of the other and
// lower: x 1280 to 2304, y 100 to 900, beside x 0 to 1280, y 0 to 1000, which is
// scaled by 125 %.
#include "changecals/windowpositions.h"
#include "start/frmabout.h"
#include "start/frmoptions.h"
#include "support/recording_windows.h"
#include "support/widget_test.h"

#include <QScreen>
#include <filesystem>

namespace {

constexpr QRect primary{1280, 100, 1024, 800};

class Monitors : public WidgetTest {
protected:
    Monitors() {
        EXPECT_EQ(QGuiApplication::primaryScreen()->geometry(), primary);
        startToday();
        useRecordingWindows();
    }

    /// Where a window that was stored there is placed.
    static QPoint placeOfOneStoredAt(const QPoint& place) {
        FormLeft(Jewish) = place.x() * 15;
        FormTop(Jewish) = place.y() * 15;
        Form form(QStringLiteral("frmJewish"));
        ChangeCals::PlaceForm(form, YearWindowNumber(Jewish));
        return form.pos();
    }

    static void expectPlacedOnThePrimary(const Form& dialog) {
        EXPECT_EQ(dialog.x() - 1280, (1024 - dialog.width()) / 2);
        EXPECT_NEAR(dialog.y() - 100, (800 - dialog.height()) / 3.0, 1);
    }
};

TEST_F(Monitors, AStoredPlaceOnEitherIsKept) {
    const QPoint places[] = {{2100, 850}, {1300, 120}, {40, 950}, {2184, 10}, {-30, -20}};
    for (const QPoint& place : places)
        EXPECT_EQ(placeOfOneStoredAt(place), place);
}

// The desktop rounds the frame's thickness: one pixel beside is not moved.
TEST_F(Monitors, AFrameIsWhereItWasPutUntilItIsMovedByMoreThanTheScaleRounds) {
    const struct {
        const char* monitor;
        QPoint by;
        QPoint told; // in twips
    } rows[] = {{"second", {1, -1}, {600, 300}},  {"second", {-1, 1}, {600, 300}},
                {"second", {2, 1}, {630, 300}},   {"second", {-1, -2}, {600, 270}},
                {"primary", {1, -1}, {615, 285}}, {"primary", {0, 0}, {600, 300}}};
    for (const auto& row : rows) {
        Form form(QStringLiteral("frmTest"));
        for (QScreen* screen : QGuiApplication::screens())
            if (screen->name() == QLatin1String(row.monitor))
                form.setScreen(screen);
        form.Move({600}, {300});
        form.move(form.pos() + row.by);
        EXPECT_EQ(QPoint(form.Left().count, form.Top().count), row.told)
            << row.monitor << row.by.x();
    }
}

TEST_F(Monitors, APlaceBeyondTheWholeDesktopIsNone) {
    const QPoint places[] = {{40, 1000}, {1300, 1001}};
    for (const QPoint& place : places)
        EXPECT_NE(placeOfOneStoredAt(place), place);
}

// 32737 twips lie on this desktop, and yet mean that none is stored.
TEST_F(Monitors, TheNumberThatStandsForNoPlaceIsNoneAlsoWhereTheDesktopHasIt) {
    FormLeft(Jewish) = 32737;
    FormTop(Jewish) = 300;
    const auto place = ChangeCals::PlaceOf(YearWindowNumber(Jewish));
    EXPECT_NE(place.left, Twips{32737});
    EXPECT_NE(place.top, Twips{300});
}

TEST_F(Monitors, WindowsBeginOnThePrimary) {
    for (const MainWindowNumber number : mainWindows) {
        const auto place = ChangeCals::PlaceOf(number);
        EXPECT_TRUE(primary.contains(ToPixels(place.left), ToPixels(place.top))) << number;
        EXPECT_LE(place.left.count, 32767) << number;
    }
}

TEST_F(Monitors, DialogsStandOnThePrimary) {
    expectPlacedOnThePrimary(frmAbout());
    expectPlacedOnThePrimary(frmOptions());
}

TEST_F(Monitors, TheSplashStandsOnThePrimary) {
    frmAbout splash;
    const QPoint place = splash.pos();
    splash.BecomeSplash(0xC0FFC0);
    splash.Show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&splash));
    EXPECT_EQ(splash.pos(), place);
    EXPECT_TRUE(primary.contains(splash.geometry()));
}

} // namespace

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    // Beside the file, as the platform reads no letter beyond Latin-1 in its path.
    std::filesystem::current_path(TEST_DATA_DIR);
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=two_monitors.json");
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
