// SPDX-License-Identifier: MIT
#include "support/platform_input.h"

#include <qpa/qwindowsysteminterface.h>

void queueKey(QWindow& window, Qt::Key key) {
    using Async = QWindowSystemInterface::AsynchronousDelivery;
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease})
        QWindowSystemInterface::handleKeyEvent<Async>(&window, type, key, Qt::NoModifier);
}

void goToAnotherProgram() {
    using Now = QWindowSystemInterface::SynchronousDelivery;
    QWindowSystemInterface::handleWindowActivated<Now>(nullptr);
}

void takeNewsOfWindows() {
    QWindowSystemInterface::flushWindowSystemEvents();
}
