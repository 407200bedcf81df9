// SPDX-License-Identifier: MIT
// A long random walk through the window, each step of which has its expected day.
#include "monthly/monthly_test.h"
#include "support/judgement.h"
#include "support/seed.h"

#include <QLineEdit>
#include <QPushButton>
#include <QWheelEvent>
#include <random>

namespace {

constexpr int lowestDay = 1721319;
constexpr int highestDay = 2817404;
constexpr int today = 2461365;

/// What an action was, and the day that it should have led to.
struct Step {
    std::string what;
    int day;
};

/// The chosen day in one calendar, as it was before an action.
struct Before {
    explicit Before(int c)
        : day(CurJD), date(dateIn(c)), first(YearJD(c, FirstDay)), last(YearJD(c, LastDay)) {}
    int day;
    Date date;
    int first; ///< of the year
    int last;
};

/// One of the seven kinds of lists; pane is 1 for a list that no pane has.
struct List {
    int kind;
    int pane;
    ComboBox& box;
};

int dayFromBelow(const Before& before, int by) {
    return before.day + by < lowestDay ? before.day : before.day + by;
}

// A year or a month keeps the day as far as there is one.
void expectDate(int c, const Before& before, int year, int month) {
    const int monthThere = std::min(month, Calc::MonthsInYear(c));
    const int day = std::min(before.date.day, MonthDays(c, monthThere));
    EXPECT_EQ(dateIn(c), (Date{day, monthThere, year}));
}

/// Plays random actions on the whole window.
class Player {
public:
    Player(std::uint32_t seed, MonthlyWindow& window) : m_random(seed), m_window(window) {}

