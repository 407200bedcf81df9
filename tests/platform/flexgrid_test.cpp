// SPDX-License-Identifier: MIT
#include "platform/flexgrid.h"

#include "platform/color.h"
#include "platform/twips.h"
#include "support/widget_test.h"

#include <QAccessible>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QWindow>

namespace {

constexpr int rows = 8;
constexpr int columns = 7;
constexpr int cellWidth = 17; // pixels
constexpr int cellHeight = 13;
constexpr int frame = 1;
constexpr int red = 0x0000FF;
constexpr int blue = 0xFF0000;

/// A window that keeps the keys that its controls do not take.
class KeyCatcher : public QWidget {
public:
    std::vector<int> keys;

protected:
    void keyPressEvent(QKeyEvent* event) override { keys.push_back(event->key()); }
};

class FlexGrid : public WidgetTest {
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
        window.show();
        window.activateWindow();
        grid->setFocus();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        ASSERT_TRUE(waitUntil([this] { return grid->hasFocus(); }));
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

    QAccessibleInterface* accessibleCell(int row, int column) {
        return QAccessible::queryAccessibleInterface(grid)->tableInterface()->cellAt(row, column);
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

TEST_F(FlexGrid, HasTheNumberOfCellsAskedFor) {
    EXPECT_EQ(grid->objectName(), QStringLiteral("MSFlexGrid1"));
    EXPECT_EQ(grid->Rows(), rows);
    EXPECT_EQ(grid->Cols(), columns);
    EXPECT_EQ(at(), QPoint(0, 0));
}

TEST_F(FlexGrid, SizesAreExactInTwips) {
    const struct {
        int twips;
        int pixels;
    } sizes[] = {{255, 17}, {195, 13}, {300, 20}, {15, 1}, {1500, 100}};
    for (const auto& size : sizes) {
        grid->SetColWidth(2, size.twips);
        grid->SetRowHeight(3, size.twips);
        EXPECT_EQ(grid->columnWidth(2), size.pixels);
        EXPECT_EQ(grid->rowHeight(3), size.pixels);
        EXPECT_EQ(grid->ColWidth(2), size.twips);
        EXPECT_EQ(grid->RowHeight(3), size.twips);
    }
    grid->SetSize(3000, 1500);
    EXPECT_EQ(grid->size(), QSize(200, 100));
}

TEST_F(FlexGrid, CellsBeginAtTheGridsCorner) {
    show();
    EXPECT_EQ(grid->visualRect(index(0, 0)).topLeft(), QPoint(0, 0));
    EXPECT_EQ(grid->viewport()->pos(), QPoint(frame, frame));
    EXPECT_EQ(grid->visualRect(index(2, 3)), QRect(51, 26, cellWidth, cellHeight));
}

TEST_F(FlexGrid, TextMatrixHoldsTextsByCell) {
    grid->SetTextMatrix(1, 2, QStringLiteral("31"));
    EXPECT_EQ(grid->TextMatrix(1, 2), QStringLiteral("31"));
    EXPECT_EQ(grid->TextMatrix(2, 1), QString());
    EXPECT_EQ(at(), QPoint(0, 0)) << "the current cell does not move";
}

TEST_F(FlexGrid, CellPropertiesActOnTheCurrentCellOnly) {
    grid->SetRow(1);
    grid->SetCol(2);
    grid->SetCellBackColor(red);
    grid->SetCellForeColor(blue);
    grid->SetCellFontBold(true);
    EXPECT_EQ(grid->CellBackColor(), red);
    EXPECT_EQ(grid->CellForeColor(), blue);
    EXPECT_TRUE(grid->CellFontBold());
    grid->SetCol(3);
    EXPECT_EQ(grid->CellBackColor(), 0xFFFFFF);
    EXPECT_EQ(grid->CellForeColor(), 0);
    EXPECT_FALSE(grid->CellFontBold());
}

TEST_F(FlexGrid, AllCellColorsAreSetAtOnceAndNotBold) {
    grid->SetTextMatrix(0, 0, QStringLiteral("1"));
    grid->SetCellFontBold(true);
    grid->SetAllCellColors(blue, red);
    for (const QPoint cell : {QPoint(0, 0), QPoint(columns - 1, rows - 1)}) {
        grid->SetRow(cell.y());
        grid->SetCol(cell.x());
        EXPECT_EQ(grid->CellBackColor(), blue);
        EXPECT_EQ(grid->CellForeColor(), red);
        EXPECT_FALSE(grid->CellFontBold());
    }
    EXPECT_EQ(grid->TextMatrix(0, 0), QStringLiteral("1"));
}

TEST_F(FlexGrid, OutsideTheGridNothingHappens) {
    show();
    for (const QPoint cell : {QPoint(-1, 0), QPoint(0, -1), QPoint(columns, 0), QPoint(0, rows)}) {
        EXPECT_EQ(paintedBy([this, cell] {
                      grid->SetTextMatrix(cell.y(), cell.x(), QStringLiteral("x"));
                      setBack(cell.y(), cell.x(), red);
                      grid->SetCellForeColor(red);
                      grid->SetCellFontBold(true);
                      grid->Refresh();
                  }),
                  0);
        EXPECT_EQ(grid->TextMatrix(cell.y(), cell.x()), QString());
        EXPECT_EQ(grid->CellBackColor(), 0xFFFFFF);
        EXPECT_EQ(at(), cell) << "kept as it was set";
    }
}

TEST_F(FlexGrid, ACellThatIsSetToWhatItHoldsIsNotPainted) {
    show();
    setBack(2, 3, red);
    grid->SetTextMatrix(4, 5, QStringLiteral("5"));
    EXPECT_EQ(paintedBy([this] {
                  setBack(2, 3, red);
                  grid->SetCellForeColor(0);
                  grid->SetCellFontBold(false);
                  grid->SetTextMatrix(4, 5, QStringLiteral("5"));
              }),
              0);
}

TEST_F(FlexGrid, AChangedCellIsPaintedAlone) {
    show();
    EXPECT_EQ(paintedBy([this] { grid->SetTextMatrix(4, 5, QStringLiteral("6")); }), 1);
}

TEST_F(FlexGrid, WithRedrawOffNothingIsPaintedAndOnPaintsOnce) {
    show();
    EXPECT_EQ(paintedBy([this] {
                  grid->SetRedraw(false);
                  for (int column = 0; column < columns; column += 2)
                      grid->SetTextMatrix(5, column, QStringLiteral("a"));
                  grid->Refresh();
              }),
              0);
    EXPECT_EQ(paintedBy([this] {
                  for (int column = 0; column < columns; column += 2)
                      grid->SetTextMatrix(5, column, QStringLiteral("b"));
                  grid->SetRedraw(true);
                  grid->SetRedraw(true);
              }),
              4);
}

TEST_F(FlexGrid, CellsThatAreBackWhenRedrawIsOnAreNotPainted) {
    show();
    EXPECT_EQ(paintedBy([this] {
                  grid->SetRedraw(false);
                  grid->SetTextMatrix(5, 1, QStringLiteral("a"));
                  grid->SetTextMatrix(5, 1, QString());
                  grid->SetRedraw(true);
                  grid->Refresh();
              }),
              0);
}

TEST_F(FlexGrid, ManyChangedCellsArePaintedOnce) {
    show();
    const int painted = paintedBy([this] {
        grid->SetRedraw(false);
        grid->SetAllCellColors(blue, 0);
        grid->SetAllCellColors(red, 0);
        grid->SetRedraw(true);
    });
    EXPECT_EQ(painted, rows * columns);
}

TEST_F(FlexGrid, APressMovesTheCurrentCellAndThenTells) {
    show();
    const Qt::MouseButton buttons[] = {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};
    int column = 1;
    for (const Qt::MouseButton button : buttons) {
        QTest::mousePress(window.windowHandle(), button, {}, middleOf(2, column));
        ASSERT_EQ(presses.size(), 1U) << "at the press, before the release";
        EXPECT_EQ(presses.back(), (Press{{column, 2}, button}));
        QTest::mouseRelease(window.windowHandle(), button, {}, middleOf(2, column));
        EXPECT_EQ(presses.size(), 1U);
        EXPECT_EQ(grid->currentIndex(), index(2, column));
        presses.clear();
        column += 2;
    }
}

TEST_F(FlexGrid, AnotherPressOnTheCurrentCellIsToldToo) {
    show();
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton})
        pressAt(middleOf(2, 1), button);
    EXPECT_EQ(presses.size(), 3U);
}

TEST_F(FlexGrid, APressBesideTheCellsTellsNothing) {
    show();
    pressAt(middleOf(2, 1));
    presses.clear();
    for (const QPoint beside :
         {QPoint(columns * cellWidth + 5, 20), QPoint(20, rows * cellHeight + 5),
          QPoint(columns * cellWidth + 5, rows * cellHeight + 5)}) {
        pressAt(beside);
        doubleClickAt(beside, Qt::RightButton);
    }
    EXPECT_EQ(presses.size(), 0U);
    EXPECT_EQ(at(), QPoint(1, 2));
    EXPECT_EQ(grid->currentIndex(), index(2, 1));
}

TEST_F(FlexGrid, ADoubleClickIsOnePressAndOneDoubleClick) {
    show();
    doubleClickAt(middleOf(3, 4));
    EXPECT_EQ(presses, (std::vector<Press>{{{4, 3}, Qt::LeftButton}}));
    EXPECT_EQ(doubleClicks, 1);
}

TEST_F(FlexGrid, ADoubleClickOfAnotherButtonIsNone) {
    show();
    doubleClickAt(middleOf(3, 4), Qt::RightButton);
    doubleClickAt(middleOf(3, 4), Qt::MiddleButton);
    EXPECT_EQ(doubleClicks, 0);
    EXPECT_EQ(presses.size(), 2U);
}

TEST_F(FlexGrid, ArrowKeysMoveTheCurrentCell) {
    show();
    pressAt(middleOf(3, 3));
    presses.clear();
    const struct {
        Qt::Key key;
        QPoint at;
    } steps[] = {{Qt::Key_Right, {4, 3}}, {Qt::Key_Down, {4, 4}}, {Qt::Key_Left, {3, 4}},
                 {Qt::Key_Up, {3, 3}},    {Qt::Key_Home, {0, 3}}, {Qt::Key_Left, {0, 3}},
                 {Qt::Key_End, {6, 3}},   {Qt::Key_Right, {6, 3}}};
    for (const auto& step : steps) {
        QTest::keyClick(grid, step.key);
        EXPECT_EQ(at(), step.at) << step.key;
    }
    EXPECT_EQ(presses.size(), 0U);
}

TEST_F(FlexGrid, ReturnEnterAndSpacePressTheCurrentCell) {
    show();
    pressAt(middleOf(3, 3));
    QTest::keyClick(grid, Qt::Key_Right);
    presses.clear();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space})
        QTest::keyClick(grid, key);
    EXPECT_EQ(presses, std::vector<Press>(3, {{4, 3}, Qt::LeftButton}));
    EXPECT_EQ(window.keys.size(), 0U);
}

