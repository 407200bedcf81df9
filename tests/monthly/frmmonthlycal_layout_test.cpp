// SPDX-License-Identifier: MIT
// Where the controls of the monthly window stand, in small letters and in large.
#include "monthly/monthly_test.h"
#include "shared/texts.h"

#include <QApplication>
#include <QEvent>
#include <QFont>
#include <QImage>
#include <string>

namespace {

constexpr int lefts[] = {20, 176, 332, 488}; // of the panes
constexpr int right = 488 + 148;
constexpr int gap = 6;
constexpr int paneGap = 4;

class MonthlyLayout : public MonthlyTest {
protected:
    MonthlyLayout() : m_formerFont(QApplication::font()) {}
    ~MonthlyLayout() override { QApplication::setFont(m_formerFont); }

    void enlargeLetters() const {
        QFont large = m_formerFont;
        large.setPixelSize(40);
        QApplication::setFont(large);
        processEvents();
    }

    static QRect line() { return child<QWidget>(window(), "Line1")->geometry(); }

    static int rightOf(const QWidget& control) { return control.x() + control.width(); }

    static void expectNothingOverlapsOrSticksOut() {
        const auto controls = window().findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
        for (const QWidget* a : controls) {
            EXPECT_TRUE(a->isHidden() || window().rect().contains(a->geometry()))
                << a->objectName().toStdString();
            for (const QWidget* b : controls)
                EXPECT_FALSE(overlap(*a, *b))
                    << a->objectName().toStdString() << " " << b->objectName().toStdString();
        }
    }

private:
    // The moon buttons stand one upon the other.
    static bool overlap(const QWidget& a, const QWidget& b) {
        const QString moon = QStringLiteral("Command2");
        const bool stacked = a.objectName().startsWith(moon) && b.objectName().startsWith(moon);
        return &a != &b && !a.isHidden() && !b.isHidden() && !stacked &&
               a.geometry().intersects(b.geometry());
    }

