// SPDX-License-Identifier: MIT
// The splash of the start: its colour, its time, and that it is deaf.
#include "start/splash.h"

#include "shared/settings.h"
#include "start/splashwatch.h"
#include "start/start.h"
#include "support/paintsof.h"
#include "support/platform_input.h"
#include "support/texttables.h"
#include "support/widget_test.h"

#include <QApplication>
#include <QIcon>
#include <QImage>
#include <QTimer>
#include <QWidget>
#include <QWindow>
#include <chrono>
#include <utility>

namespace {

constexpr double leastSeconds = 1.0368; // 0.000012 days

class Splash : public WidgetTest {
protected:
    Splash() {
        clearTexts();
        // Read while the splash is shown, and so the moment for the user's Esc.
        Today = [this] {
            queueKey(*watch.window, Qt::Key_Escape);
            return QDate(2026, 11, 20);
        };
        QImage moon(16, 16, QImage::Format_RGB32);
        moon.fill(Qt::yellow);
        EXPECT_TRUE(moon.save(programPath(QStringLiteral("Moon.bmp")), "BMP"));
    }

    void start(int window) {
        writeFile(settingsPath(), "[Startup]\nWindow=" + QByteArray::number(window) + "\n");
        ASSERT_TRUE(Start::Main());
        processEvents();
    }

    SplashWatch watch;
};

TEST_F(Splash, IsInTheColourOfTheGregorianCalendarBeforeTheMonthlyWindow) {
    start(0);
    EXPECT_EQ(watch.ground, QColor(192, 255, 255));
}

TEST_F(Splash, IsInTheColourOfTheCalendarWhoseYearIsShown) {
    start(4);
    EXPECT_EQ(watch.ground, QColor(192, 255, 192));
}

TEST_F(Splash, HasTheColourOfItsNumberOrElseOfTheGregorianCalendar) {
    const QColor cyan(192, 255, 255);
    const std::pair<int, QColor> rows[] = {
        {-1, cyan}, {1, Qt::white}, {2, cyan}, {3, QColor(255, 255, 192)}, {5, QColor(255, 0, 0)},
        {6, cyan}};
    for (const auto& [window, color] : rows) {
        StartupWindow = window;
        ::Splash splash;
        splash.Hide();
        EXPECT_EQ(watch.ground, color) << window;
    }
}

TEST_F(Splash, LeavesTheProgramItsIcon) {
    QApplication::setWindowIcon(QIcon(programPath(QStringLiteral("Moon.bmp"))));
    const qint64 icon = QApplication::windowIcon().cacheKey();
    ::Splash().Hide();
    EXPECT_TRUE(watch.icon.isNull()) << "a splash has none to wait for";
    EXPECT_TRUE(watch.wasExposed);
    EXPECT_EQ(QApplication::windowIcon().cacheKey(), icon);
    QApplication::setWindowIcon({});
}

TEST_F(Splash, DoesNotWaitForADesktopThatNeverShowsIt) {
    watch.atItsExposure = [](QWindow& window) { window.hide(); };
    ::Splash splash;
    EXPECT_FALSE(watch.window->isExposed());
    splash.Hide();
}

TEST_F(Splash, WaitsForADesktopThatShowsItLate) {
    watch.atItsExposure = [](QWindow& window) {
        window.hide();
        QTimer::singleShot(std::chrono::milliseconds(50), &window, &QWindow::show);
    };
    ::Splash splash;
    EXPECT_TRUE(watch.window->isExposed());
    splash.Hide();
}

TEST_F(Splash, TakesNoInputWhileItComesUp) {
    watch.atItsIcon = [](QWindow& window) { queueKey(window, Qt::Key_Escape); };
    ::Splash splash;
    EXPECT_TRUE(watch.window->isVisible());
    splash.Hide();
}

TEST_F(Splash, LetsTheWindowsPaintWhileItIsShown) {
    ::Splash splash;
    EXPECT_TRUE(watch.window->isExposed());
    QWidget other;
    const PaintsOf paints(other);
    other.show();
    splash.WaitItsTime();
    EXPECT_GT(paints.count, 0);
    splash.Hide();
}

TEST_F(Splash, IsShownForItsWholeTimeAndTakesNoInputMeanwhile) {
    start(1);
    EXPECT_GE(watch.seconds, leastSeconds);
}

} // namespace