TEST_F(FlexGrid, OtherKeysReachTheParent) {
    show();
    const std::vector<int> keys{Qt::Key_A, Qt::Key_5, Qt::Key_Escape, Qt::Key_F2, Qt::Key_Delete};
    for (const int key : keys)
        QTest::keyClick(grid, static_cast<Qt::Key>(key));
    EXPECT_EQ(window.keys, keys);
    EXPECT_EQ(presses.size(), 0U);
}

TEST_F(FlexGrid, TabLeavesTheGrid) {
    auto* next = new QLineEdit(&window);
    next->move(0, 150);
    QWidget::setTabOrder(grid, next);
    show();
    QTest::keyClick(grid, Qt::Key_Tab);
    EXPECT_TRUE(next->hasFocus());
}

class MergedRow : public FlexGrid {
protected:
    MergedRow() { grid->SetMergeRow(0); }

    void setTitles(const char* const (&titles)[6]) {
        grid->SetRedraw(false);
        for (int column = 1; column <= 6; ++column)
            grid->SetTextMatrix(0, column, QLatin1String(titles[column - 1]));
        grid->SetRedraw(true);
    }

    std::vector<int> spans() const {
        std::vector<int> found;
        for (int column = 0; column < columns; ++column)
            found.push_back(grid->columnSpan(0, column));
        return found;
    }
};

