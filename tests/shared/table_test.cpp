// SPDX-License-Identifier: MIT
#include "shared/table.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

struct Access {
    int index;
    int extent;
    bool operator==(const Access& other) const = default;
};

std::vector<Access> reported;

class TableTest : public testing::Test {
protected:
    TableTest() {
        reported.clear();
        onOutOfBounds = [](int index, int extent) { reported.push_back({index, extent}); };
    }
    ~TableTest() override { onOutOfBounds = nullptr; }
};

TEST_F(TableTest, IsReadFromOneOn) {
    const Table<int, 3> table{10, 20, 30};
    EXPECT_EQ(table(1), 10);
    EXPECT_EQ(table(3), 30);
    EXPECT_TRUE(reported.empty());
}

TEST_F(TableTest, IsGivenRowAfterRow) {
    const Table<int, 2, 3> table{11, 12, 13, 21, 22, 23};
    EXPECT_EQ(table(1, 3), 13);
    EXPECT_EQ(table(2, 1), 21);
}

TEST_F(TableTest, EntriesNotGivenAreEmpty) {
    const Table<std::string, 2> table{"a"};
    EXPECT_EQ(table(2), "");
}

TEST_F(TableTest, TellsOfMoreEntriesThanItHasAndTakesNone) {
    const Table<int, 1, 2> table{11, 12, 21};
    EXPECT_EQ(table, (Table<int, 1, 2>{11, 12}));
    EXPECT_EQ(reported, (std::vector<Access>{{2, 1}}));
}

TEST_F(TableTest, IsComparedByEveryEntry) {
    const Table<int, 2> table{1, 2};
    EXPECT_NE(table, (Table<int, 2>{7, 2}));
    EXPECT_NE(table, (Table<int, 2>{1, 7}));
}

TEST_F(TableTest, ReadsNothingOutsideAndTellsTheIndexAndTheExtent) {
    const Table<int, 2, 3> table{11, 12, 13, 21, 22, 23};
    EXPECT_EQ(table(0, 1), 0);
    EXPECT_EQ(table(3, 1), 0);
    EXPECT_EQ(table(1, 4), 0);
    EXPECT_EQ(table(1, -2147483647), 0);
    EXPECT_EQ(reported, (std::vector<Access>{{0, 2}, {3, 2}, {4, 3}, {-2147483647, 3}}));
}

TEST_F(TableTest, TakesNothingOutside) {
    Table<int, 2> table{1, 2};
    table(3) = 9;
    EXPECT_EQ(table(3), 0);
    EXPECT_EQ(table, (Table<int, 2>{1, 2}));
}

TEST_F(TableTest, IsHarmlessOutsideWhenNobodyIsToldOf) {
    onOutOfBounds = nullptr;
    Table<int, 2> table{1, 2};
    table(0) = 9;
    EXPECT_EQ(table(0), 0);
}

TEST_F(TableTest, TellsTheColumnOfTheLastRowToo) {
    const Table<int, 2, 3> table{11, 12, 13, 21, 22, 23};
    EXPECT_EQ(table(2, 4), 0);
    EXPECT_EQ(reported, (std::vector<Access>{{4, 3}}));
}

} // namespace
