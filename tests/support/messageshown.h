// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <functional>
#include <utility>

/// While it lasts, looks at each message box as it is shown.
class MessageShown : public QObject {
public:
    using Look = std::function<void(QMessageBox& box)>;

    explicit MessageShown(Look look) : m_look(std::move(look)) { qApp->installEventFilter(this); }

    bool eventFilter(QObject* object, QEvent* event) override {
        auto* box = qobject_cast<QMessageBox*>(object);
        if (box != nullptr && event->type() == QEvent::Show)
            m_look(*box);
        return false;
    }

private:
    Look m_look;
};
