// SPDX-License-Identifier: MIT
#include "platform/controloutlines.h"

#include <QApplication>
#include <QEvent>
#include <QScopedValueRollback>
#include <QStyle>

namespace {

constexpr QRgb black = qRgb(0, 0, 0);
constexpr QRgb white = qRgb(255, 255, 255);

constexpr const char* outlinedControls[] = {"QComboBox", "QAbstractButton", "QScrollBar"};

// An ordinary dark theme has no black windows, an ordinary light one no white ones
// with black texts.
bool isForced(const QPalette& colors) {
    const QRgb window = colors.color(QPalette::Window).rgb();
    const QRgb text = colors.color(QPalette::WindowText).rgb();
    return window == black || (window == white && text == black);
}

// This style draws outlines in a shade of the window's colour, so that black ones lie
// on black.
bool areLost() {
    return isForced(QApplication::palette()) &&
           QApplication::style()->name() == QLatin1String("fusion");
}

// The window's colour shows nowhere else on these controls.
void giveOutlines() {
    QPalette colors;
    colors.setColor(QPalette::Window, QApplication::palette().color(QPalette::WindowText));
    for (const char* control : outlinedControls)
        QApplication::setPalette(colors, control);
}

class Outlines : public QObject {
public:
    explicit Outlines(QObject* parent) : QObject(parent) { renew(); }

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override {
        const bool changed = event->type() == QEvent::ApplicationPaletteChange;
        if (changed && receiver == parent() && !m_renewing) // renewing is told as a change
            renew();
        return QObject::eventFilter(receiver, event);
    }

private:
    // A change of the theme has taken away what was given.
    void renew() {
        const QScopedValueRollback renewing(m_renewing, true);
        if (areLost())
            giveOutlines();
    }

    bool m_renewing = false;
};

} // namespace

void InstallControlOutlines() {
    qApp->installEventFilter(new Outlines(qApp));
}
