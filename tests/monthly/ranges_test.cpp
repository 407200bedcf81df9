// SPDX-License-Identifier: MIT
// Days at and beyond the edges of what the calendars can show, and a long random
// walk through the window.
#include "monthly/monthly_test.h"

#include <QLineEdit>
#include <QPushButton>
#include <QWheelEvent>
#include <random>

namespace {

class Ranges : public MonthlyTest {
protected:
    static void useVariant(int type) {
        MoslemType = type;
        Calc::SetMoslemType();
        Calc::JDToMoslem();
    }
};

constexpr int edges[] = {1721319, 1721423, 1721424, 1721425, 1721426, 1948438, 1948439,
                         1948440, 2817152, 2817153, 2817173, 2817174, 2817345, 2817346,
                         2817347, 2817404, 2817405, 2817406, 2900000};

TEST_F(Ranges, PanesHideBeforeTheirRangeAndAreDisabledAfterIt) {
    for (const int type : {1, 2}) {
        useVariant(type);
        for (const int julianDay : edges) {
            goTo(julianDay);
            expectPanesShowTheState();
        }
    }
}

TEST_F(Ranges, PanesComeBackWhole) {
    for (const int julianDay : {1721319, 2900000, 1948438}) {
        goTo(julianDay);
        goTo(2461365);
        expectPanesShowTheState();
        for (int pane = 1; pane <= 4; ++pane) {
            EXPECT_TRUE(grid(pane).isVisible() && grid(pane).isEnabled());
            QTest::keyClick(&combo(2, pane), Qt::Key_Down);
            expectPanesShowTheState();
        }
    }
}

TEST_F(Ranges, TheDaysBeforeTheJulianYearOneAreWalkedThrough) {
    goTo(1721319);
    while (CurJD < 1721430) {
        const int before = CurJD;
        pressDay(3, CurDate(Jewish, Day) == MonthDays(Jewish, CurDate(Jewish, Month))
                        ? CurDate(Jewish, Day)
                        : CurDate(Jewish, Day) + 1);
        if (CurJD == before)
            goTo(before + 1);
        ASSERT_EQ(CurJD, before + 1);
        expectPanesShowTheState();
    }
}

TEST_F(Ranges, PressesOnHiddenAndDisabledGridsDoNothing) {
    for (const int julianDay : {1721319, 1948438, 2817405}) {
        goTo(julianDay);
        for (int pane = 1; pane <= 4; ++pane) {
            if (isWithinRange(CalendarOrder(pane)))
                continue;
            QTest::mouseClick(&window(), Qt::LeftButton, {}, grid(pane).geometry().center());
            QTest::mouseDClick(&window(), Qt::LeftButton, {}, grid(pane).geometry().center());
            EXPECT_EQ(CurJD, julianDay);
        }
    }
}

TEST_F(Ranges, WeekdaysAndMoonAgesLeadBeyondEveryTopAndTodayLeadsBack) {
    goTo(2817404);
    for (int step = 0; step < 20; ++step) {
        QTest::keyClick(&combo(6), Qt::Key_Home);
        expectPanesShowTheState();
        QTest::keyClick(&combo(6), Qt::Key_End);
        expectPanesShowTheState();
        QTest::keyClick(&combo(7), Qt::Key_End);
        expectPanesShowTheState();
        goTo(CurJD + 1);
    }
    EXPECT_GT(CurJD, 2817404);
    click(&command(2));
    EXPECT_EQ(CurJD, 2461365);
    expectPanesShowTheState();
}

TEST_F(Ranges, TheFocusedSelectorMayGoAndComeBack) {
    combo(2, 1).setFocus();
    goTo(1721319);
    expectPanesShowTheState();
    goTo(2461365);
    combo(2, 1).setFocus();
    QTest::keyClick(&combo(2, 1), Qt::Key_Down);
    EXPECT_EQ(CurDate(Julian, Year), 2027);
    expectPanesShowTheState();
}

/// Plays random actions on the whole window.
class Player {
public:
    Player(std::uint32_t seed, MonthlyWindow& window) : m_random(seed), m_window(window) {}

    /// Plays one action; returns what it was.
    std::string play() {
        switch (below(12)) {
        case 0:
        case 1:
        case 2:
            return pressGrid();
        case 3:
        case 4:
        case 5:
        case 6:
            return pressKeyInList();
        case 7:
            return pressKeyInGrid();
        case 8:
            return turnWheel();
        case 9:
            return typeJulianDay();
        case 10:
            return clickCommand();
        default:
            return pressTab();
        }
    }

private:
    int below(int n) { return static_cast<int>(m_random() % static_cast<std::uint32_t>(n)); }

