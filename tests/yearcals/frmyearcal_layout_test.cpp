// SPDX-License-Identifier: MIT
// Where the controls of the year windows stand.
#include "yearcals/year_test.h"

#include <QApplication>
#include <QEvent>
#include <QFont>

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

TEST_F(YearLayouts, GroupsStandInTheMiddleOfTheRowEquallyFarApart) {
    for (const int c : {Julian, Gregorian, Jewish, Moslem}) {
        open(c);
        constexpr int side = 30;
        const QString front = QStringLiteral("Command2_%1").arg(MoonPhase);
        const int moon = child<QWidget>(year(c), qPrintable(front))->x();
        const int gap = moon - command(c, TodayButton).x() - side;
        EXPECT_GE(gap, 2);
        EXPECT_EQ(command(c, PreviousYear).x() - selector(c).x() - selector(c).width(), gap);
        EXPECT_EQ(command(c, FirstOtherCalendar).x(), moon + side);
        EXPECT_EQ(command(c, OptionsButton).x() - command(c, 9).x() - side, gap);
        EXPECT_EQ(command(c, PreviousYear).y(), 11); // of 52 pixels
        EXPECT_NEAR(selector(c).geometry().center().y(), 25, 1);
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

TEST_F(YearLayouts, LargerLettersMoveTheControlsOfAnOpenWindow) {
    open(Julian);
    const QRect before = selector(Julian).geometry();
    const QFont former = QApplication::font();
    QFont large = former;
    large.setPixelSize(24);
    QApplication::setFont(large);
    processEvents();
    {
        frmYearCal fresh(Julian);
        EXPECT_NE(selector(Julian).geometry(), before);
        EXPECT_EQ(selector(Julian).geometry(), child<ComboBox>(fresh, "Combo1")->geometry());
    }
    QApplication::setFont(former);
}

TEST_F(YearLayouts, AnotherStylePlacesTheControlsAnew) {
    open(Julian);
    const QPoint place = command(Julian, NextYear).pos();
    command(Julian, NextYear).move(0, 0);
    QEvent change(QEvent::StyleChange);
    QCoreApplication::sendEvent(&year(Julian), &change);
    EXPECT_EQ(command(Julian, NextYear).pos(), place);
}

} // namespace
