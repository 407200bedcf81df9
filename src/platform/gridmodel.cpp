// SPDX-License-Identifier: MIT
#include "platform/gridmodel.h"

GridModel::GridModel(int rows, int columns, QObject* parent)
    : QAbstractTableModel(parent),
      m_rows(rows),
      m_columns(columns),
      m_cells(static_cast<std::size_t>(rows * columns)),
      m_taken(m_cells) {}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_rows;
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : m_columns;
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    const GridCell& cell = Cell(index.row(), index.column());
    if (role == Qt::DisplayRole)
        return cell.text;
    if (role == Qt::AccessibleTextRole)
        return accessibleText ? accessibleText(index.row(), index.column()) : cell.text;
    return {};
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags;
}

bool GridModel::Contains(int row, int column) const {
    return row >= 0 && row < m_rows && column >= 0 && column < m_columns;
}

const GridCell& GridModel::Cell(int row, int column) const {
    static const GridCell none;
    return Contains(row, column) ? m_cells[offset(row, column)] : none;
}

void GridModel::SetCell(int row, int column, const GridCell& cell) {
    if (Contains(row, column))
        m_cells[offset(row, column)] = cell;
}

bool GridModel::TakeChange(int row, int column) {
    const std::size_t at = offset(row, column);
    if (m_taken[at] == m_cells[at])
        return false;
    m_taken[at] = m_cells[at];
    return true;
}

void GridModel::TellViews(int top, int left, int bottom, int right) {
    Q_EMIT dataChanged(index(top, left), index(bottom, right));
}

std::size_t GridModel::offset(int row, int column) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(m_columns) +
           static_cast<std::size_t>(column);
}