TEST_F(MergedRow, EqualTextsAreOneCellUntilTheyDiffer) {
    setTitles({"May", "May", "May", "May", "May", "May"});
    EXPECT_EQ(spans(), (std::vector<int>{1, 6, 6, 6, 6, 6, 6}));
    setTitles({"a", "b", "c", "d", "e", "f"});
    EXPECT_EQ(spans(), std::vector<int>(columns, 1));
}

TEST_F(MergedRow, BlankTextsBesideATitleAreNotMerged) {
    grid->SetTextMatrix(0, 0, QStringLiteral("April"));
    setTitles({"May", "May", "May", "May", "May", "May"});
    setTitles({"", "", "", "", "", ""});
    EXPECT_EQ(spans(), std::vector<int>(columns, 1));
}

TEST_F(MergedRow, EqualTextsAreMergedWhateverWasMergedBefore) {
    const std::vector<int> whole{1, 6, 6, 6, 6, 6, 6};
    setTitles({"a", "a", "a", "b", "b", "b"});
    EXPECT_EQ(spans(), (std::vector<int>{1, 3, 3, 3, 3, 3, 3}));
    setTitles({"a", "a", "a", "a", "a", "a"});
    EXPECT_EQ(spans(), whole);
    setTitles({"b", "a", "a", "a", "a", "a"});
    EXPECT_EQ(spans(), (std::vector<int>{1, 1, 5, 5, 5, 5, 5}));
    setTitles({"a", "a", "a", "a", "a", "a"});
    EXPECT_EQ(spans(), whole);
}