    /// Plays one action.
    Step play() {
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

    List anyList() {
        const int kind = 1 + below(7);
        const int pane = kind <= 5 ? 1 + below(4) : 1;
        const QString name = kind <= 5 ? QStringLiteral("Combo%1_%2").arg(kind).arg(pane)
                                       : QStringLiteral("Combo%1").arg(kind);
        return {kind, pane, control<ComboBox>(name)};
    }

    MSFlexGrid& gridOf(int pane) {
        return control<MSFlexGrid>(QStringLiteral("MSFlexGrid1_%1").arg(pane));
    }

    /// The day to which a cell of a pane's month leads: today's where it has none.
    static int dayOfCell(const MSFlexGrid& grid, int pane, int row, int column) {
        const int day = column > 0 ? grid.TextMatrix(row, column).toInt() : 0;
        return day > 0 ? CurJD + day - CurDate(CalendarOrder(pane), Day) : CurJD;
    }

    Step pressGrid() {
        const int pane = 1 + below(4);
        MSFlexGrid& grid = gridOf(pane);
        const QPoint at(1 + below(grid.width() - 1), below(grid.height())); // 0, 0 is the middle
        const auto button = below(4) == 0 ? Qt::RightButton : Qt::LeftButton;
        Step step{"press in pane " + std::to_string(pane), CurJD};
        if (grid.isVisible() && grid.isEnabled()) {
            const QModelIndex cell = grid.indexAt(at);
            if (cell.isValid())
                step.day = dayOfCell(grid, pane, cell.row(), cell.column());
            QTest::mouseClick(grid.viewport(), button, {}, at);
        }
        return step;
    }

    /// Where a list stands by its text; one that has taken a digit may hold its
    /// entry alone.
    static int positionSaid(const List& list, int c) {
        const int number = list.box.Text().section(u'/', 0, 0).toInt();
        switch (list.kind) {
        case 2:
            return number - firstYear(c);
        case 3:
        case 4:
        case 5:
            return number - 1;
        default:
            return list.box.ListIndex();
        }
    }

    /// Where a key leads in a list, -1 for keys that search.
    static int positionAfter(Qt::Key key, int position, int entries) {
        switch (key) {
        case Qt::Key_Up:
            return std::max(position - 1, 0);
        case Qt::Key_Down:
            return std::min(position + 1, entries - 1);
        case Qt::Key_Home:
            return 0;
        case Qt::Key_End:
            return entries - 1;
        default:
            return -1;
        }
    }

    /// The day that a choice in a list should have led to; a year, a month and a
    /// calendar are judged at once.
    static int dayOfChoice(const List& list, int c, const Before& before, int from, int to) {
        const int by = to - from;
        switch (list.kind) {
        case 1:
            EXPECT_EQ(CalendarOrder(list.pane), to + 1);
            return before.day;
        case 2:
            expectDate(c, before, firstYear(c) + to, before.date.month);
            return CurJD;
        case 3:
            expectDate(c, before, before.date.year, to + 1);
            return CurJD;
        case 4:
            return before.day + by;
        case 5:
            return std::clamp(before.day + 7 * by, before.first, before.last);
        default:
            return dayFromBelow(before, by);
        }
    }

    Step pressKeyInList() {
        static constexpr Qt::Key keys[] = {
            Qt::Key_Up,  Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home,
            Qt::Key_End, Qt::Key_1,    Qt::Key_2,      Qt::Key_9,        Qt::Key_M};
        const List list = anyList();
        const Qt::Key key = keys[below(10)];
        Step step{"key in " + list.box.objectName().toStdString(), CurJD};
        if (list.box.isVisible() && list.box.isEnabled()) {
            list.box.setFocus();
            QTest::keyClick(&list.box, Qt::Key_F12); // a list is filled before any key
            step.what += " " + std::to_string(key);
            const int c = CalendarOrder(list.pane);
            const Before before(c);
            const int from = list.box.ListIndex();
            const int to = positionAfter(key, from, list.box.ListCount());
            const float age = list.box.Text().toFloat();
            QTest::keyClick(&list.box, key);
            if (to >= 0)
                step.day = dayOfChoice(list, c, before, from, to);
            else if (list.kind == 7) // in tenths, and so by the difference
                step.day = dayFromBelow(before, qRound(list.box.Text().toFloat() - age));
            else
                step.day = dayOfChoice(list, c, before, from, positionSaid(list, c));
        }
        return step;
    }

    Step pressKeyInGrid() {
        static constexpr Qt::Key keys[] = {Qt::Key_Up,    Qt::Key_Down,   Qt::Key_Left,
                                           Qt::Key_Right, Qt::Key_Return, Qt::Key_Space};
        const int pane = 1 + below(4);
        MSFlexGrid& grid = gridOf(pane);
        Step step{"key in the grid of pane " + std::to_string(pane), CurJD};
        if (grid.isVisible() && grid.isEnabled()) {
            grid.setFocus();
            const int key = below(6);
            if (keys[key] == Qt::Key_Return || keys[key] == Qt::Key_Space)
                step.day = dayOfCell(grid, pane, grid.Row(), grid.Col());
            QTest::keyClick(&grid, keys[key]);
        }
        return step;
    }

    Step turnWheel() {
        const List list = anyList();
        const bool up = below(2) == 0;
        const QPointF at = list.box.rect().center();
        QWheelEvent event(at, list.box.mapToGlobal(at), {}, {0, up ? 120 : -120}, Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        Step step{"wheel on " + list.box.objectName().toStdString(), CurJD};
        if (list.box.isVisible() && list.box.isEnabled()) {
            const int c = CalendarOrder(list.pane);
            const Before before(c);
            if (list.box.hasFocus())
                QTest::keyClick(&list.box, Qt::Key_F12);
            const int from = list.box.ListIndex();
            const int to =
                positionAfter(up ? Qt::Key_Up : Qt::Key_Down, from, list.box.ListCount());
            const bool turns = list.box.hasFocus();
            QApplication::sendEvent(&list.box, &event);
            if (turns)
                step.day = dayOfChoice(list, c, before, from, to);
        }
        return step;
    }

    Step typeJulianDay() {
        auto& field = control<ComboBox>(QStringLiteral("Combo8"));
        const int julianDay = lowestDay + below(highestDay - lowestDay + 1);
        field.setFocus();
        field.lineEdit()->selectAll();
        QTest::keyClicks(&field, QString::number(julianDay));
        QTest::keyClick(&field, Qt::Key_Return);
        return {"Julian Day", julianDay};
    }

    // Year windows and today; not the dialogs, and not the end.
    Step clickCommand() {
        const bool isToday = below(2) == 1;
        Step step{isToday ? "today" : "year windows", isToday ? today : CurJD};
        QTest::mouseClick(&control<QPushButton>(isToday ? QStringLiteral("Command1_2")
                                                        : QStringLiteral("Command1_1")),
                          Qt::LeftButton);
        m_window.activateWindow();
        return step;
    }

    Step pressTab() {
        const int before = CurJD;
        QWidget* focus = m_window.focusWidget();
        if (focus != nullptr)
            QTest::keyClick(focus, below(2) == 0 ? Qt::Key_Tab : Qt::Key_Backtab);
        return {"tab", before};
    }

    std::mt19937 m_random;
    MonthlyWindow& m_window;
};

bool stateHolds() {
    for (const int c : {Julian, Gregorian, Jewish, Moslem}) {
        if (isWithinRange(c) && !invariantsHold(c))
            return false;
    }
    return CurJD >= lowestDay && WeekDayNo == CurJD % 7 + 1;
}

bool everyCalendarHasAPane() {
    std::vector<int> order;
    for (int pane = 1; pane <= 4; ++pane)
        order.push_back(CalendarOrder(pane));
    std::sort(order.begin(), order.end());
    return order == std::vector<int>{1, 2, 3, 4};
}

class Walk : public MonthlyTest {
protected:
    void take(int actions) {
        const std::uint32_t seed = walkSeed();
        SCOPED_TRACE(againWith(seed));
        Player player(seed, window());
        for (int action = 0; action < actions; ++action) {
            const Step step = player.play();
            ASSERT_EQ(CurJD, step.day) << "after action " << action << ", " << step.what;
            ASSERT_TRUE(stateHolds() && everyCalendarHasAPane())
                << "after action " << action << ", " << step.what;
            expectPanesShowTheState();
            ASSERT_FALSE(HasFailure()) << "after action " << action << ", " << step.what;
            calls.clear();
        }
        recordWithstood("random actions in the monthly window, the state judged after each",
                        actions);
    }
};

TEST_F(Walk, TwentyThousandRandomActionsEachLeadToTheirDay) {
    take(20000);
}

TEST_F(Walk, DISABLED_AHundredThousandRandomActionsEachLeadToTheirDay) {
    take(100000);
}

} // namespace
