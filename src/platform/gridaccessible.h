// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>
#include <QModelIndexList>
#include <map>

class MSFlexGrid;

/// A grid as assistive tools see it: a list of those of its cells that have an
/// accessible text, column by column.
class GridAccessible : public QAccessibleWidget {
public:
    /// From now on every MSFlexGrid is seen so.
    static void Install();

    explicit GridAccessible(MSFlexGrid* grid);
    ~GridAccessible() override;

    QString text(QAccessible::Text kind) const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

    /// The entry of a cell, nullptr for a cell that has none; another one when the
    /// former has been deleted.
    QAccessibleInterface* Entry(const QModelIndex& cell) const;

private:
    MSFlexGrid* grid() const;
    QModelIndexList cells() const;

    mutable std::map<QModelIndex, QAccessible::Id> m_entries; ///< those asked for so far
};
