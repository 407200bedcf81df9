// SPDX-License-Identifier: MIT
// Where the controls of the year windows stand.
#include "yearcals/year_test.h"

namespace {

using YearLayouts = YearTest;

TEST_F(YearLayouts, TheRowOfControlsGoesFromOneEdgeToTheOther) {
    for (const int c : {Julian, Gregorian, Moslem}) {
        open(c);
        EXPECT_EQ(selector(c).x(), 4);
        const QRect last = command(c, CloseButton).geometry();
        EXPECT_GE(last.right(), 384 - 2) << "the gaps may leave two pixels of 389 - 4";
        EXPECT_LE(last.right(), 384);
    }
}

TEST_F(YearLayouts, ControlsNeitherOverlapNorStickOut) {
    for (const int c : {Julian, Gregorian, Jewish, Moslem}) {
        open(c);
        const auto controls = year(c).findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        for (QWidget* a : controls) {
            EXPECT_TRUE(year(c).rect().contains(a->geometry())) << a->objectName().toStdString();
            for (QWidget* b : controls) {
                if (a->objectName().left(8) != b->objectName().left(8)) {
                    EXPECT_FALSE(a->geometry().intersects(b->geometry()));
                }
            }
        }
    }
}

} // namespace
