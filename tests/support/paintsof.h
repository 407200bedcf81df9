// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>
#include <QObject>

/// Counts how often a control is painted on its own account.
class PaintsOf : public QObject {
public:
    explicit PaintsOf(QObject& watched) { watched.installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    int count = 0;
};
