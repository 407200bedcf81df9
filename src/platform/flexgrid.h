// SPDX-License-Identifier: MIT
#pragma once

#include "platform/gridmodel.h"
#include "platform/gridspeaker.h"
#include "platform/spokenanswer.h"
#include "platform/twips.h"

#include <QTableView>

class GridPainter;

/// A grid of cells with their own text, colours and weight, in the classic
/// terms. Rows and columns are counted from 0, colours are 0x00BBGGRR numbers. Row and Col name the
/// current cell, on which the Cell... properties act; outside the grid they do nothing.
///
/// A cell that is set to what it already holds raises no repaint. While Redraw
/// is off nothing is painted; turning it on paints what has changed, once.
///
/// A press of a mouse button on a cell makes it current and then raises
/// MouseDown; a press beside the cells raises nothing. The arrow keys move the
/// current cell, Return and Space on it do what a left press does, with Ctrl what a
/// double click does. When the focus comes to the grid, the selected cell becomes current.
/// What changes in the current cell is told by itself: to the user it answers nothing.
class MSFlexGrid : public QTableView, public Speaker {
    Q_OBJECT

public:
    MSFlexGrid(const QString& name, int rows, int columns, QWidget* parent);

    int Rows() const { return m_model->rowCount(); }
    int Cols() const { return m_model->columnCount(); }
    int Row() const { return m_row; }
    int Col() const { return m_column; }
    void SetRow(int row) { m_row = row; }
    void SetCol(int column) { m_column = column; }

    QString TextMatrix(int row, int column) const { return m_model->Cell(row, column).text; }
    void SetTextMatrix(int row, int column, const QString& text) {
        change(row, column, &GridCell::text, text);
    }

    int CellBackColor() const { return currentCell().back; }
    int CellForeColor() const { return currentCell().fore; }
    bool CellFontBold() const { return currentCell().bold; }
    void SetCellBackColor(int color) { change(m_row, m_column, &GridCell::back, color); }
    void SetCellForeColor(int color) { change(m_row, m_column, &GridCell::fore, color); }
    void SetCellFontBold(bool bold) { change(m_row, m_column, &GridCell::bold, bold); }

    /// The ground on which cells without a colour of their own stand.
    void SetBackColor(int color);

    /// Gives every cell this background and text colour, not bold.
    void SetAllCellColors(int back, int fore);

    Twips ColWidth(int column) const { return ToTwips(columnWidth(column)); }
    Twips RowHeight(int row) const { return ToTwips(rowHeight(row)); }
    void SetColWidth(int column, Twips width) { setColumnWidth(column, ToPixels(width)); }
    void SetRowHeight(int row, Twips height) { setRowHeight(row, ToPixels(height)); }
    void SetSize(Twips width, Twips height) { setFixedSize(ToPixels(width), ToPixels(height)); }
    void SetColHidden(int column, bool hidden) { setColumnHidden(column, hidden); }

    /// Equal texts that stand side by side in this row are shown as one cell.
    void SetMergeRow(int row) { m_mergeRows.push_back(row); }

    void SetRedraw(bool on);

    /// Redraw off for as long as it lives, and then as it was before.
    class DrawingOff {
    public:
        explicit DrawingOff(MSFlexGrid& grid) : m_grid(grid), m_former(grid.m_redraw) {
            m_grid.SetRedraw(false);
        }
        ~DrawingOff() { m_grid.SetRedraw(m_former); }
        DrawingOff(const DrawingOff&) = delete;
        DrawingOff& operator=(const DrawingOff&) = delete;

    private:
        MSFlexGrid& m_grid;
        bool m_former;
    };

    bool Contains(GridPlace cell) const { return m_model->Contains(cell.row, cell.column); }

    /// Makes a cell current and shows it as that.
    void MoveTo(GridPlace cell);

    /// The cell that is told to assistive tools as selected; a place outside the grid is none.
    GridPlace SelectedCell() const { return m_selected; }
    void SetSelectedCell(GridPlace cell);

    /// Height of the digits' font in pixels.
    void SetFontPixelSize(int pixels);

    /// What an assistive tool says of a cell; without, its text.
    void SetAccessibleText(std::function<QString(int row, int column)> text) {
        m_model->accessibleText = std::move(text);
    }

    /// Gives the grid the focus, makes a cell current and presses it as Return does.
    void PressCell(int row, int column);

    /// Cells painted since the grid was made.
    int PaintedCells() const;

Q_SIGNALS:
    void MouseDown(Qt::MouseButton button);
    void DblClick();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    bool event(QEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;
    void scrollTo(const QModelIndex& index, ScrollHint hint) override;

private:
    const GridCell& currentCell() const { return m_model->Cell(m_row, m_column); }

    template <typename Value>
    void change(int row, int column, Value GridCell::*part, const Value& value) {
        GridCell cell = m_model->Cell(row, column);
        cell.*part = value;
        changeCell(row, column, cell);
    }

    void changeCell(int row, int column, const GridCell& cell);
    void announceChanges();
    void repaintCells(const std::vector<QPoint>& cells);
    void showSelected();
    void moveCurrent(const QModelIndex& index);

    GridModel* m_model;
    GridPainter* m_painter;
    GridSpeaker m_speaker{*this};
    int m_row = 0;
    int m_column = 0;
    GridPlace m_selected{-1, -1};
    bool m_redraw = true;
    std::vector<QPoint> m_changedCells; // x column, y row
    std::vector<int> m_mergeRows;
};
