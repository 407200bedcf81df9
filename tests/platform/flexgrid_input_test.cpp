// SPDX-License-Identifier: MIT
#include "platform/flexgrid_test.h"

#include <QLineEdit>
#include <QWindow>

namespace {

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
    QTest::keyClick(grid, Qt::Key_PageDown);
    EXPECT_EQ(at(), QPoint(6, 7));
    QTest::keyClick(grid, Qt::Key_PageUp);
    EXPECT_EQ(at(), QPoint(6, 0));
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
        std::vector<int> found(columns);
        for (int column = 0; int& span : found)
            span = grid->columnSpan(0, column++);
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

TEST_F(MergedRow, TheFirstCellIsMergedAsTheOthersAre) {
    grid->SetTextMatrix(0, 0, QStringLiteral("May"));
    setTitles({"May", "May", "May", "May", "May", "May"});
    EXPECT_EQ(spans(), std::vector<int>(columns, 7));
    setTitles({"a", "b", "c", "d", "e", "f"});
    EXPECT_EQ(spans(), std::vector<int>(columns, 1));
}

TEST_F(MergedRow, PairsAreOneCellUntilTheyDiffer) {
    setTitles({"a", "a", "b", "b", "c", "c"});
    EXPECT_EQ(spans(), (std::vector<int>{1, 2, 2, 2, 2, 2, 2}));
    setTitles({"a", "b", "c", "d", "e", "f"});
    EXPECT_EQ(spans(), std::vector<int>(columns, 1));
}

TEST_F(MergedRow, NoTitleReachesIntoTheRowBelow) {
    setTitles({"May", "May", "May", "May", "May", "May"});
    for (int column = 0; column < columns; ++column)
        EXPECT_EQ(grid->rowSpan(0, column), 1) << column;
    setTitles({"a", "b", "c", "d", "e", "f"});
    for (int column = 0; column < columns; ++column)
        EXPECT_EQ(grid->rowSpan(0, column), 1) << column;
    show();
    pressAt(middleOf(1, 1));
    EXPECT_EQ(presses, (std::vector<Press>{{{1, 1}, Qt::LeftButton}}));
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

TEST_F(FlexGrid, TheCurrentCellStaysWhileTheUserIsInAnotherWindow) {
    grid->SetSelectedCell({2, 3});
    show();
    pressAt(middleOf(5, 4));
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    ASSERT_TRUE(waitUntil([this] { return grid->hasFocus(); }));
    EXPECT_EQ(at(), QPoint(4, 5));
}

TEST_F(MergedRow, OfATitleThatChangesNothingElseIsPainted) {
    setTitles({"May", "May", "May", "May", "May", "May"});
    show();
    EXPECT_LE(paintedBy([this] {
                  setTitles({"June", "June", "June", "June", "June", "June"});
              }),
              columns);
}

TEST_F(MergedRow, TheFirstTwoCellsAreMergedWhereTheOthersStayAsTheyAre) {
    grid->SetTextMatrix(0, 0, QStringLiteral("z"));
    setTitles({"a", "b", "c", "d", "e", "f"});
    EXPECT_EQ(spans(), std::vector<int>(columns, 1));
    grid->SetTextMatrix(0, 0, QStringLiteral("a"));
    EXPECT_EQ(spans(), (std::vector<int>{2, 2, 1, 1, 1, 1, 1}));
}

TEST_F(MergedRow, TheToolkitHasNothingToComplainOf) {
    static int complaints;
    complaints = 0;
    const QtMessageHandler former = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString&) { ++complaints; });
    setTitles({"a", "a", "a", "b", "c", "d"});
    setTitles({"a", "b", "b", "b", "c", "d"});
    qInstallMessageHandler(former);
    EXPECT_EQ(complaints, 0);
}

} // namespace
