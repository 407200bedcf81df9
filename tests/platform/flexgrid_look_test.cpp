// SPDX-License-Identifier: MIT
#include "platform/flexgrid_test.h"
#include "support/ink.h"
#include "support/platform_accessible.h"

#include "platform/color.h"

#include <QAccessible>
#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <QStyle>

namespace {

TEST_F(FlexGrid, TheMarkedCellIsToldAsSelected) {
    show();
    grid->SetSelectedCell({2, 3});
    EXPECT_TRUE(grid->selectionModel()->isSelected(index(2, 3)));
    grid->SetTextMatrix(2, 3, QStringLiteral("3"));
    grid->SetTextMatrix(2, 4, QStringLiteral("4"));
    EXPECT_TRUE(accessibleCell(*grid, 2, 3)->state().selected);
    EXPECT_FALSE(accessibleCell(*grid, 2, 4)->state().selected);
    grid->SetSelectedCell({2, 4});
    EXPECT_FALSE(accessibleCell(*grid, 2, 3)->state().selected);
    EXPECT_TRUE(accessibleCell(*grid, 2, 4)->state().selected);
    EXPECT_EQ(grid->selectionModel()->selectedIndexes().size(), 1);
    grid->SetSelectedCell({-1, -1});
    EXPECT_FALSE(grid->selectionModel()->hasSelection());
}

TEST_F(FlexGrid, TheMarkedCellIsSelectedWithWhatIsPaintedOfIt) {
    grid->SetRedraw(false);
    grid->SetSelectedCell({2, 3});
    EXPECT_FALSE(grid->selectionModel()->hasSelection());
    grid->SetRedraw(true);
    EXPECT_EQ(grid->selectionModel()->selectedIndexes(), QModelIndexList{index(2, 3)});
}

TEST_F(FlexGrid, TheMarkedCellStaysSelectedWhenTheCurrentOneMoves) {
    grid->SetSelectedCell({2, 3});
    show();
    pressAt(middleOf(5, 5));
    QTest::keyClick(grid, Qt::Key_Left);
    EXPECT_TRUE(grid->selectionModel()->isSelected(index(2, 3)));
    EXPECT_EQ(grid->selectionModel()->selectedIndexes().size(), 1);
}

TEST_F(FlexGrid, AssistiveToolsReadItsAccessibleTexts) {
    grid->SetTextMatrix(1, 2, QStringLiteral("31"));
    EXPECT_EQ(accessibleCell(*grid, 1, 2)->text(QAccessible::Name), QStringLiteral("31"));
    grid->SetAccessibleText([this](int row, int column) {
        return QStringLiteral("day ") + grid->TextMatrix(row, column);
    });
    EXPECT_EQ(accessibleCell(*grid, 1, 2)->text(QAccessible::Name), QStringLiteral("day 31"));
}

TEST_F(FlexGrid, NothingButCellsIsSeen) {
    show();
    EXPECT_FALSE(grid->horizontalHeader()->isVisible());
    EXPECT_FALSE(grid->verticalHeader()->isVisible());
    grid->SetSize({600}, {600}); // smaller than its cells
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

TEST_F(FlexGrid, HiddenColumnsTakeNoRoom) {
    show();
    grid->SetColHidden(6, true);
    EXPECT_EQ(grid->columnAt(6 * cellWidth + 3), -1);
    grid->SetColHidden(6, false);
    EXPECT_EQ(grid->columnAt(6 * cellWidth + 3), 6);
    EXPECT_EQ(grid->ColWidth(6), ToTwips(cellWidth));
}

TEST_F(FlexGrid, ItsFrameIsOnePixelInAStyleOfWideFramesToo) {
    const QString former = QApplication::style()->name();
    QApplication::setStyle(QStringLiteral("windows"));
    MSFlexGrid another(QStringLiteral("MSFlexGrid2"), 2, 2, nullptr);
    another.SetSize({600}, {600});
    another.show();
    processEvents();
    const QRect cells = another.viewport()->geometry();
    another.hide();
    QApplication::setStyle(former);
    EXPECT_EQ(cells, QRect(1, 1, 38, 38));
}

TEST_F(FlexGrid, ACellIsSelectedBeforeItsChangeIsTold) {
    bool wasSelected = false;
    QObject::connect(grid->model(), &QAbstractItemModel::dataChanged, grid, [this, &wasSelected] {
        wasSelected = grid->selectionModel()->isSelected(index(2, 3));
    });
    grid->SetRedraw(false);
    grid->SetTextMatrix(2, 3, QStringLiteral("3"));
    grid->SetSelectedCell({2, 3});
    grid->SetRedraw(true);
    EXPECT_TRUE(wasSelected);
}

/// The height of a digit in a grid that has its letters from its window.
int digitHeightAt(int pixels) {
    QWidget parent;
    QFont font = parent.font();
    font.setPixelSize(pixels);
    parent.setFont(font);
    MSFlexGrid cell(QStringLiteral("MSFlexGrid2"), 1, 1, &parent);
    cell.SetColWidth(0, ToTwips(40));
    cell.SetRowHeight(0, ToTwips(40));
    cell.SetSize(ToTwips(42), ToTwips(42));
    cell.SetTextMatrix(0, 0, QStringLiteral("8"));
    return InkOf(cell.viewport()->grab(QRect(0, 0, 40, 40)).toImage()).height();
}

TEST_F(FlexGrid, ItsLettersAreThoseOfItsWindowUntilTheyAreSet) {
    EXPECT_GT(digitHeightAt(20), digitHeightAt(10) + 4);
}

} // namespace
