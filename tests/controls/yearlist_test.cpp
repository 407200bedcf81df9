// SPDX-License-Identifier: MIT
#include "controls/yearlist.h"

#include "calc/state.h"
#include "shared/flags.h"
#include "support/recording_windows.h"
#include "support/widget_test.h"

namespace {

class YearLists : public WidgetTest {
protected:
    YearLists() {
        startToday();
        useRecordingWindows();
        list.SetOrigin([] { return CurJD; });
    }

    void fill(int c) {
        const ListEntries entries = Controls::YearEntries(c);
        list.SetItems(entries.texts, entries.chosen);
    }

    ComboBox list{QStringLiteral("Combo1"), nullptr};
};

TEST_F(YearLists, HoldAllYearsOfTheirCalendar) {
    const struct {
        int calendar, years, chosen;
        const char *first, *last;
    } rows[] = {{Gregorian, 3000, 2025, "1", "3000"}, {Jewish, 3001, 2026, "3761", "6761"}};
    for (const auto& row : rows) {
        fill(row.calendar);
        EXPECT_EQ(list.ListCount(), row.years);
        EXPECT_EQ(list.ListIndex(), row.chosen);
        EXPECT_EQ(list.itemText(0), QLatin1String(row.first));
        EXPECT_EQ(list.itemText(row.years - 1), QLatin1String(row.last));
    }
}

TEST_F(YearLists, ShowTheChosenYearAloneUntilTheyAreFull) {
    Controls::ShowYearInList(list, Gregorian);
    EXPECT_EQ(list.ListCount(), 1);
    EXPECT_EQ(list.Text(), QStringLiteral("2026"));
    fill(Gregorian);
    goTo(CurJD + 366);
    Controls::ShowYearInList(list, Gregorian);
    EXPECT_EQ(list.ListCount(), 3000);
    EXPECT_EQ(list.Text(), QStringLiteral("2027"));
}

TEST_F(YearLists, ShowAYearForWhichTheyHaveNoPlaceAlone) {
    fill(Gregorian);
    goTo(2817153); // 1 January 3001
    Controls::ShowYearInList(list, Gregorian);
    EXPECT_EQ(list.ListCount(), 1);
    EXPECT_EQ(list.Text(), QStringLiteral("3001"));
}

TEST_F(YearLists, CarryTheYearThatIsChosen) {
    fill(Gregorian);
    list.SetListIndex(1999);
    Controls::ChooseYearOf(list, Gregorian, MonthlyWindowNumber);
    EXPECT_EQ(ChosenDate(Gregorian), (Date{20, 11, 2000}));
}

TEST_F(YearLists, ChooseNothingAgainOrAloneOrWhileTheyAreFilled) {
    const int before = CurJD;
    fill(Gregorian);
    Controls::ChooseYearOf(list, Gregorian, MonthlyWindowNumber);
    list.SetListIndex(1999);
    {
        const UpdatingGuard updating;
        Controls::ChooseYearOf(list, Gregorian, MonthlyWindowNumber);
    }
    list.SetOnlyItem(QStringLiteral("2026"));
    Controls::ChooseYearOf(list, Gregorian, MonthlyWindowNumber);
    EXPECT_EQ(CurJD, before);
}

} // namespace
