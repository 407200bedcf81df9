// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <functional>
#include <utility>
#include <vector>

/// Where a cell stands in a grid, counted from 0.
struct GridPlace {
    int row;
    int column;
    bool operator==(const GridPlace& other) const = default;
};

/// What a grid cell shows, centred. Colours are 0x00BBGGRR numbers.
struct GridCell {
    QString text;
    int back = 0xFFFFFF;
    int fore = 0;
    bool bold = false;

    bool operator==(const GridCell& other) const = default;
};

/// The cells of a grid. They are changed through SetCell, which tells nobody;
/// TakeChange finds out what is new, and TellViews lets it be shown.
class GridModel : public QAbstractTableModel {
public:
    GridModel(int rows, int columns, QObject* parent)
        : QAbstractTableModel(parent),
          m_rows(rows),
          m_columns(columns),
          m_cells(static_cast<std::size_t>(rows * columns)),
          m_taken(m_cells) {}

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : m_rows;
    }

    int columnCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : m_columns;
    }

    QVariant data(const QModelIndex& index, int role) const override {
        const GridCell& cell = Cell(index.row(), index.column());
        if (role == Qt::DisplayRole)
            return cell.text;
        if (role == Qt::AccessibleTextRole)
            return accessibleText ? accessibleText(index.row(), index.column()) : cell.text;
        return {};
    }

    bool Contains(int row, int column) const {
        return row >= 0 && row < m_rows && column >= 0 && column < m_columns;
    }

    /// An empty cell where there is none.
    const GridCell& Cell(int row, int column) const {
        static const GridCell none;
        return Contains(row, column) ? m_cells[offset(row, column)] : none;
    }

    /// Of a cell of the grid.
    void SetCell(int row, int column, const GridCell& cell) { m_cells[offset(row, column)] = cell; }

    /// Whether a cell is other than when this was last asked of it.
    bool TakeChange(int row, int column) {
        const std::size_t at = offset(row, column);
        return std::exchange(m_taken[at], m_cells[at]) != m_cells[at];
    }

    /// Cells of this rectangle have changed.
    void TellViews(int top, int left, int bottom, int right) {
        Q_EMIT dataChanged(index(top, left), index(bottom, right));
    }

    /// What an assistive tool says of a cell; its text where there is none.
    std::function<QString(int row, int column)> accessibleText;

private:
    std::size_t offset(int row, int column) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(m_columns) +
               static_cast<std::size_t>(column);
    }

    int m_rows;
    int m_columns;
    std::vector<GridCell> m_cells;
    std::vector<GridCell> m_taken;
};
