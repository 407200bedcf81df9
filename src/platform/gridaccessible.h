// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessibleWidget>
#include <unordered_map>

class MSFlexGrid;

/// A grid as assistive tools see it: a table of cells without headers. Children
/// are counted row by row, hidden columns with them. A cell is named by the
/// grid's accessible text; one that has none, or that stands under a merged
/// title, is told as invisible. Pressing a cell does what Return on it does.
class GridAccessible : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    /// From now on every MSFlexGrid is seen so.
    static void Install();

    explicit GridAccessible(MSFlexGrid* grid);
    ~GridAccessible() override;

    QString text(QAccessible::Text kind) const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QAccessibleInterface* cellAt(int row, int column) const override;
    int rowCount() const override;
    int columnCount() const override;
    int selectedCellCount() const override;
    QList<QAccessibleInterface*> selectedCells() const override;

    // Rows and columns are neither described nor selected as a whole.
    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QString columnDescription(int) const override { return {}; }
    QString rowDescription(int) const override { return {}; }
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return 0; }
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override { return {}; }
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int) const override { return false; }
    bool selectRow(int) override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent*) override {}

private:
    MSFlexGrid* grid() const;

    mutable std::unordered_map<int, QAccessible::Id> m_cells; ///< those asked for so far
};
