// SPDX-License-Identifier: MIT
#include "platform/gridspeaker.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QItemSelection>

namespace {

int cellNumber(const QModelIndex& index) {
    return index.row() * index.model()->columnCount() + index.column();
}

void tell(QAbstractItemView& grid, QAccessible::Event type, int cell) {
    QAccessibleEvent event(&grid, type);
    event.setChild(cell);
    QAccessible::updateAccessibility(&event);
}

} // namespace

void GridSpeaker::TellCurrent() {
    const QModelIndex current = m_grid.currentIndex();
    if (!QAccessible::isActive() || m_arriving || !m_grid.hasFocus() || !current.isValid())
        return;
    const QString text = current.data(Qt::AccessibleTextRole).toString();
    const bool moved = cellNumber(current) != m_toldCell;
    if (text.isEmpty() || (!moved && text == m_toldText))
        return;
    m_toldCell = cellNumber(current);
    m_toldText = text;
    tell(m_grid, moved ? QAccessible::Focus : QAccessible::NameChanged, m_toldCell);
}

void GridSpeaker::EndArrival() {
    m_arriving = false;
    m_toldCell = -1;
    TellCurrent();
}

void GridSpeaker::TellSelection(const QItemSelection& selected, const QItemSelection& deselected) {
    if (!QAccessible::isActive())
        return;
    for (const QModelIndex& index : deselected.indexes())
        tell(m_grid, QAccessible::SelectionRemove, cellNumber(index));
    for (const QModelIndex& index : selected.indexes())
        tell(m_grid, QAccessible::SelectionAdd, cellNumber(index));
}
