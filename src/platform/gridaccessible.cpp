// SPDX-License-Identifier: MIT
#include "platform/gridaccessible.h"

#include "platform/flexgrid.h"
#include "platform/gridcellaccessible.h"

namespace {

QAccessibleInterface* newGridInterface(const QString& className, QObject* object) {
    if (className != QLatin1String("MSFlexGrid"))
        return nullptr;
    return new GridAccessible(qobject_cast<MSFlexGrid*>(object));
}

bool hasEntry(const QModelIndex& cell) {
    return cell.isValid() && !cell.data(Qt::AccessibleTextRole).toString().isEmpty();
}

} // namespace

void GridAccessible::Install() {
    QAccessible::installFactory(newGridInterface);
}

GridAccessible::GridAccessible(MSFlexGrid* grid) : QAccessibleWidget(grid, QAccessible::List) {}

GridAccessible::~GridAccessible() {
    for (const auto& [cell, id] : m_entries)
        QAccessible::deleteAccessibleInterface(id);
}

// The tool tip would repeat the name.
QString GridAccessible::text(QAccessible::Text kind) const {
    return kind == QAccessible::Description ? grid()->accessibleDescription()
                                            : QAccessibleWidget::text(kind);
}

int GridAccessible::childCount() const {
    return static_cast<int>(cells().size());
}

QAccessibleInterface* GridAccessible::child(int index) const {
    return Entry(cells().value(index));
}

int GridAccessible::indexOfChild(const QAccessibleInterface* child) const {
    const auto* entry = dynamic_cast<const GridCellAccessible*>(child);
    return entry == nullptr ? -1 : static_cast<int>(cells().indexOf(entry->Index()));
}

QAccessibleInterface* GridAccessible::childAt(int x, int y) const {
    return Entry(grid()->indexAt(grid()->viewport()->mapFromGlobal(QPoint(x, y))));
}

QAccessibleInterface* GridAccessible::focusChild() const {
    return grid()->hasFocus() ? Entry(grid()->currentIndex()) : nullptr;
}

QAccessibleInterface* GridAccessible::Entry(const QModelIndex& cell) const {
    if (!hasEntry(cell))
        return nullptr;
    QAccessible::Id& id = m_entries[cell];
    if (QAccessible::accessibleInterface(id) == nullptr)
        id = QAccessible::registerAccessibleInterface(new GridCellAccessible(grid(), cell));
    return QAccessible::accessibleInterface(id);
}

MSFlexGrid* GridAccessible::grid() const {
    return static_cast<MSFlexGrid*>(widget());
}

QModelIndexList GridAccessible::cells() const {
    QModelIndexList cells;
    for (int column = 0; column < grid()->Cols(); ++column) {
        for (int row = 0; row < grid()->Rows(); ++row)
            cells.append(grid()->model()->index(row, column));
    }
    cells.removeIf([](const QModelIndex& cell) { return !hasEntry(cell); });
    return cells;
}
