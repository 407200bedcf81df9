// SPDX-License-Identifier: MIT
#include "controls/arrowkeys.h"

#include <Qt>
#include <gtest/gtest.h>

namespace {

/// In two bands of three columns: rows 1 to 7 and 9 to 15 stand under their titles.
GridPlace nextInBands(int arrowKey, GridPlace cell) {
    return NextBy(arrowKey, cell, {1, 3});
}

TEST(ArrowKeys, LeftAndRightLeadToTheColumnBeforeAndAfter) {
    EXPECT_EQ(nextInBands(Qt::Key_Left, {3, 2}), (GridPlace{3, 1}));
    EXPECT_EQ(nextInBands(Qt::Key_Right, {3, 1}), (GridPlace{3, 2}));
}

TEST(ArrowKeys, DownLeadsThroughAllColumnsOfABandAndThenThroughThoseOfTheNext) {
    EXPECT_EQ(nextInBands(Qt::Key_Down, {1, 1}), (GridPlace{2, 1}));
    EXPECT_EQ(nextInBands(Qt::Key_Down, {6, 1}), (GridPlace{7, 1}));
    EXPECT_EQ(nextInBands(Qt::Key_Down, {7, 0}), (GridPlace{1, 1}));
    EXPECT_EQ(nextInBands(Qt::Key_Down, {7, 2}), (GridPlace{9, 0}));
    EXPECT_EQ(nextInBands(Qt::Key_Down, {15, 1}), (GridPlace{9, 2}));
}

TEST(ArrowKeys, UpLeadsTheSameWayBack) {
    EXPECT_EQ(nextInBands(Qt::Key_Up, {2, 1}), (GridPlace{1, 1}));
    EXPECT_EQ(nextInBands(Qt::Key_Up, {7, 1}), (GridPlace{6, 1}));
    EXPECT_EQ(nextInBands(Qt::Key_Up, {1, 1}), (GridPlace{7, 0}));
    EXPECT_EQ(nextInBands(Qt::Key_Up, {9, 0}), (GridPlace{7, 2}));
    EXPECT_EQ(nextInBands(Qt::Key_Up, {9, 2}), (GridPlace{15, 1}));
}

TEST(ArrowKeys, NoCellIsFoundBeyondTheBands) {
    constexpr int rows = 16;
    EXPECT_LT(nextInBands(Qt::Key_Left, {3, 0}).column, 0);
    EXPECT_LT(nextInBands(Qt::Key_Up, {1, 0}).row, 0);
    EXPECT_GE(nextInBands(Qt::Key_Down, {15, 2}).row, rows);
}

} // namespace
