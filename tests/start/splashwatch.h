// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QColor>
#include <QElapsedTimer>
#include <QEvent>
#include <QImage>
#include <QObject>
#include <QWidget>

class QWindow;

/// Keeps what is drawn of the splash and how long it is shown.
class SplashWatch : public QObject {
public:
    SplashWatch() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* object, QEvent* event) override {
        if (!object->isWidgetType() || object->objectName() != QStringLiteral("frmAbout"))
            return false;
        auto* splash = static_cast<QWidget*>(object);
        if (event->type() == QEvent::Show) {
            m_shown.start();
            window = splash->windowHandle();
        } else if (event->type() == QEvent::Hide) {
            seconds = static_cast<double>(m_shown.nsecsElapsed()) / 1e9;
            ground = splash->grab().toImage().pixelColor(2, 2);
        }
        return false;
    }

    QColor ground; ///< a pixel near its corner
    QWindow* window = nullptr;
    double seconds = 0;

private:
    QElapsedTimer m_shown;
};
