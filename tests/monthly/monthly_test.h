// SPDX-License-Identifier: MIT
#pragma once

#include "changecals/changecals.h"
#include "changecals/opening.h"
#include "monthly/frmmonthlycal.h"
#include "platform/combobox.h"
#include "platform/commandbutton.h"
#include "platform/flexgrid.h"
#include "shared/colors.h"
#include "support/recording_windows.h"
#include "support/widget_test.h"

#include <QAbstractItemView>
#include <QDir>
#include <algorithm>

/// The monthly window shown on 20 November 2026, the other windows recording.
class MonthlyTest : public WidgetTest {
protected:
    MonthlyTest() {
        startToday();
        useRecordingWindows();
        auto factories = recordingFactories();
        factories.monthly = [] { return new frmMonthlyCal; };
        ChangeCals::BeginRun(factories);
        ChangeCals::ShowMonthlyWindow();
        ChangeCals::LoadMonthly().activateWindow();
        EXPECT_TRUE(waitUntil([] { return ChangeCals::LoadMonthly().isActiveWindow(); }));
        findControls();
        calls.clear();
    }

    static MonthlyWindow& window() { return ChangeCals::LoadMonthly(); }

    static ComboBox& combo(int kind, int pane) { return *m_paneCombos(kind, pane); }
    static ComboBox& combo(int kind) { return *m_combos(kind - 5); }
    static MSFlexGrid& grid(int pane) { return *m_grids(pane); }
    static CommandButton& command(int index) { return *m_commands(index); }
    static CommandButton& moonButton(int phase) { return *m_moonButtons(phase + 1); }

    static QPoint cellCentre(MSFlexGrid& grid, int row, int column) {
        return grid.visualRect(grid.model()->index(row, column)).center();
    }

    static void pressCell(MSFlexGrid& grid, int row, int column,
                          Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(grid.viewport(), button, {}, cellCentre(grid, row, column));
    }

    /// The cell that shows a day.
    static QPoint cellOfDay(MSFlexGrid& grid, int day) {
        for (int row = 0; row < 7; ++row) {
            for (int column = 1; column < 7; ++column) {
                if (grid.TextMatrix(row, column) == QString::number(day))
                    return {column, row};
            }
        }
        return {-1, -1};
    }

    static void pressDay(int pane, int day, Qt::MouseButton button = Qt::LeftButton) {
        const QPoint cell = cellOfDay(grid(pane), day);
        pressCell(grid(pane), cell.y(), cell.x(), button);
    }

    /// The texts of the cells marked as the chosen day.
    static QStringList marked(MSFlexGrid& grid) {
        QStringList days;
        const int row = grid.Row();
        const int column = grid.Col();
        for (int r = 0; r < 7; ++r) {
            for (int c = 0; c < 7; ++c) {
                grid.SetRow(r);
                grid.SetCol(c);
                if (grid.CellBackColor() == CalendarColors(ChosenDayBackground))
                    days.append(grid.TextMatrix(r, c));
            }
        }
        grid.SetRow(row);
        grid.SetCol(column);
        return days;
    }

    static QString text(int number, int of) { return QStringLiteral("%1/%2").arg(number).arg(of); }

    /// Every pane shows the state.
    static void expectPanesShowTheState() {
        for (int pane = 1; pane <= paneCount; ++pane)
            expectPaneShowsTheState(pane);
        EXPECT_EQ(combo(6).ListIndex(), WeekDayNo - 1);
        EXPECT_EQ(combo(8).Text(), QString::number(CurJD));
        EXPECT_FALSE(Updating);
    }

    static void expectPaneShowsTheState(int pane) {
        expectPaneIsAvailableInItsRange(pane);
        expectPaneSaysTheDay(pane);
    }

