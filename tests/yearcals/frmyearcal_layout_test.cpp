// SPDX-License-Identifier: MIT
// Where the controls of the year windows stand.
#include "yearcals/year_test.h"

#include <QApplication>
#include <QEvent>
#include <QFont>
#include <QFontMetrics>

namespace {

class YearLayouts : public YearTest {
protected:
    ~YearLayouts() override { QApplication::setFont(m_formerFont); }

    void useLetters(int pixels, double spacing = 0) const {
        QFont font = m_formerFont;
        font.setPixelSize(pixels);
        font.setLetterSpacing(QFont::AbsoluteSpacing, spacing);
        QApplication::setFont(font);
        processEvents();
    }

private:
    const QFont m_formerFont = QApplication::font();
};

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
    useLetters(24);
    frmYearCal fresh(Julian);
    EXPECT_NE(selector(Julian).geometry(), before);
    EXPECT_EQ(selector(Julian).geometry(), child<ComboBox>(fresh, "Combo1")->geometry());
}

TEST_F(YearLayouts, TheRowGoesFromOneEdgeToTheOtherInLettersOfAnySize) {
    for (int pixels = 8; pixels < 19; ++pixels) {
        useLetters(pixels);
        frmYearCal fresh(Julian);
        const auto& list = *child<ComboBox>(fresh, "Combo1");
        EXPECT_EQ(list.x(), 4) << pixels;
        EXPECT_EQ(list.width(), list.WidthFor(QStringLiteral("3000"))) << pixels;
        const int right = child<CommandButton>(fresh, "Command1_6")->geometry().right();
        EXPECT_GE(right, 384 - 2) << pixels;
        EXPECT_LE(right, 384) << pixels;
    }
}

// By a quarter of a pixel after each digit the year is as wide as any number of pixels.
TEST_F(YearLayouts, LettersTooLargeForTheRowBecomeSmallerButNoSmallerThanTheyMust) {
    constexpr int room = 389 - 2 * 4 - 10 * 30 - 3 * 2;
    constexpr int besideText = 24;
    for (const double spacing : {0.0, 0.25, 0.5, 0.75}) {
        useLetters(40, spacing);
        frmYearCal fresh(Julian);
        const auto& list = *child<ComboBox>(fresh, "Combo1");
        EXPECT_LE(list.width(), room) << spacing;
        const int next = child<CommandButton>(fresh, "Command1_1")->x();
        EXPECT_GE(next, 4 + list.width() + 2) << spacing;
        QFont larger = list.font();
        larger.setPixelSize(larger.pixelSize() + 1);
        const int advance = QFontMetrics(larger).horizontalAdvance(QStringLiteral("3000"));
        EXPECT_GT(advance, room - besideText) << spacing;
    }
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
