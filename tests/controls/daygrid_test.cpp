// SPDX-License-Identifier: MIT
#include "controls/daygrid.h"

#include "shared/colors.h"
#include "support/recording_windows.h"
#include "support/widget_test.h"

#include <QAbstractItemModel>
#include <QItemSelectionModel>
#include <QSignalSpy>

namespace {

/// The months of the Gregorian year side by side, each under a title row.
class Months final : public DayGrid {
public:
    Months()
        : DayGrid(QStringLiteral("months"), 1, 1, 1 + 12 * monthColumns, MonthlyWindowNumber,
                  nullptr) {}
    using DayGrid::ChoosePressedDay;
    using DayGrid::FillMonth;
    using DayGrid::FillWeekdays;
    using DayGrid::MarkChosenDay;
    using DayGrid::SetCalendar;

protected:
    GridPlace CornerOf(int month) const override { return {1, 1 + (month - 1) * monthColumns}; }
    int MonthOf(GridPlace cell) const override { return (cell.column - 1) / monthColumns + 1; }
    int FirstMonth() const override { return 1; }
    int LastMonth() const override { return 12; }
};

/// November 2026 begins on a Sunday, which here opens the week, and the 20th is marked.
class DayGrids : public WidgetTest {
protected:
    DayGrids() {
        startToday();
        useRecordingWindows();
        grid.SetCalendar(Gregorian);
        for (int month = 1; month <= 12; ++month)
            grid.FillMonth(month);
        grid.FillWeekdays();
        grid.MarkChosenDay();
    }

    /// The day that a press chooses, where it chooses one.
    std::optional<int> pressed(GridPlace cell) {
        grid.MoveTo(cell);
        WeekDayNo = 0; // which every choice sets
        grid.ChoosePressedDay();
        return WeekDayNo == 0 ? std::nullopt : std::optional(CurDate(Gregorian, Day));
    }

    /// The cells that look like the chosen day.
    std::vector<GridPlace> red() {
        std::vector<GridPlace> cells;
        for (int row = 0; row < grid.Rows(); ++row) {
            for (int column = 0; column < grid.Cols(); ++column) {
                grid.SetRow(row);
                grid.SetCol(column);
                if (grid.CellBackColor() == 0x0000FF)
                    cells.push_back({row, column});
            }
        }
        return cells;
    }

    Months grid;
};

constexpr int november = 1 + 10 * DayGrid::monthColumns; // its first column
constexpr GridPlace twentieth{6, november + 2};
constexpr GridPlace twentyFirst{7, november + 2};

TEST_F(DayGrids, SayWhichCellHoldsADay) {
    EXPECT_EQ(grid.CellOf(11, 1), (GridPlace{1, november}));
    EXPECT_EQ(grid.CellOf(11, 20), twentieth);
    EXPECT_EQ(grid.TextMatrix(6, november + 2), QStringLiteral("20"));
    EXPECT_EQ(grid.MonthAt(twentieth), 11);
    EXPECT_EQ(grid.MonthAt({6, 0}), 0);
    EXPECT_EQ(grid.MonthAt({0, november}), 0);
    EXPECT_EQ(grid.MonthAt({7, november + 5}), 0);
}

TEST_F(DayGrids, TakeAPressOnEveryDayButTheMarkedOne) {
    EXPECT_EQ(pressed(twentyFirst), 21);
    EXPECT_EQ(pressed(twentieth), std::nullopt);
    EXPECT_EQ(pressed({6, 0}), std::nullopt);
    EXPECT_EQ(pressed({0, november}), std::nullopt);
    EXPECT_EQ(pressed({7, november + 5}), std::nullopt);
}

TEST_F(DayGrids, KnowTheirMarkByItsPlaceWhateverItsColour) {
    grid.MoveTo(twentyFirst);
    grid.SetCellBackColor(CalendarColors(ChosenDayBackground));
    EXPECT_EQ(pressed(twentyFirst), 21);
    grid.MoveTo(twentieth);
    grid.SetCellBackColor(CalendarColors(Gregorian));
    EXPECT_EQ(pressed(twentieth), std::nullopt);
    EXPECT_EQ(grid.SelectedCell(), twentieth);
}

TEST_F(DayGrids, MoveTheirMark) {
    EXPECT_EQ(red(), std::vector{twentieth});
    goTo(CurJD + 1);
    grid.MarkChosenDay();
    EXPECT_EQ(red(), std::vector{twentyFirst});
    EXPECT_EQ(grid.SelectedCell(), twentyFirst);
}

TEST_F(DayGrids, TellOfAMovedMarkWhenItHasMoved) {
    const QSignalSpy moved(grid.selectionModel(), &QItemSelectionModel::currentChanged);
    const QSignalSpy changed(grid.model(), &QAbstractItemModel::dataChanged);
    grid.MoveTo(twentyFirst);
    goTo(CurJD + 1);
    grid.MarkChosenDay();
    EXPECT_EQ(moved.count(), 1) << "there, and not back and there again";
    EXPECT_EQ(changed.count(), 2) << "the former cell and the new one";
}

TEST_F(DayGrids, HaveNoCalendarBeforeTheFirst) {
    EXPECT_EQ(Months().Calendar(), 0);
    EXPECT_EQ(grid.Calendar(), Gregorian);
}

TEST_F(DayGrids, HaveNoMarkInOtherColours) {
    grid.SetCalendar(Julian);
    EXPECT_EQ(red(), std::vector<GridPlace>());
    EXPECT_FALSE(grid.Contains(grid.SelectedCell()));
    grid.SetCalendar(9);
    EXPECT_EQ(grid.CellBackColor(), 0xFFFFFF) << "no calendar's";
    EXPECT_EQ(grid.CellForeColor(), 0x800000);
}

} // namespace
