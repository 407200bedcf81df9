// SPDX-License-Identifier: MIT
// Digits stand in columns: the tens below the tens, the units below the units.
#include "platform/flexgrid.h"
#include "platform/twips.h"
#include "support/ink.h"
#include "support/platform_test.h"

namespace {

constexpr int cellWidth = 17; // pixels, as the months have it
constexpr int cellHeight = 20;
constexpr int tensEnd = 7; // pixels; none of the units stands so far left
constexpr int unitsBegin = 10;

class DigitColumns : public PlatformTest, public testing::WithParamInterface<int> {
protected:
    DigitColumns() : grid(QStringLiteral("grid"), 1, 1, nullptr) {
        grid.SetColWidth(0, ToTwips(cellWidth));
        grid.SetRowHeight(0, ToTwips(cellHeight));
        grid.SetSize(ToTwips(cellWidth + 2), ToTwips(cellHeight + 2));
        grid.SetFontPixelSize(GetParam());
        grid.SetAllCellColors(0xFFFFFF, 0);
    }

    QImage drawn(int number) {
        grid.SetTextMatrix(0, 0, QString::number(number));
        return grid.viewport()->grab(QRect(0, 0, cellWidth, cellHeight)).toImage();
    }

    QImage tens(int number) { return drawn(number).copy(0, 0, tensEnd, cellHeight); }

    QImage units(int number) {
        return drawn(number).copy(unitsBegin, 0, cellWidth - unitsBegin, cellHeight);
    }

    MSFlexGrid grid;
};

// Some fonts let the last letter jut out, as Noto Sans does the 4.
TEST_P(DigitColumns, AreTheSameWhateverTheOtherDigit) {
    for (const bool bold : {false, true}) {
        grid.SetCellFontBold(bold);
        for (int day = 10; day < 20; ++day) {
            EXPECT_TRUE(tens(day) == tens(10)) << day;
            EXPECT_TRUE(tens(day + 10) == tens(20)) << day + 10;
            EXPECT_TRUE(units(day) == units(day + 10)) << day;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(AtPixels, DigitColumns, testing::Values(10, 11));

TEST_P(DigitColumns, ASingleDigitStandsBelowTheSecondOfLargerNumbers) {
    for (int digit = 1; digit < 10; ++digit)
        EXPECT_NEAR(InkOf(drawn(digit)).right(), InkOf(drawn(10 + digit)).right(), 1) << digit;
}

} // namespace
