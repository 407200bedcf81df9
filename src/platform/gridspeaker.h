// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QAbstractItemView;
class QItemSelection;

/// Tells assistive tools what changes in a grid: which cells are marked, and
/// what the current cell says, the latter only while the grid has the focus.
class GridSpeaker {
public:
    explicit GridSpeaker(QAbstractItemView& grid) : m_grid(grid) {}

    /// Tells the current cell when it is another, or says something else, than
    /// when it was last told. A cell that says nothing is passed over.
    void TellCurrent();

    /// The focus has come to the grid. Nothing of the current cell is told before
    /// EndArrival, which tells it whatever was told before.
    void BeginArrival() { m_arriving = true; }
    void EndArrival();

    void TellSelection(const QItemSelection& selected, const QItemSelection& deselected);

private:
    QAbstractItemView& m_grid;
    bool m_arriving = false;
    int m_toldCell = -1; ///< its number as the tools count it
    QString m_toldText;
};
