// SPDX-License-Identifier: MIT
#include "support/screenjudge.h"

#include "support/ink.h"
#include "support/platform_test.h"

#include <QScreen>

namespace {

QImage shownOnScreen(const QWidget& window) {
    return window.screen()->grabWindow(window.winId()).toImage();
}

void paintWhatIsDue(QWidget& window) {
    processEvents();
    QEvent update(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(&window, &update);
}

// A window's own repaint passes over the controls that fill their place.
void paintAnew(QWidget& window) {
    window.update();
    for (QWidget* part : window.findChildren<QWidget*>())
        part->update();
    paintWhatIsDue(window);
}

} // namespace

QRect StalePixels(QWidget& window) {
    paintWhatIsDue(window);
    const QImage shown = shownOnScreen(window);
    paintAnew(window);
    const QImage anew = shownOnScreen(window);
    EXPECT_FALSE(anew.isNull()) << "this screen shows nothing";
    EXPECT_EQ(shown.size(), anew.size());
    return DifferingPixels(anew, shown);
}
