// SPDX-License-Identifier: MIT
#pragma once

#include <QModelIndex>

class QAbstractItemView;

/// Tells assistive tools what the current cell of a grid says, and nothing while
/// the grid has not the focus.
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

private:
    struct Told {
        QModelIndex cell;
        QString text;
        bool operator==(const Told& other) const = default;
    };

    QAbstractItemView& m_grid;
    bool m_arriving = false;
    Told m_told;
};
