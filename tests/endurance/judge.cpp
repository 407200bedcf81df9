// SPDX-License-Identifier: MIT
#include "endurance/judge.h"

#include "endurance/controls.h"
#include "endurance/expected.h"
#include "endurance/layout.h"
#include "platform/combobox.h"
#include "platform/commandbutton.h"
#include "platform/flexgrid.h"
#include "shared/flags.h"
#include "support/state.h"

#include <QApplication>
#include <QLabel>
#include <cmath>

namespace {

QString fraction(int number, int of) {
    return QStringLiteral("%1/%2").arg(number).arg(of);
}

QString nameOf(int number) {
    static const Table<QString, mainWindowCount> names{
        QStringLiteral("frmJulian"), QStringLiteral("frmGregorian"),  QStringLiteral("frmJewish"),
        QStringLiteral("frmMoslem"), QStringLiteral("frmMonthlyCal"), QStringLiteral("frmMoon")};
    return names(number);
}

template <typename Shown>
void expectSame(const char* what, int which, const Shown& shown, const Shown& expected) {
    EXPECT_EQ(shown, expected) << what << ' ' << which;
}

QStringList windowsOnScreen() {
    QStringList names;
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible())
            names.append(window->objectName());
    }
    names.sort();
    return names;
}

} // namespace

void Judge::Look() {
    lookAtState();
    lookAtWindows();
    if (testing::Test::HasFailure())
        return; // whose controls may not be there
    for (int c = 1; c <= calendarCount; ++c) {
        if (m_expected.open(c))
            lookAtYear(c);
    }
    if (m_expected.open(MonthlyWindowNumber))
        lookAtMonthly();
    if (m_expected.open(MoonWindowNumber))
        lookAtMoon();
}

void Judge::lookAtState() const {
    expectSame("the chosen day", 0, CurJD, m_expected.day);
    expectSame("its weekday", 0, WeekDayNo, Reckoning::WeekdayOf(m_expected.day));
    expectSame("Updating", 0, Updating, false);
    expectSame("the Moslem variant", 0, MoslemType, m_expected.moslemType);
    expectSame("the first weekdays", 0, FirstWeekDay, m_expected.firstWeekDay);
    expectSame("the panes' calendars", 0, CalendarOrder, m_expected.order);
    expectSame("the language", 0, LanguageName, m_expected.language);
    expectSame("the startup window", 0, StartupWindow, m_expected.startup);
    expectSame("whether tips are shown", 0, ShowTips != 0, m_expected.tips);
    expectSame("whether the pointer waits", 0, QGuiApplication::overrideCursor() != nullptr, false);
    for (int c = 1; c <= calendarCount; ++c) {
        if (m_expected.Shows(c))
            lookAtDate(c);
    }
}

void Judge::lookAtDate(int c) const {
    const YearAndDay in = m_expected.In(c);
    expectSame("date of calendar", c, dateIn(c), Date{in.date.day, in.date.month, in.date.year});
    expectSame("day of the year of calendar", c, CurDate(c, DayNumber), in.dayNumber);
    expectSame("week of calendar", c, CurDate(c, WeekNumber), in.week);
    expectSame("weeks of calendar", c, YearDays(c, WeeksInYear), in.weeks);
    expectSame("new year of calendar", c, YearJD(c, FirstDay), in.firstDay);
    expectSame("invariants of calendar", c, invariantsHold(c), true);
}

void Judge::lookAtWindows() const {
    QStringList names;
    for (const MainWindowNumber number : mainWindows) {
        if (!m_expected.open(number))
            continue;
        names.append(nameOf(number));
        const MainWindow* window = ChangeCals::LoadedWindow(number);
        ASSERT_NE(window, nullptr) << number;
        EXPECT_EQ(window->WindowState() == Form::Minimised, m_expected.minimised(number)) << number;
    }
    if (m_expected.options)
        names.append(QStringLiteral("frmOptions"));
    if (m_expected.about)
        names.append(QStringLiteral("frmAbout"));
    names.sort();
    EXPECT_EQ(windowsOnScreen(), names);
}

void Judge::lookAtMonthly() {
    const auto list = [this](const char* name) -> ComboBox& {
        return m_controls.Of<ComboBox>(MonthlyWindowNumber, QLatin1String(name));
    };
    for (int pane = 1; pane <= paneCount; ++pane)
        lookAtPane(pane);
    EXPECT_EQ(list("Combo6").ListIndex(), Reckoning::WeekdayOf(m_expected.day) - 1);
    EXPECT_NEAR(list("Combo7").Text().toDouble(), Reckoning::MoonAge(m_expected.day), 0.0501);
    EXPECT_EQ(list("Combo8").Text(), QString::number(m_expected.day));
    lookAtMoonButton(MonthlyWindowNumber);
}

