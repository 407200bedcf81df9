// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>
#include <QPersistentModelIndex>
#include <QPointer>

class MSFlexGrid; // IWYU pragma: keep (it would have the header, which a QPointer needs not)

/// A cell of a grid as assistive tools see it: an entry of a list, named by its
/// accessible text. Pressing it does what Return on it does.
class GridCellAccessible : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    GridCellAccessible(MSFlexGrid* grid, const QModelIndex& index);

    const QPersistentModelIndex& Index() const { return m_index; }

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QWindow* window() const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString& name) const override;

private:
    QPointer<MSFlexGrid> m_grid;
    QPersistentModelIndex m_index;
};
