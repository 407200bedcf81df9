// SPDX-License-Identifier: MIT
#pragma once

#include "platform/flexgrid.h"
#include "platform/twips.h"
#include "support/platform_test.h"

#include <QAccessible>
#include <QKeyEvent>

inline constexpr int rows = 8;
inline constexpr int columns = 7;
inline constexpr int cellWidth = 17; // pixels
inline constexpr int cellHeight = 13;
inline constexpr int frame = 1;
inline constexpr int red = 0x0000FF;
inline constexpr int blue = 0xFF0000;

/// A window that keeps the keys that its controls do not take.
class KeyCatcher : public QWidget {
public:
    std::vector<int> keys;

protected:
    void keyPressEvent(QKeyEvent* event) override { keys.push_back(event->key()); }
};

class FlexGrid : public PlatformTest {
protected:
    FlexGrid() : grid(new MSFlexGrid(QStringLiteral("MSFlexGrid1"), rows, columns, &window)) {
        for (int column = 0; column < columns; ++column)
            grid->SetColWidth(column, ToTwips(cellWidth));
        for (int row = 0; row < rows; ++row)
            grid->SetRowHeight(row, ToTwips(cellHeight));
        grid->SetSize(ToTwips(columns * cellWidth + 2 * frame + 20),
                      ToTwips(rows * cellHeight + 2 * frame + 20));
        QObject::connect(grid, &MSFlexGrid::MouseDown, grid, [this](Qt::MouseButton button) {
            presses.push_back({at(), button});
        });
        QObject::connect(grid, &MSFlexGrid::DblClick, grid, [this] { ++doubleClicks; });
    }

    /// Row and Col.
    QPoint at() const { return {grid->Col(), grid->Row()}; }

    void show() {
        showWithFocus(window, *grid);
        settle();
    }

    /// Lays out and paints what is due, at once.
    void settle() {
        processEvents();
        QEvent update(QEvent::UpdateRequest);
        QCoreApplication::sendEvent(&window, &update);
    }

    /// Cells painted because of an action.
    int paintedBy(const std::function<void()>& action) {
        settle();
        const int before = grid->PaintedCells();
        action();
        settle();
        return grid->PaintedCells() - before;
    }

    /// The middle of a cell, in the window.
    QPoint middleOf(int row, int column) const {
        return {frame + column * cellWidth + cellWidth / 2,
                frame + row * cellHeight + cellHeight / 2};
    }

    void pressAt(QPoint where, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(window.windowHandle(), button, {}, where);
    }

    void doubleClickAt(QPoint where, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseDClick(window.windowHandle(), button, {}, where);
    }

    void setBack(int row, int column, int color) {
        grid->SetRow(row);
        grid->SetCol(column);
        grid->SetCellBackColor(color);
    }

    QModelIndex index(int row, int column) const { return grid->model()->index(row, column); }

    struct Press {
        QPoint at;
        Qt::MouseButton button;
        bool operator==(const Press& other) const = default;
    };

    KeyCatcher window;
    MSFlexGrid* grid;
    std::vector<Press> presses;
    int doubleClicks = 0;
};