void Judge::lookAtPane(int pane) {
    const int c = m_expected.order(pane);
    const auto list = [this, pane](int kind) -> ComboBox& {
        return m_controls.Of<ComboBox>(MonthlyWindowNumber,
                                       QStringLiteral("Combo%1_%2").arg(kind).arg(pane));
    };
    auto& grid =
        m_controls.Of<MSFlexGrid>(MonthlyWindowNumber, QStringLiteral("MSFlexGrid1_%1").arg(pane));
    const bool shown = !m_expected.Rules().IsBefore(c, m_expected.day);
    const bool enabled = m_expected.Shows(c);
    expectSame("calendar of pane", pane, list(1).ListIndex(), c - 1);
    for (int kind = 2; kind <= 5; ++kind) {
        expectSame("sight of a list of pane", pane, list(kind).isVisible(), shown);
        expectSame("use of a list of pane", pane, list(kind).isEnabled(), enabled);
    }
    expectSame("sight of the days of pane", pane, grid.isVisible(), shown);
    expectSame("use of the days of pane", pane, grid.isEnabled(), enabled);
    if (!enabled)
        return;
    const YearAndDay in = m_expected.In(c);
    const QString month = fraction(in.date.month, in.months) + QStringLiteral("  ");
    expectSame("year of pane", pane, list(2).Text(), QString::number(in.date.year));
    expectSame("month of pane", pane, list(3).Text().left(month.size()), month);
    expectSame("day of the year of pane", pane, list(4).Text(), fraction(in.dayNumber, in.days));
    expectSame("week of pane", pane, list(5).Text(), fraction(in.week, in.weeks));
    lookAtMark(grid, Layout::InMonth(m_expected, c, in.date), in.date.day);
}

void Judge::lookAtYear(int c) {
    const auto button = [this, c](int index) -> CommandButton& {
        return m_controls.Of<CommandButton>(c, QStringLiteral("Command1_%1").arg(index));
    };
    auto& list = m_controls.Of<ComboBox>(c, QStringLiteral("Combo1"));
    auto& grid = m_controls.Of<MSFlexGrid>(c, QStringLiteral("MSFlexGrid1"));
    const bool shown = !m_expected.Rules().IsBefore(c, m_expected.day);
    const bool enabled = m_expected.Shows(c);
    expectSame("sight of the days of year", c, grid.isVisible(), shown);
    expectSame("use of the days of year", c, shown && grid.isEnabled(), enabled);
    expectSame("use of the list of year", c, list.isEnabled(), enabled);
    lookAtMoonButton(c);
    if (!enabled) {
        expectSame("next of year", c, button(2).isEnabled(), false);
        expectSame("previous of a hidden year", c, !shown && button(1).isEnabled(), false);
        return;
    }
    const Reckoning::Date date = m_expected.In(c).date;
    const bool isFirst = date.year == Reckoning::FirstYear(c);
    const bool isLast = date.year == Reckoning::LastYear(c);
    expectSame("list of year", c, list.Text(), QString::number(date.year));
    expectSame("previous of year", c, button(1).isEnabled(), !isFirst);
    expectSame("next of year", c, button(2).isEnabled(), !isLast);
    lookAtMark(grid, Layout::InYear(m_expected, c, date), date.day);
}

void Judge::lookAtMoon() {
    const auto& label = m_controls.Of<QLabel>(MoonWindowNumber, QStringLiteral("Label1"));
    EXPECT_NEAR(label.text().toDouble(), Reckoning::MoonAge(m_expected.day), 0.0501);
}

// Of the nine phases the nearest; halfway between two either will do.
void Judge::lookAtMoonButton(int number) {
    const double eighths = Reckoning::MoonAge(m_expected.day) / Reckoning::lunation * 8;
    const int phase = static_cast<int>(std::lround(eighths));
    if (std::abs(eighths - std::floor(eighths) - 0.5) < 1e-4)
        return;
    const QString name = QStringLiteral("Command2_%1").arg(phase);
    EXPECT_TRUE(m_controls.Of<CommandButton>(number, name).isVisible()) << number << ' ' << phase;
}

// The one cell that is told as selected.
void Judge::lookAtMark(MSFlexGrid& grid, GridPlace cell, int day) const {
    EXPECT_EQ(grid.TextMatrix(cell.row, cell.column), QString::number(day));
    const QModelIndexList selected = grid.selectionModel()->selectedIndexes();
    ASSERT_EQ(selected.size(), 1) << qPrintable(grid.window()->objectName());
    EXPECT_EQ(selected.front().row(), cell.row) << qPrintable(grid.window()->objectName());
    EXPECT_EQ(selected.front().column(), cell.column) << qPrintable(grid.window()->objectName());
}
