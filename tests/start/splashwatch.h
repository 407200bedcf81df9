// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QColor>
#include <QElapsedTimer>
#include <QEvent>
#include <QIcon>
#include <QImage>
#include <QObject>
#include <QWidget>
#include <QWindow>
#include <functional>
#include <utility>

/// Keeps what is drawn of the splash, how long it is shown and what the program's
/// icon is meanwhile.
class SplashWatch : public QObject {
public:
    SplashWatch() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Expose && atItsExposure && object == window)
            std::exchange(atItsExposure, {})(*window);
        if (!object->isWidgetType())
            return false;
        auto* widget = static_cast<QWidget*>(object);
        if (widget->objectName() == QStringLiteral("frmAbout"))
            watchSplash(*widget, event->type());
        else if (event->type() == QEvent::Show && widget->isWindow() && m_shown.isValid())
            secondsAlone = secondsShown();
        return false;
    }

    /// What happens once when the desktop has put it up, and what when it has its icon.
    std::function<void(QWindow&)> atItsExposure;
    std::function<void(QWindow&)> atItsIcon;

    QColor ground; ///< a pixel near its corner
    QWindow* window = nullptr;
    double seconds = 0;

    /// Until the last of the windows that came after it.
    double secondsAlone = 0;

    /// The program's, as it came.
    QIcon icon;

    /// Whether it was on the screen when the program last got an icon.
    bool wasExposed = false;

private:
    void watchSplash(QWidget& splash, QEvent::Type type) {
        if (type == QEvent::Show) {
            m_shown.start();
            window = splash.windowHandle();
            icon = QApplication::windowIcon();
        } else if (type == QEvent::ApplicationWindowIconChange) {
            wasExposed = splash.windowHandle() != nullptr && splash.windowHandle()->isExposed();
            if (wasExposed && atItsIcon)
                atItsIcon(*window);
        } else if (type == QEvent::Hide) {
            seconds = secondsShown();
            ground = splash.grab().toImage().pixelColor(2, 2);
        }
    }

    double secondsShown() const { return static_cast<double>(m_shown.nsecsElapsed()) / 1e9; }

    QElapsedTimer m_shown;
};
