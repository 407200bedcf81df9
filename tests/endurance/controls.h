// SPDX-License-Identifier: MIT
#pragma once

#include "changecals/windows.h"

#include <QHash>
#include <QPointer>
#include <QString>
#include <gtest/gtest.h>

/// The controls of windows by their names, each looked for once: the walk looks at
/// all of them after every action.
class Controls {
public:
    template <typename Widget>
    Widget& In(QWidget& window, const QString& name) {
        QPointer<QWidget>& kept = m_kept[window.objectName() + u'/' + name];
        if (!kept || kept->window() != &window)
            kept = window.findChild<QWidget*>(name);
        auto* found = qobject_cast<Widget*>(kept.data());
        EXPECT_NE(found, nullptr) << qPrintable(name);
        return *found;
    }

    /// Of a main window by its number; it is to be loaded.
    template <typename Widget>
    Widget& Of(int number, const QString& name) {
        return In<Widget>(*ChangeCals::LoadedWindow(static_cast<MainWindowNumber>(number)), name);
    }

private:
    QHash<QString, QPointer<QWidget>> m_kept;
};
