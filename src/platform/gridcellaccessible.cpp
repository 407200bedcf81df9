// SPDX-License-Identifier: MIT
#include "platform/gridcellaccessible.h"

#include "platform/flexgrid.h"

#include <QKeySequence>
#include <QWindow>

GridCellAccessible::GridCellAccessible(MSFlexGrid* grid, int row, int column)
    : m_grid(grid), m_index(grid->model()->index(row, column)) {}

bool GridCellAccessible::isValid() const {
    return m_grid != nullptr && m_index.isValid();
}

QWindow* GridCellAccessible::window() const {
    return parent() == nullptr ? nullptr : parent()->window();
}

QAccessibleInterface* GridCellAccessible::parent() const {
    return QAccessible::queryAccessibleInterface(m_grid);
}

QString GridCellAccessible::text(QAccessible::Text kind) const {
    if (kind != QAccessible::Name || !isValid())
        return {};
    return m_index.data(Qt::AccessibleTextRole).toString();
}

QRect GridCellAccessible::rect() const {
    if (!isValid())
        return {};
    const QRect inGrid = m_grid->visualRect(m_index);
    return {m_grid->viewport()->mapToGlobal(inGrid.topLeft()), inGrid.size()};
}

QAccessible::State GridCellAccessible::state() const {
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    state.disabled = !m_grid->isEnabled();
    state.invisible = !isShown();
    state.focusable = true;
    state.focused = m_grid->hasFocus() && m_grid->currentIndex() == m_index;
    state.selectable = true;
    state.selected = isSelected();
    return state;
}

void* GridCellAccessible::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableCellInterface)
        return static_cast<QAccessibleTableCellInterface*>(this);
    if (type == QAccessible::ActionInterface)
        return static_cast<QAccessibleActionInterface*>(this);
    return nullptr;
}

bool GridCellAccessible::isSelected() const {
    return isValid() && m_grid->selectionModel()->isSelected(m_index);
}

int GridCellAccessible::rowExtent() const {
    return isValid() ? m_grid->rowSpan(rowIndex(), columnIndex()) : 1;
}

int GridCellAccessible::columnExtent() const {
    return isValid() ? m_grid->columnSpan(rowIndex(), columnIndex()) : 1;
}

QStringList GridCellAccessible::actionNames() const {
    return {pressAction(), setFocusAction()};
}

void GridCellAccessible::doAction(const QString& name) {
    if (!isValid() || !m_grid->isEnabled())
        return;
    if (name == pressAction()) {
        m_grid->PressCell(rowIndex(), columnIndex());
    } else if (name == setFocusAction()) {
        m_grid->setFocus();
        m_grid->setCurrentIndex(m_index);
    }
}

QStringList GridCellAccessible::keyBindingsForAction(const QString& name) const {
    if (name != pressAction())
        return {};
    return {QKeySequence(Qt::Key_Return).toString(QKeySequence::NativeText)};
}

bool GridCellAccessible::isShown() const {
    const int first = m_grid->indexAt(m_grid->visualRect(m_index).center()).column();
    return m_grid->isVisible() && first == columnIndex() && !text(QAccessible::Name).isEmpty();
}