    static void expectPaneIsAvailableInItsRange(int pane) {
        const int c = CalendarOrder(pane);
        const bool shown = !isBeforeRange(c);
        const bool enabled = shown && !isAfterRange(c);
        for (const int kind : {2, 3, 4, 5}) {
            EXPECT_EQ(combo(kind, pane).isVisible(), shown) << kind;
            EXPECT_EQ(combo(kind, pane).isEnabled(), enabled) << kind;
        }
        EXPECT_EQ(grid(pane).isVisible(), shown);
        EXPECT_EQ(grid(pane).isEnabled(), enabled);
    }

    static void expectPaneSaysTheDay(int pane) {
        const int c = CalendarOrder(pane);
        EXPECT_EQ(combo(1, pane).ListIndex(), c - 1);
        EXPECT_EQ(marked(grid(pane)), QStringList{QString::number(CurDate(c, Day))}) << pane;
        const QString month = text(CurDate(c, Month), Calc::MonthsInYear(c));
        EXPECT_TRUE(combo(3, pane).Text().startsWith(month + QStringLiteral("  ")));
        const QStringList numbers{QString::number(CurDate(c, Year)),
                                  text(CurDate(c, DayNumber), YearDays(c, DaysInYear)),
                                  text(CurDate(c, WeekNumber), YearDays(c, WeeksInYear))};
        EXPECT_EQ(
            (QStringList{combo(2, pane).Text(), combo(4, pane).Text(), combo(5, pane).Text()}),
            numbers);
    }

    /// Chooses an entry by mouse in the list's popup.
    static void chooseByMouse(ComboBox& list, int position) {
        // The list takes no release that follows its opening too closely: within
        // a double click's time.
        const int doubleClick = QApplication::doubleClickInterval();
        QApplication::setDoubleClickInterval(0);
        QTest::mouseClick(&list, Qt::LeftButton);
        ASSERT_TRUE(waitUntil([&list] { return list.view()->isVisible(); }));
        processEvents();
        QApplication::setDoubleClickInterval(doubleClick);
        const QModelIndex index = list.model()->index(position, 0);
        list.view()->scrollTo(index, QAbstractItemView::PositionAtCenter);
        processEvents();
        const QRect entry = list.view()->visualRect(index);
        ASSERT_TRUE(list.view()->viewport()->rect().contains(entry.center()));
        QTest::mouseMove(list.view()->viewport(), entry.center());
        QTest::mouseClick(list.view()->viewport(), Qt::LeftButton, {}, entry.center());
        ASSERT_TRUE(waitUntil([&list] { return !list.view()->isVisible(); }));
    }

private:
    template <typename Widget>
    static Widget* control(const QString& name, int index) {
        return child<Widget>(window(), qPrintable(name.arg(index)));
    }

    // Once, as tests look at every control after every action.
    static void findControls() {
        for (int pane = 1; pane <= paneCount; ++pane) {
            m_grids(pane) = control<MSFlexGrid>(QStringLiteral("MSFlexGrid1_%1"), pane);
            for (int kind = 1; kind <= 5; ++kind)
                m_paneCombos(kind, pane) = control<ComboBox>(
                    QStringLiteral("Combo%1_").arg(kind) + QStringLiteral("%1"), pane);
        }
        for (int kind = 6; kind <= 8; ++kind)
            m_combos(kind - 5) = control<ComboBox>(QStringLiteral("Combo%1"), kind);
        for (int index = 1; index <= 5; ++index)
            m_commands(index) = control<CommandButton>(QStringLiteral("Command1_%1"), index);
        for (int phase = 0; phase <= 8; ++phase)
            m_moonButtons(phase + 1) = control<CommandButton>(QStringLiteral("Command2_%1"), phase);
    }

    static inline Table<ComboBox*, 5, paneCount> m_paneCombos;
    static inline Table<ComboBox*, 3> m_combos;
    static inline Table<MSFlexGrid*, paneCount> m_grids;
    static inline Table<CommandButton*, 5> m_commands;
    static inline Table<CommandButton*, 9> m_moonButtons;
};
