// SPDX-License-Identifier: MIT
#include "platform/gridaccessible.h"

#include "platform/flexgrid.h"
#include "platform/gridcellaccessible.h"

namespace {

QAccessibleInterface* newInterface(const QString& className, QObject* object) {
    if (className != QLatin1String("MSFlexGrid"))
        return nullptr;
    return new GridAccessible(qobject_cast<MSFlexGrid*>(object));
}

} // namespace

void GridAccessible::Install() {
    QAccessible::installFactory(newInterface);
}

GridAccessible::GridAccessible(MSFlexGrid* grid) : QAccessibleWidget(grid, QAccessible::Table) {}

GridAccessible::~GridAccessible() {
    for (const auto& [cell, id] : m_cells)
        QAccessible::deleteAccessibleInterface(id);
}

// The tool tip would repeat the name.
QString GridAccessible::text(QAccessible::Text kind) const {
    return kind == QAccessible::Description ? grid()->accessibleDescription()
                                            : QAccessibleWidget::text(kind);
}

int GridAccessible::childCount() const {
    return rowCount() * columnCount();
}

QAccessibleInterface* GridAccessible::child(int index) const {
    return index < 0 ? nullptr : cellAt(index / columnCount(), index % columnCount());
}

int GridAccessible::indexOfChild(const QAccessibleInterface* child) const {
    const auto* cell = dynamic_cast<const GridCellAccessible*>(child);
    return cell == nullptr ? -1 : cell->rowIndex() * columnCount() + cell->columnIndex();
}

QAccessibleInterface* GridAccessible::childAt(int x, int y) const {
    const QModelIndex index = grid()->indexAt(grid()->viewport()->mapFromGlobal(QPoint(x, y)));
    return index.isValid() ? cellAt(index.row(), index.column()) : nullptr;
}

QAccessibleInterface* GridAccessible::focusChild() const {
    const QModelIndex current = grid()->currentIndex();
    return grid()->hasFocus() ? cellAt(current.row(), current.column()) : nullptr;
}

void* GridAccessible::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableInterface)
        return static_cast<QAccessibleTableInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QAccessibleInterface* GridAccessible::cellAt(int row, int column) const {
    if (!grid()->model()->hasIndex(row, column))
        return nullptr;
    QAccessible::Id& id = m_cells[row * columnCount() + column];
    if (id == 0)
        id = QAccessible::registerAccessibleInterface(new GridCellAccessible(grid(), row, column));
    return QAccessible::accessibleInterface(id);
}

int GridAccessible::rowCount() const {
    return grid()->Rows();
}

int GridAccessible::columnCount() const {
    return grid()->Cols();
}

int GridAccessible::selectedCellCount() const {
    return static_cast<int>(grid()->selectionModel()->selectedIndexes().size());
}

QList<QAccessibleInterface*> GridAccessible::selectedCells() const {
    QList<QAccessibleInterface*> cells;
    for (const QModelIndex& index : grid()->selectionModel()->selectedIndexes())
        cells.append(cellAt(index.row(), index.column()));
    return cells;
}

MSFlexGrid* GridAccessible::grid() const {
    return static_cast<MSFlexGrid*>(widget());
}
