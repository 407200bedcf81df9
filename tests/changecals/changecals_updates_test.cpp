// SPDX-License-Identifier: MIT
#include "changecals/changecals.h"

#include "support/platform_accessible.h"
#include "support/recording_windows.h"
#include "support/widget_test.h"

#include <QPushButton>
#include <algorithm>

namespace {

using Calls = std::vector<std::string>;

class Updates : public WidgetTest {
protected:
    Updates() {
        startToday();
        useRecordingWindows();
    }
};

const Calls monthlyRedraw{"monthly.SetCal 1",  "monthly.SetGrid 1", "monthly.SetCal 2",
                          "monthly.SetGrid 2", "monthly.SetCal 3",  "monthly.SetGrid 3",
                          "monthly.SetCal 4",  "monthly.SetGrid 4", "monthly.SetCommonInfo"};

Calls join(std::initializer_list<Calls> parts) {
    Calls all;
    for (const Calls& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

TEST_F(Updates, NothingIsRedrawnOrCreatedWhileNothingIsVisible) {
    ChangeCals::ChangeJD();
    EXPECT_EQ(takeCalls(), Calls{});
    EXPECT_EQ(ChangeCals::LoadedWindow(MonthlyWindowNumber), nullptr);
}

TEST_F(Updates, TheMonthlyWindowComesFirstThenTheYearWindowsThenTheMoon) {
    ChangeCals::LoadMonthly().Show();
    ChangeCals::LoadYear(Moslem).Show();
    ChangeCals::LoadYear(Julian).Show();
    ChangeCals::LoadMoon().Show();
    ChangeCals::ChangeJD();
    EXPECT_EQ(takeCalls(),
              join({monthlyRedraw,
                    {"year1.ShowYear", "year4.ShowYear", "moon.ReSetForm, CurrentWindow 0"}}));
}

TEST_F(Updates, TheAskingYearWindowComesFirstAndOnceEvenIfHidden) {
    ChangeCals::LoadMonthly().Show();
    ChangeCals::LoadYear(Julian).Show();
    ChangeCals::LoadMoon().Show();
    CurrentWindow = Jewish;
    ChangeCals::ChangeJD();
    EXPECT_EQ(takeCalls(), join({{"year3.ShowYear"},
                                 monthlyRedraw,
                                 {"year1.ShowYear", "moon.ReSetForm, CurrentWindow 0"}}));
    EXPECT_EQ(CurrentWindow, 0);
}

TEST_F(Updates, HiddenWindowsAreLeftAlone) {
    ChangeCals::LoadMonthly().Show();
    ChangeCals::LoadYear(Gregorian).Show();
    ChangeCals::LoadYear(Gregorian).Hide();
    ChangeCals::LoadMonthly().Hide();
    ChangeCals::ChangeCal(Gregorian);
    EXPECT_EQ(takeCalls(), Calls{});
}

TEST_F(Updates, AWindowThatIsVisibleAloneIsRedrawnAndRebuiltAlone) {
    const Table<bool, calendarCount> all{true, true, true, true};
    ChangeCals::LoadMonthly().Show();
    ChangeCals::ChangeJD();
    EXPECT_EQ(takeCalls(), monthlyRedraw);
    ChangeCals::RebuildWindows(all);
    EXPECT_EQ(takeCalls(), Calls{"monthly.ReSetForm"});
    ChangeCals::LoadMonthly().Hide();
    ChangeCals::LoadMoon().Show();
    ChangeCals::ChangeJD();
    EXPECT_EQ(takeCalls(), Calls{"moon.ReSetForm, CurrentWindow 0"});
    ChangeCals::RebuildWindows(all);
    EXPECT_EQ(takeCalls(), Calls{"moon.ReSetForm, CurrentWindow 0"});
}

TEST_F(Updates, MinimisedWindowsAreRedrawn) {
    ChangeCals::LoadYear(Jewish).showMinimized();
    ChangeCals::ChangeJD();
    EXPECT_EQ(takeCalls(), Calls{"year3.ShowYear"});
}

TEST_F(Updates, AStoredWindowNumberThatIsNoneCountsAsTheMonthlyWindow) {
    ChangeCals::LoadYear(Julian).Show();
    for (const int number : {5, 9, -1}) {
        CurrentWindow = number;
        ChangeCals::ChangeJD();
        EXPECT_EQ(takeCalls(), Calls{"year1.ShowYear"}) << number;
        EXPECT_EQ(CurrentWindow, 0);
    }
}

TEST_F(Updates, AChosenDateIsCarriedAndItsWindowComesFirst) {
    for (const int c : {Julian, Jewish})
        ChangeCals::LoadYear(c).Show();
    ChangeCals::ChooseDate(Moslem, {11, 6, 1448}, YearWindowNumber(Jewish));
    EXPECT_EQ(CurJD, 2461366);
    EXPECT_EQ(takeCalls(), (Calls{"year3.ShowYear", "year1.ShowYear"}));
    ChangeCals::ChooseJulianDay(2461365, MoonWindowNumber);
    EXPECT_EQ(dateIn(Gregorian), (Date{20, 11, 2026}));
    EXPECT_EQ(takeCalls(), (Calls{"year1.ShowYear", "year3.ShowYear"}));
    ChangeCals::ChooseJulianDay(2461364, YearWindowNumber(Jewish));
    EXPECT_EQ(takeCalls(), (Calls{"year3.ShowYear", "year1.ShowYear"}));
    EXPECT_EQ(CurrentWindow, 0);
}

TEST_F(Updates, NoChangeOfAListIsTakenForTheUsersWhileTheDayIsCarried) {
    class Watching : public RecordingMonthly {
        void SetCommonInfo() override {
            ::record((Updating ? "updating, asked by " : "free, ") + std::to_string(CurrentWindow));
        }
    };
    auto factories = recordingFactories();
    factories.monthly = [] { return new Watching; };
    ChangeCals::BeginRun(factories);
    ChangeCals::LoadMonthly().Show();
    ChangeCals::ChooseDate(Gregorian, {1, 1, 2000}, MonthlyWindowNumber);
    ChangeCals::ChooseJulianDay(2451546, MonthlyWindowNumber);
    EXPECT_EQ(std::ranges::count(calls, "updating, asked by 0"), 2);
    EXPECT_FALSE(Updating);
}

TEST_F(Updates, TodayWithoutAChangeDoesNothing) {
    ChangeCals::LoadYear(Julian).Show();
    CurrentWindow = 0;
    ChangeCals::GoToToday(YearWindowNumber(Jewish));
    EXPECT_EQ(takeCalls(), Calls{});
    EXPECT_EQ(CurrentWindow, 0);
}

TEST_F(Updates, TodayGoesThroughTheGregorianCalendar) {
    CurJD = 2451545;
    ChangeCals::ChangeJD();
    ChangeCals::LoadYear(Jewish).Show();
    ChangeCals::LoadYear(Julian).Show();
    ChangeCals::GoToToday(YearWindowNumber(Jewish));
    EXPECT_EQ(dateIn(Gregorian), (Date{20, 11, 2026}));
    EXPECT_EQ(takeCalls(), (Calls{"year3.ShowYear", "year1.ShowYear"}));
}

TEST_F(Updates, AChosenDayIsAnsweredByTheWindowWithTheKeyboard) {
    class Talking : public Form {
    public:
        Talking() : Form(QStringLiteral("frmTalking")) {}
        QString Answer() const override { return QString::number(CurJD); }
    };
    Talking window;
    auto* button = new QPushButton(&window);
    showWithFocus(window, *button);
    processEvents();
    AccessibleWatch watch;
    ChangeCals::ChooseJulianDay(2461366, MonthlyWindowNumber);
    EXPECT_EQ(watch.take(QAccessible::Focus),
              (std::vector<AccessibleWatch::Told>{
                  {QAccessible::Focus, &window, QStringLiteral("2461366")}}));
}

TEST_F(Updates, AFirstWeekdayIsAppliedToItsCalendarAlone) {
    for (const int c : {Julian, Gregorian, Jewish, Moslem}) {
        const ChangeCals::Rules before;
        FirstWeekDay(c) = Monday;
        CurDate(c, WeekNumber) = 99;
        Table<bool, calendarCount> expected;
        expected(c) = true;
        EXPECT_EQ(ChangeCals::ChangeRules(before), expected) << c;
        EXPECT_NE(CurDate(c, WeekNumber), 99) << c;
    }
}

} // namespace