TEST_F(MergedRow, OtherRowsAreNotMerged) {
    grid->SetTextMatrix(1, 1, QStringLiteral("x"));
    grid->SetTextMatrix(1, 2, QStringLiteral("x"));
    EXPECT_EQ(grid->columnSpan(1, 1), 1);
}

TEST_F(MergedRow, APressOnAMergedCellIsOneOnItsFirst) {
    setTitles({"May", "May", "May", "May", "May", "May"});
    show();
    pressAt(middleOf(0, 4));
    EXPECT_EQ(presses, (std::vector<Press>{{{1, 0}, Qt::LeftButton}}));
}

TEST_F(FlexGrid, TheMarkedCellIsToldAsSelected) {
    grid->SetSelectedColor(red);
    show();
    setBack(2, 3, red);
    EXPECT_TRUE(grid->selectionModel()->isSelected(index(2, 3)));
    EXPECT_TRUE(accessibleCell(2, 3)->state().selected);
    EXPECT_FALSE(accessibleCell(2, 4)->state().selected);
    setBack(2, 4, red);
    setBack(2, 3, blue);
    EXPECT_FALSE(accessibleCell(2, 3)->state().selected);
    EXPECT_TRUE(accessibleCell(2, 4)->state().selected);
    EXPECT_EQ(grid->selectionModel()->selectedIndexes().size(), 1);
}

TEST_F(FlexGrid, TheMarkedCellStaysSelectedWhenTheCurrentOneMoves) {
    grid->SetSelectedColor(red);
    setBack(2, 3, red);
    show();
    pressAt(middleOf(5, 5));
    QTest::keyClick(grid, Qt::Key_Left);
    EXPECT_TRUE(grid->selectionModel()->isSelected(index(2, 3)));
    EXPECT_EQ(grid->selectionModel()->selectedIndexes().size(), 1);
}

TEST_F(FlexGrid, AssistiveToolsReadItsAccessibleTexts) {
    grid->SetTextMatrix(1, 2, QStringLiteral("31"));
    EXPECT_EQ(accessibleCell(1, 2)->text(QAccessible::Name), QStringLiteral("31"));
    grid->SetAccessibleText([this](int row, int column) {
        return QStringLiteral("day ") + grid->TextMatrix(row, column);
    });
    EXPECT_EQ(accessibleCell(1, 2)->text(QAccessible::Name), QStringLiteral("day 31"));
}