    QFont m_formerFont;
};

TEST_F(MonthlyLayout, TheCommandsStandMidwayBetweenTheLineAndTheEdge) {
    const QRect button = command(5).geometry();
    EXPECT_NEAR(button.top() - line().bottom() - 1, window().height() - button.bottom() - 1, 1);
}

TEST_F(MonthlyLayout, ControlsNeitherOverlapNorStickOut) {
    expectNothingOverlapsOrSticksOut();
    const int height = window().height();
    enlargeLetters();
    expectNothingOverlapsOrSticksOut();
    EXPECT_GT(window().height(), height + 5 * 20) << "five lists above each other have grown";
}

TEST_F(MonthlyLayout, PanesStandBelowTheirEmblems) {
    for (int pane = 1; pane <= 4; ++pane) {
        const int left = lefts[pane - 1];
        EXPECT_EQ(
            child<QWidget>(window(), qPrintable(QStringLiteral("Image1_%1").arg(pane)))->geometry(),
            QRect(left, 10, 32, 32));
        EXPECT_EQ(combo(1, pane).pos(), QPoint(left, 10 + 32 + gap));
        EXPECT_EQ(combo(1, pane).width(), 148);
    }
}

TEST_F(MonthlyLayout, APaneIsAsHighAsItsControls) {
    for (int pane = 1; pane <= 4; ++pane) {
        const int height = combo(1, pane).height(); // one line
        EXPECT_EQ(combo(2, pane).y(), combo(1, pane).y() + height + paneGap);
        EXPECT_EQ(combo(3, pane).y(), combo(2, pane).y() + height + paneGap);
        EXPECT_EQ(grid(pane).y(), combo(3, pane).y() + height + 2 * paneGap);
        EXPECT_EQ(combo(4, pane).y(), grid(pane).y() + grid(pane).height() + 2 * paneGap);
        EXPECT_EQ(combo(5, pane).y(), combo(4, pane).y() + height + paneGap);
    }
}

TEST_F(MonthlyLayout, OneLongNameMakesTheLettersOfItsRowSmaller) {
    const auto picture = [](int pane) { return combo(3, pane).grab().toImage(); };
    const QImage before[] = {picture(1), picture(2), picture(3)};
    MonthNames(Moslem, CurDate(Moslem, Month)) = std::string(30, 'W');
    ChangeCals::UpdateWindows();
    for (int pane = 1; pane <= 3; ++pane)
        EXPECT_NE(picture(pane), before[pane - 1]) << pane;
    EXPECT_EQ(combo(3, 2).Text(), QStringLiteral("11/12  November"));
}

TEST_F(MonthlyLayout, ALineDividesThePanesFromWhatTheyHaveInCommon) {
    const int panesEnd = combo(5, 1).y() + combo(5, 1).height();
    EXPECT_EQ(line(), QRect(20, panesEnd + gap, right - 20, 2 * gap));
}

TEST_F(MonthlyLayout, TheCommandsStandAtTheRight) {
    EXPECT_EQ(rightOf(command(5)), right);
    EXPECT_EQ(window().width(), right + 20);
    for (int index = 2; index <= 5; ++index) {
        EXPECT_EQ(command(index).x(), rightOf(command(index - 1)) + gap);
        EXPECT_EQ(command(index).y(), command(1).y());
    }
}

TEST_F(MonthlyLayout, LargeListsKeepTheirDistanceFromTheLine) {
    enlargeLetters();
    EXPECT_GE(combo(6).y() - (line().y() + line().height()), 2 * gap);
    EXPECT_NEAR(command(1).y() - (combo(6).y() + combo(6).height()), 2 * gap, 1)
        << "an odd height is not halved evenly";
}

// The names that are tried differ by single pixels.
TEST_F(MonthlyLayout, CommandsStandBesideTheListsWhereAMarginIsLeftBetweenThem) {
    constexpr int margin = 20;
    bool hadJustThat = false;
    for (std::size_t wide = 8; wide <= 18; ++wide) {
        for (std::size_t others = 0; others < 63U; ++others) {
            WeekDayNames(3) = std::string(wide, 'W') + std::string(others % 7, 'i') +
                              std::string(others / 7 % 3, 't') + std::string(others / 21, 'n');
            window().SetTexts();
            const int between = command(1).x() - rightOf(combo(8));
            const bool areBeside = command(1).y() < combo(6).y() + combo(6).height();
            ASSERT_EQ(areBeside, between >= margin) << WeekDayNames(3);
            hadJustThat = hadJustThat || between == margin;
        }
    }
    EXPECT_TRUE(hadJustThat);
}

TEST_F(MonthlyLayout, ButtonsAreAsHighAsTheListsBesideThemButNeverSmall) {
    EXPECT_EQ(command(1).size(), QSize(30, 30));
    EXPECT_EQ(moonButton(3).size(), QSize(30, 30));
    enlargeLetters();
    const int height = combo(6).height();
    EXPECT_GT(height, 40);
    EXPECT_EQ(command(1).size(), QSize(height, height));
    EXPECT_EQ(command(5).size(), QSize(height, height));
    EXPECT_EQ(moonButton(3).size(), QSize(height, height));
    EXPECT_EQ(rightOf(command(5)), right);
}

// Of the row that is shown and of those that could be: nothing moves with the day.
TEST_F(MonthlyLayout, ListsOfNamesAreAsHighAsTheirLongestNameNeeds) {
    const int oneLine = combo(2, 1).height();
    EXPECT_EQ(combo(1, 1).height(), oneLine);
    EXPECT_EQ(combo(3, 1).height(), oneLine);
    MonthNames(Jewish, 5) = "Wwwwwwwww Wwwwwwwww";
    window().SetTexts();
    expectNothingOverlapsOrSticksOut();
    for (int pane = 1; pane <= 4; ++pane) {
        EXPECT_EQ(combo(1, pane).height(), oneLine);
        EXPECT_GT(combo(3, pane).height(), oneLine + 8);
    }
    CalendarNames(Moslem) = "Wwwwwwwww Wwwwwwwww";
    window().SetTexts();
    EXPECT_GT(combo(1, 1).height(), oneLine + 8);
    EXPECT_EQ(combo(2, 1).height(), oneLine);
}

TEST_F(MonthlyLayout, TheListOfWeekdaysTakesTheRoomThatItsNamesNeedOrElseWhatIsLeft) {
    EXPECT_EQ(combo(6).width(), combo(6).WidthFor(QStringLiteral("Wednesday")));
    WeekDayNames(3) = std::string(100, 'W');
    window().SetTexts();
    EXPECT_EQ(rightOf(combo(8)), right);
    expectNothingOverlapsOrSticksOut();
}

TEST_F(MonthlyLayout, WhatThePanesHaveInCommonStandsInOneRow) {
    const CommandButton& moon = moonButton(MoonPhase);
    EXPECT_EQ(combo(6).x(), 20);
    EXPECT_EQ(combo(7).x(), rightOf(combo(6)) + gap);
    EXPECT_EQ(moon.x(), rightOf(combo(7)) + gap);
    EXPECT_EQ(combo(8).x(), rightOf(moon) + gap);
    EXPECT_NEAR(moon.geometry().center().y(), combo(8).geometry().center().y(), 1);
}

TEST_F(MonthlyLayout, ListsOfMonthsHaveRoomForTheFirstAndTheLastOfEveryCalendar) {
    const int oneLine = combo(2, 1).height();
    for (const int c : {Julian, Gregorian, Jewish, Moslem}) {
        for (const int month : {1, Calc::MonthsInYear(c)}) {
            const std::string former = MonthNames(c, month);
            MonthNames(c, month) = "Wwwwwwwww Wwwwwwwww";
            window().SetTexts();
            EXPECT_GT(combo(3, 1).height(), oneLine + 8) << c << " " << month;
            MonthNames(c, month) = former;
        }
    }
    window().SetTexts();
    EXPECT_EQ(combo(3, 1).height(), oneLine);
}

TEST_F(MonthlyLayout, TheCommandsHave56PixelsFromTheLineToTheEdge) {
    EXPECT_EQ(command(1).y() - line().y() - line().height(), 13); // 30 of 56 are the button's
    EXPECT_EQ(window().height() - command(1).y() - command(1).height(), 13);
}

TEST_F(MonthlyLayout, AnotherStylePlacesTheControlsAnew) {
    const QPoint place = command(1).pos();
    command(1).move(0, 0);
    QEvent change(QEvent::StyleChange);
    QCoreApplication::sendEvent(&window(), &change);
    EXPECT_EQ(command(1).pos(), place);
}

TEST_F(MonthlyLayout, GridsStandInTheMiddleOfTheirPanes) {
    for (int pane = 1; pane <= 4; ++pane)
        EXPECT_EQ(grid(pane).x(), lefts[pane - 1] + 13); // 121 of 148 pixels
}

// In a common year too, in which it has no name of its own.
TEST_F(MonthlyLayout, ListsOfMonthsHaveRoomForTheSecondAdar) {
    goTo(2461000); // in 5786, of twelve months
    ASSERT_FALSE(JewishLeap);
    const int oneLine = combo(2, 1).height();
    bool wasHigher = false;
    for (std::size_t wide = 0; wide < 60; ++wide) {
        AdarName = "Ww " + std::string(wide, 'i'); // MonthNames has the former one still
        window().SetTexts();
        const QString entry = QStringLiteral("7/13  ") + QString::fromStdString(AdarName + " II");
        const int expected = combo(3, 1).HeightFor({entry}, 148);
        EXPECT_EQ(combo(3, 1).height(), expected) << wide;
        wasHigher = wasHigher || expected > oneLine;
    }
    EXPECT_TRUE(wasHigher);
    AdarName = "Adar";
}

TEST_F(MonthlyLayout, TheListOfWeekdaysHasRoomForTheFirstAndTheLast) {
    for (const int weekday : {1, 7}) {
        const std::string former = WeekDayNames(weekday);
        WeekDayNames(weekday) = "Wwwwwwwwwwww";
        window().SetTexts();
        EXPECT_EQ(combo(6).width(), combo(6).WidthFor(QStringLiteral("Wwwwwwwwwwww"))) << weekday;
        WeekDayNames(weekday) = former;
    }
}

} // namespace
