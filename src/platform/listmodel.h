// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text.h"

#include <QStringListModel>
#include <functional>

/// The entries of a list, thousands at once, and how they are spoken.
class ListModel : public QStringListModel {
public:
    using QStringListModel::QStringListModel;

    QVariant data(const QModelIndex& index, int role) const override {
        if (role != Qt::AccessibleTextRole)
            return QStringListModel::data(index, role);
        return spoken ? spoken(index.row()) : Spoken(index.data().toString());
    }

    /// By an entry's position; as it is written where there is none.
    std::function<QString(int position)> spoken;
};
