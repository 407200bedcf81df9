// SPDX-License-Identifier: MIT
#include "start/splash.h"

#include "shared/colors.h"
#include "shared/settings.h"

#include <QApplication>
#include <QThread>
#include <QWindow>

namespace {

using Clock = std::chrono::steady_clock;

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

// A window is painted only when the desktop has put it up, which takes a few
// events; a desktop that never does must not hold up the start.
void waitUntilExposed(const QWindow& window) {
    const auto limit = Clock::now() + exposeLimit;
    while (!window.isExposed() && Clock::now() < limit)
        letWindowsPaint();
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
    m_release = Clock::now() + std::chrono::duration_cast<Clock::duration>(shownFor);
}

void Splash::WaitItsTime() const {
    while (Clock::now() < m_release) {
        letWindowsPaint();
        QThread::msleep(1);
    }
}
