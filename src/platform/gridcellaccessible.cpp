// SPDX-License-Identifier: MIT
#include "platform/gridcellaccessible.h"

#include "platform/flexgrid.h"

#include <QKeySequence>
#include <QWindow>

GridCellAccessible::GridCellAccessible(MSFlexGrid* grid, const QModelIndex& index)
    : m_grid(grid), m_index(index) {}

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
    state.invisible = !m_grid->isVisible();
    state.focusable = true;
    state.focused = m_grid->hasFocus() && m_grid->currentIndex() == m_index;
    state.selectable = true;
    state.selected = m_grid->selectionModel()->isSelected(m_index);
    return state;
}

void* GridCellAccessible::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::ActionInterface)
        return static_cast<QAccessibleActionInterface*>(this);
    return nullptr;
}

QStringList GridCellAccessible::actionNames() const {
    return {pressAction(), setFocusAction()};
}

void GridCellAccessible::doAction(const QString& name) {
    if (!isValid() || !m_grid->isEnabled())
        return;
    if (name == pressAction()) {
        m_grid->PressCell(m_index.row(), m_index.column());
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
