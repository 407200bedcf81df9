// SPDX-License-Identifier: MIT
#pragma once

#include "changecals/changecals.h"
#include "changecals/opening.h"
#include "platform/combobox.h"
#include "platform/commandbutton.h"
#include "platform/flexgrid.h"
#include "platform/text.h"
#include "shared/colors.h"
#include "support/recording_windows.h"
#include "support/widget_test.h"
#include "support/yearsheet.h"
#include "yearcals/frmyearcal.h"

/// The four year windows, the others recording; 20 November 2026 is chosen.
class YearTest : public WidgetTest {
protected:
    YearTest() {
        startToday();
        auto factories = recordingFactories();
        factories.year = [](int c) { return new frmYearCal(c); };
        ChangeCals::BeginRun(factories);
        calls.clear();
    }

    static YearWindow& year(int c) { return ChangeCals::LoadYear(c); }
    static MSFlexGrid& grid(int c) { return *child<MSFlexGrid>(year(c), "MSFlexGrid1"); }
    static ComboBox& selector(int c) { return *child<ComboBox>(year(c), "Combo1"); }
    static CommandButton& command(int c, int index) {
        return *child<CommandButton>(year(c), qPrintable(QStringLiteral("Command1_%1").arg(index)));
    }

    static void clickCommand(int c, int index) { click(&command(c, index)); }

    /// Command1 by index.
    enum Button : int {
        PreviousYear = 1,
        NextYear,
        TodayButton,
        OptionsButton,
        AboutButton,
        CloseButton,
        FirstOtherCalendar
    };

    /// Where a day of a month stands.
    static GridPlace cellOf(int c, int month, int day) {
        const GridPlace corner = cornerOnSheet(c, c == Jewish && JewishLeap ? 13 : 12, month);
        const int lead = (MonthDays(c, 13 + month) - Calc::WeekStart(c) + 7) % 7;
        return {corner.row + (lead + day - 1) % 7, corner.column + (lead + day - 1) / 7};
    }

    static void open(int c) {
        ChangeCals::OpenYearWindow(c);
        year(c).activateWindow();
        ASSERT_TRUE(waitUntil([c] { return year(c).isActiveWindow(); }));
    }

    static QPoint centreOf(MSFlexGrid& grid, GridPlace cell) {
        return grid.visualRect(grid.model()->index(cell.row, cell.column)).center();
    }

    static void press(int c, GridPlace cell, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(grid(c).viewport(), button, {}, centreOf(grid(c), cell));
    }

    static const GridCell& cellAt(int c, int row, int column) {
        return static_cast<GridModel*>(grid(c).model())->Cell(row, column);
    }

    /// Checks each cell of a filled grid against the state.
    static void expectEveryCellRight(int c) {
        const auto& cells = static_cast<const GridModel&>(*grid(c).model());
        const int columns = c == Jewish && JewishLeap ? 25 : 19;
        int marked = 0;
        for (int row = 0; row < 32; ++row) {
            for (int column = 0; column < columns; ++column)
                marked += checkCell(c, {row, column}, cells.Cell(row, column)) ? 1 : 0;
        }
        ASSERT_EQ(marked, 1) << "marked cells in year " << CurDate(c, Year);
    }

private:
    // Whether the cell is the marked one.
    static bool checkCell(int c, GridPlace at, const GridCell& cell) {
        EXPECT_EQ(cell.text, expectedText(c, at)) << at.row << " " << at.column;
        const bool chosen = cell.back == CalendarColors(ChosenDayBackground);
        if (chosen) {
            EXPECT_EQ(cell.text, QString::number(CurDate(c, Day)));
            EXPECT_EQ(at, cellOf(c, CurDate(c, Month), CurDate(c, Day)));
            EXPECT_EQ(cell.fore, TextColors(ChosenDayText));
        } else {
            EXPECT_EQ(cell.back, CalendarColors(c));
        }
        return chosen;
    }

    // Worked out from the band, not by the layout's own rules.
    static QString expectedText(int c, GridPlace at) {
        const int band = at.row / 8;
        if (at.column == 0)
            return at.row % 8 == 0
                       ? QString()
                       : Text(WeekDayAbbrs((Calc::WeekStart(c) - 1 + at.row % 8 - 1) % 7 + 1));
        const bool leap = c == Jewish && JewishLeap;
        const int block = (at.column - 1) / 6;
        if (block == 3 && band != 1)
            return {};
        const int month = band * 3 + block + 1 + (leap && band >= 2 ? 1 : 0);
        if (at.row % 8 == 0)
            return QStringLiteral("(%1)  %2").arg(month).arg(Text(MonthNames(c, month)));
        const int lead = (MonthDays(c, 13 + month) - Calc::WeekStart(c) + 7) % 7;
        const int day = (at.column - 1) % 6 * 7 + at.row % 8 - 1 - lead + 1;
        return day >= 1 && day <= MonthDays(c, month) ? QString::number(day) : QString();
    }
};