    template <typename Widget>
    Widget& control(const QString& name) {
        return *m_window.findChild<Widget*>(name);
    }

    ComboBox& anyList() {
        const int kind = 1 + below(7);
        return control<ComboBox>(kind <= 5
                                     ? QStringLiteral("Combo%1_%2").arg(kind).arg(1 + below(4))
                                     : QStringLiteral("Combo%1").arg(kind));
    }

    MSFlexGrid& anyGrid() {
        return control<MSFlexGrid>(QStringLiteral("MSFlexGrid1_%1").arg(1 + below(4)));
    }

    std::string pressGrid() {
        MSFlexGrid& grid = anyGrid();
        const QPoint at(below(grid.width()), below(grid.height()));
        const auto button = below(4) == 0 ? Qt::RightButton : Qt::LeftButton;
        if (grid.isVisible() && grid.isEnabled())
            QTest::mouseClick(grid.viewport(), button, {}, at);
        return "press in " + grid.objectName().toStdString();
    }

    std::string pressKeyInList() {
        static constexpr Qt::Key keys[] = {
            Qt::Key_Up,  Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home,
            Qt::Key_End, Qt::Key_1,    Qt::Key_2,      Qt::Key_9,        Qt::Key_M};
        ComboBox& list = anyList();
        const Qt::Key key = keys[below(10)];
        if (list.isVisible() && list.isEnabled()) {
            list.setFocus();
            QTest::keyClick(&list, key);
        }
        return "key in " + list.objectName().toStdString();
    }

    std::string pressKeyInGrid() {
        static constexpr Qt::Key keys[] = {Qt::Key_Up,    Qt::Key_Down,   Qt::Key_Left,
                                           Qt::Key_Right, Qt::Key_Return, Qt::Key_Space};
        MSFlexGrid& grid = anyGrid();
        if (grid.isVisible() && grid.isEnabled()) {
            grid.setFocus();
            QTest::keyClick(&grid, keys[below(6)]);
        }
        return "key in " + grid.objectName().toStdString();
    }

    std::string turnWheel() {
        ComboBox& list = anyList();
        const QPointF at = list.rect().center();
        QWheelEvent event(at, list.mapToGlobal(at), {}, {0, below(2) == 0 ? 120 : -120},
                          Qt::NoButton, {}, Qt::NoScrollPhase, false);
        if (list.isVisible() && list.isEnabled())
            QApplication::sendEvent(&list, &event);
        return "wheel on " + list.objectName().toStdString();
    }

    std::string typeJulianDay() {
        auto& field = control<ComboBox>(QStringLiteral("Combo8"));
        const int julianDay = 1721319 + below(2817404 - 1721319 + 1);
        field.setFocus();
        field.lineEdit()->selectAll();
        QTest::keyClicks(&field, QString::number(julianDay));
        QTest::keyClick(&field, Qt::Key_Return);
        return "Julian Day " + std::to_string(julianDay);
    }

    // Year windows, today and the moon; not the dialogs, and not the end.
    std::string clickCommand() {
        auto& button = control<QPushButton>(QStringLiteral("Command1_%1").arg(1 + below(2)));
        QTest::mouseClick(&button, Qt::LeftButton);
        m_window.activateWindow();
        return "click on " + button.objectName().toStdString();
    }

    std::string pressTab() {
        QWidget* focus = m_window.focusWidget();
        if (focus != nullptr)
            QTest::keyClick(focus, below(2) == 0 ? Qt::Key_Tab : Qt::Key_Backtab);
        return "tab";
    }

    std::mt19937 m_random;
    MonthlyWindow& m_window;
};

bool stateHolds() {
    for (const int c : {Julian, Gregorian, Jewish, Moslem}) {
        if (isWithinRange(c) && !invariantsHold(c))
            return false;
    }
    return CurJD >= MinJD(Jewish) && WeekDayNo == CurJD % 7 + 1;
}

TEST_F(Ranges, AHundredThousandRandomActionsLeaveNothingBroken) {
    const std::uint32_t seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    Player player(seed, window());
    for (int action = 0; action < 100000; ++action) {
        const std::string what = player.play();
        ASSERT_TRUE(stateHolds()) << "after action " << action << ", " << what;
        expectPanesShowTheState();
        ASSERT_FALSE(HasFailure()) << "after action " << action << ", " << what;
        calls.clear();
    }
}

} // namespace
