// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <functional>
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
    Q_OBJECT

public:
    GridModel(int rows, int columns, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    bool Contains(int row, int column) const;

    /// An empty cell where there is none.
    const GridCell& Cell(int row, int column) const;
    void SetCell(int row, int column, const GridCell& cell);

    /// Whether a cell is other than when this was last asked of it.
    bool TakeChange(int row, int column);

    /// Cells of this rectangle have changed.
    void TellViews(int top, int left, int bottom, int right);

    /// What an assistive tool says of a cell; its text where there is none.
    std::function<QString(int row, int column)> accessibleText;

private:
    std::size_t offset(int row, int column) const;

    int m_rows;
    int m_columns;
    std::vector<GridCell> m_cells;
    std::vector<GridCell> m_taken;
};