TEST_F(FlexGrid, NothingButCellsIsSeen) {
    show();
    EXPECT_FALSE(grid->horizontalHeader()->isVisible());
    EXPECT_FALSE(grid->verticalHeader()->isVisible());
    grid->SetSize(600, 600); // smaller than its cells
    settle();
    EXPECT_FALSE(grid->horizontalScrollBar()->isVisible());
    EXPECT_FALSE(grid->verticalScrollBar()->isVisible());
}

TEST_F(FlexGrid, CellsCannotBeEdited) {
    show();
    doubleClickAt(middleOf(1, 1));
    QTest::keyClick(grid, Qt::Key_F2);
    QTest::keyClick(grid, Qt::Key_X);
    EXPECT_EQ(grid->findChildren<QLineEdit*>().size(), 0);
    EXPECT_EQ(grid->TextMatrix(1, 1), QString());
}

TEST_F(FlexGrid, DraggingSelectsNothing) {
    show();
    QWindow* handle = window.windowHandle();
    QTest::mousePress(handle, Qt::LeftButton, {}, middleOf(1, 1));
    for (int step = 2; step <= 4; ++step)
        QTest::mouseMove(handle, middleOf(step, step));
    QTest::mouseRelease(handle, Qt::LeftButton, {}, middleOf(4, 4));
    EXPECT_FALSE(grid->selectionModel()->hasSelection());
    EXPECT_EQ(at(), QPoint(1, 1));
    EXPECT_EQ(presses.size(), 1U);
}

TEST_F(FlexGrid, CellsArePaintedInTheirExactColors) {
    grid->SetBackColor(0xC0FFFF);
    grid->SetAllCellColors(0xC0FFC0, 0);
    setBack(2, 3, red);
    setBack(7, 6, 0xFFFFC0);
    setBack(0, 0, blue);
    show();
    const QImage image = grid->grab().toImage();
    const struct {
        int row;
        int column;
        int color;
    } cells[] = {
        {2, 3, red}, {2, 2, 0xC0FFC0}, {3, 3, 0xC0FFC0}, {7, 6, 0xFFFFC0}, {0, 1, 0xC0FFC0}};
    for (const auto& cell : cells)
        EXPECT_EQ(image.pixelColor(frame + cell.column * cellWidth, frame + cell.row * cellHeight),
                  ToColor(cell.color))
            << cell.row << ' ' << cell.column;
    EXPECT_EQ(image.pixelColor(frame + columns * cellWidth + 5, 30), ToColor(0xC0FFFF));
}

TEST_F(FlexGrid, TextsArePaintedInTheirColor) {
    grid->SetAllCellColors(0xFFFFFF, red);
    show();
    const QRect cell(frame + 3 * cellWidth, frame + 2 * cellHeight, cellWidth, cellHeight);
    const QImage blank = grid->grab(cell).toImage();
    grid->SetTextMatrix(2, 3, QStringLiteral("88"));
    settle();
    const QImage image = grid->grab(cell).toImage();
    EXPECT_NE(image, blank);
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y)
            EXPECT_EQ(image.pixelColor(x, y).red(), 255) << x << ' ' << y;
    }
}

TEST_F(FlexGrid, TextsTooWideForTheirCellStayInside) {
    grid->SetTextMatrix(2, 3, QStringLiteral("wider than the cell"));
    show();
    EXPECT_FALSE(grid->grab().isNull());
}

TEST_F(FlexGrid, HiddenColumnsTakeNoRoom) {
    show();
    grid->SetColHidden(6, true);
    EXPECT_EQ(grid->columnAt(6 * cellWidth + 3), -1);
    grid->SetColHidden(6, false);
    EXPECT_EQ(grid->columnAt(6 * cellWidth + 3), 6);
    EXPECT_EQ(grid->ColWidth(6), ToTwips(cellWidth));
}

} // namespace
