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
    for (const char* year : {"2026", "2027"}) {
        Controls::ShowYearInList(list, Gregorian);
        EXPECT_EQ(list.ListCount(), 1);
        EXPECT_EQ(list.Text(), QLatin1String(year));
        goTo(CurJD + 366);
    }
    fill(Gregorian);
    goTo(CurJD + 366);
    Controls::ShowYearInList(list, Gregorian);
    EXPECT_EQ(list.ListCount(), 3000);
    EXPECT_EQ(list.Text(), QStringLiteral("2029"));
}

TEST_F(YearLists, ShowTheFirstAndTheLastYearAmongTheOthers) {
    fill(Gregorian);
    const struct {
        int julianDay, position;
    } rows[] = {{1721426, 0}, {2817152, 2999}}; // 1 January 1 and 31 December 3000
    for (const auto& row : rows) {
        goTo(row.julianDay);
        Controls::ShowYearInList(list, Gregorian);
        EXPECT_EQ(list.ListCount(), 3000);
        EXPECT_EQ(list.ListIndex(), row.position);
    }
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
