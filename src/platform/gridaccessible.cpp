// SPDX-License-Identifier: MIT
#include "platform/gridaccessible.h"

#include "platform/flexgrid.h"

#include <QAccessibleWidget>
#include <QKeySequence>
#include <QPersistentModelIndex>
#include <QPointer>
#include <map>

namespace {

/// A cell of a grid: an entry of a list, named by its accessible text. Pressing it does
/// what Return on it does.
class CellAccessible : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    CellAccessible(MSFlexGrid* grid, const QModelIndex& index) : m_grid(grid), m_index(index) {}

    const QPersistentModelIndex& Index() const { return m_index; }

    bool isValid() const override { return m_grid != nullptr && m_index.isValid(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return parent() == nullptr ? nullptr : parent()->window(); }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(m_grid);
    }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override {
        if (kind != QAccessible::Name || !isValid())
            return {};
        return m_index.data(Qt::AccessibleTextRole).toString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override {
        if (!isValid())
            return {};
        const QRect inGrid = m_grid->visualRect(m_index);
        return {m_grid->viewport()->mapToGlobal(inGrid.topLeft()), inGrid.size()};
    }
    QAccessible::Role role() const override { return QAccessible::ListItem; }

    QAccessible::State state() const override {
        QAccessible::State state;
        if (!isValid()) {
            state.invalid = true;
            return state;
        }
        state.disabled = !m_grid->isEnabled();
        state.invisible = !m_grid->isVisible();
        state.focusable = true;
        state.focused = m_grid->hasFocus() && m_grid->currentIndex() == m_index;
        state.selectable = true;
        state.selected = m_grid->selectionModel()->isSelected(m_index);
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ActionInterface)
            return static_cast<QAccessibleActionInterface*>(this);
        return nullptr;
    }

    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }

    void doAction(const QString& name) override {
        if (!isValid() || !m_grid->isEnabled())
            return;
        if (name == pressAction()) {
            m_grid->PressCell(m_index.row(), m_index.column());
        } else if (name == setFocusAction()) {
            m_grid->setFocus();
            m_grid->setCurrentIndex(m_index);
        }
    }

    QStringList keyBindingsForAction(const QString& name) const override {
        if (name != pressAction())
            return {};
        return {QKeySequence(Qt::Key_Return).toString(QKeySequence::NativeText)};
    }

private:
    QPointer<MSFlexGrid> m_grid;
    QPersistentModelIndex m_index;
};

bool hasEntry(const QModelIndex& cell) {
    return cell.isValid() && !cell.data(Qt::AccessibleTextRole).toString().isEmpty();
}

/// A list of those cells that have an accessible text, column by column.
class GridAccessible : public QAccessibleWidget {
public:
    explicit GridAccessible(MSFlexGrid* grid) : QAccessibleWidget(grid, QAccessible::List) {}

    ~GridAccessible() override {
        for (const auto& [cell, id] : m_entries)
            QAccessible::deleteAccessibleInterface(id);
    }

    // The tool tip would repeat the name.
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Description ? grid()->accessibleDescription()
                                                : QAccessibleWidget::text(kind);
    }

    int childCount() const override { return static_cast<int>(cells().size()); }

    QAccessibleInterface* child(int index) const override { return entry(cells().value(index)); }

    int indexOfChild(const QAccessibleInterface* child) const override {
        const auto* cell = dynamic_cast<const CellAccessible*>(child);
        return cell == nullptr ? -1 : static_cast<int>(cells().indexOf(cell->Index()));
    }

    QAccessibleInterface* childAt(int x, int y) const override {
        return entry(grid()->indexAt(grid()->viewport()->mapFromGlobal(QPoint(x, y))));
    }

    QAccessibleInterface* focusChild() const override {
        return grid()->hasFocus() ? entry(grid()->currentIndex()) : nullptr;
    }

private:
    // nullptr for a cell that has none; another one when the former has been deleted.
    QAccessibleInterface* entry(const QModelIndex& cell) const {
        if (!hasEntry(cell))
            return nullptr;
        QAccessible::Id& id = m_entries[cell];
        if (QAccessible::accessibleInterface(id) == nullptr)
            id = QAccessible::registerAccessibleInterface(new CellAccessible(grid(), cell));
        return QAccessible::accessibleInterface(id);
    }

    MSFlexGrid* grid() const { return static_cast<MSFlexGrid*>(widget()); }

    QModelIndexList cells() const {
        QModelIndexList cells;
        for (int column = 0; column < grid()->Cols(); ++column) {
            for (int row = 0; row < grid()->Rows(); ++row)
                cells.append(grid()->model()->index(row, column));
        }
        cells.removeIf([](const QModelIndex& cell) { return !hasEntry(cell); });
        return cells;
    }

    mutable std::map<QModelIndex, QAccessible::Id> m_entries; ///< those asked for so far
};

} // namespace

QAccessibleInterface* NewGridAccessible(const QString& className, QObject* object) {
    if (className != QLatin1String("MSFlexGrid"))
        return nullptr;
    return new GridAccessible(qobject_cast<MSFlexGrid*>(object));
}
