// SPDX-License-Identifier: MIT
#include "platform/flexgrid_test.h"

namespace {

TEST_F(FlexGrid, HasTheNumberOfCellsAskedFor) {
    EXPECT_EQ(grid->objectName(), QStringLiteral("MSFlexGrid1"));
    EXPECT_EQ(grid->Rows(), rows);
    EXPECT_EQ(grid->Cols(), columns);
    EXPECT_EQ(at(), QPoint(0, 0));
    EXPECT_EQ(grid->model()->rowCount(index(1, 2)), 0) << "cells hold no others";
    EXPECT_EQ(grid->model()->columnCount(index(1, 2)), 0);
    EXPECT_EQ(grid->focusPolicy(), Qt::StrongFocus);
}

TEST_F(FlexGrid, SizesAreExactInTwips) {
    const struct {
        Twips twips;
        int pixels;
    } sizes[] = {{{255}, 17}, {{195}, 13}, {{300}, 20}, {{15}, 1}, {{1500}, 100}};
    for (const auto& size : sizes) {
        grid->SetColWidth(2, size.twips);
        grid->SetRowHeight(3, size.twips);
        EXPECT_EQ(grid->columnWidth(2), size.pixels);
        EXPECT_EQ(grid->rowHeight(3), size.pixels);
        EXPECT_EQ(grid->ColWidth(2), size.twips);
        EXPECT_EQ(grid->RowHeight(3), size.twips);
    }
    grid->SetSize({3000}, {1500});
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
    grid->SetTextMatrix(1, 2, QStringLiteral("2"));
    grid->SetCellFontBold(true);
    grid->SetAllCellColors(blue, red);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            grid->SetRow(row);
            grid->SetCol(column);
            EXPECT_EQ(grid->CellBackColor(), blue);
            EXPECT_EQ(grid->CellForeColor(), red);
            EXPECT_FALSE(grid->CellFontBold());
        }
    }
    EXPECT_EQ(grid->TextMatrix(0, 0), QStringLiteral("1"));
    EXPECT_EQ(grid->TextMatrix(1, 2), QStringLiteral("2"));
    EXPECT_EQ(grid->TextMatrix(2, 1), QString());
}

TEST_F(FlexGrid, OutsideTheGridNothingHappens) {
    show();
    for (const QPoint cell : {QPoint(-1, 0), QPoint(0, -1), QPoint(columns, 0), QPoint(0, rows)}) {
        EXPECT_EQ(paintedBy([this, cell] {
                      grid->SetTextMatrix(cell.y(), cell.x(), QStringLiteral("x"));
                      setBack(cell.y(), cell.x(), red);
                      grid->SetCellForeColor(red);
                      grid->SetCellFontBold(true);
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

TEST_F(FlexGrid, ManyChangedCellsArePaintedWithinTheRectangleThatHoldsThem) {
    show();
    const int painted = paintedBy([this] {
        grid->SetRedraw(false);
        for (int row = 5; row < rows; ++row)
            for (int column = 0; column < 4; ++column)
                grid->SetTextMatrix(row, column, QStringLiteral("a"));
        grid->SetRedraw(true);
    });
    EXPECT_GE(painted, 12);
    EXPECT_LE(painted, 20) << "the toolkit adds a line of pixels at the end";
}

TEST_F(FlexGrid, EightChangedCellsArePaintedOneByOneAndNineWithWhatLiesBetweenThem) {
    show();
    const auto change = [this](const QString& text) {
        for (int row = 1; row < rows; row += 2)
            for (const int column : {1, 5})
                grid->SetTextMatrix(row, column, text);
    };
    const int eight = paintedBy([this, change] {
        const MSFlexGrid::DrawingOff drawingOff(*grid);
        change(QStringLiteral("a"));
    });
    EXPECT_EQ(eight, 8);
    const int nine = paintedBy([this, change] {
        const MSFlexGrid::DrawingOff drawingOff(*grid);
        change(QStringLiteral("b"));
        grid->SetTextMatrix(4, 3, QStringLiteral("b"));
    });
    EXPECT_GT(nine, 9);
}

TEST_F(FlexGrid, NothingIsPaintedWhileDrawingIsOff) {
    show();
    const int painted = paintedBy([this] {
        const MSFlexGrid::DrawingOff drawingOff(*grid);
        const int meanwhile = paintedBy([this] {
            const MSFlexGrid::DrawingOff offAsBefore(*grid);
            grid->SetTextMatrix(5, 1, QStringLiteral("a"));
        });
        EXPECT_EQ(meanwhile, 0);
    });
    EXPECT_EQ(painted, 1);
}

TEST_F(FlexGrid, WhereTheCurrentCellMovesTwoCellsArePainted) {
    show();
    pressAt(middleOf(3, 3));
    EXPECT_EQ(paintedBy([this] { QTest::keyClick(grid, Qt::Key_Home); }), 2);
}

TEST_F(FlexGrid, ACellIsMovedToWhateverRowAndColAre) {
    grid->MoveTo({2, 3});
    EXPECT_EQ(at(), QPoint(3, 2));
    EXPECT_EQ(grid->currentIndex(), index(2, 3));
    grid->SetRow(5);
    grid->SetCol(4);
    grid->MoveTo({2, 3});
    EXPECT_EQ(at(), QPoint(3, 2));
    grid->MoveTo({-1, 3});
    EXPECT_EQ(grid->currentIndex(), index(2, 3)) << "there is no such cell";
}

} // namespace
