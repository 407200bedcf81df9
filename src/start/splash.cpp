// SPDX-License-Identifier: MIT
#include "start/splash.h"

#include "shared/colors.h"
#include "shared/settings.h"

#include <QApplication>
#include <QWindow>
#include <chrono>

namespace {

constexpr std::chrono::duration<double, std::chrono::days::period> shownFor(0.000012);
constexpr int standardColor = 2;
constexpr auto exposeLimit = std::chrono::milliseconds(500);

int splashColor() {
    const bool known = StartupWindow >= 1 && StartupWindow <= ChosenDayBackground;
    return CalendarColors(known ? StartupWindow : standardColor);
}

void letWindowsPaint() {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void sleepAndLetWindowsPaint() {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                    QEventLoop::WaitForMoreEvents);
}

// A window is painted only when the desktop has put it up, which takes a few
// events; a desktop that never does must not hold up the start.
void waitUntilExposed(const QWindow& window) {
    QTimer limit;
    limit.setSingleShot(true);
    limit.start(exposeLimit);
    while (!window.isExposed() && limit.isActive())
        sleepAndLetWindowsPaint();
}

} // namespace

Splash::Splash() {
    m_box.BecomeSplash(splashColor());
    const QIcon icon = QApplication::windowIcon();
    QApplication::setWindowIcon({}); // a splash has none to wait for
    m_box.Show();
    waitUntilExposed(*m_box.windowHandle());
    QApplication::setWindowIcon(icon);
    m_box.repaint();
    letWindowsPaint();
    m_time.setSingleShot(true);
    m_time.setTimerType(Qt::PreciseTimer);
    m_time.start(std::chrono::ceil<std::chrono::milliseconds>(shownFor));
}

void Splash::WaitItsTime() const {
    while (m_time.isActive())
        sleepAndLetWindowsPaint();
}
