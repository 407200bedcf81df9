// SPDX-License-Identifier: MIT
#include "changecals/changecals.h"
#include "changecals/opening.h"
#include "support/recording_windows.h"
#include "support/widget_test.h"

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
    ChangeCals::Monthly().Show();
    ChangeCals::Year(Moslem).Show();
    ChangeCals::Year(Julian).Show();
    ChangeCals::Moon().Show();
    ChangeCals::ChangeJD();
    EXPECT_EQ(takeCalls(),
              join({monthlyRedraw,
                    {"year1.ShowYear", "year4.ShowYear", "moon.ReSetForm, CurrentWindow 0"}}));
}

TEST_F(Updates, TheAskingYearWindowComesFirstAndOnceEvenIfHidden) {
    ChangeCals::Monthly().Show();
    ChangeCals::Year(Julian).Show();
    ChangeCals::Moon().Show();
    CurrentWindow = Jewish;
    ChangeCals::ChangeJD();
    EXPECT_EQ(takeCalls(), join({{"year3.ShowYear"},
                                 monthlyRedraw,
                                 {"year1.ShowYear", "moon.ReSetForm, CurrentWindow 0"}}));
    EXPECT_EQ(CurrentWindow, 0);
}

TEST_F(Updates, HiddenWindowsAreLeftAlone) {
    ChangeCals::Monthly().Show();
    ChangeCals::Year(Gregorian).Show();
    ChangeCals::Year(Gregorian).Hide();
    ChangeCals::Monthly().Hide();
    ChangeCals::ChangeCal(Gregorian);
    EXPECT_EQ(takeCalls(), Calls{});
}

TEST_F(Updates, MinimisedWindowsAreRedrawn) {
    ChangeCals::Year(Jewish).showMinimized();
    ChangeCals::ChangeJD();
    EXPECT_EQ(takeCalls(), Calls{"year3.ShowYear"});
}

TEST_F(Updates, AStoredWindowNumberThatIsNoneCountsAsTheMonthlyWindow) {
    ChangeCals::Year(Julian).Show();
    for (const int number : {5, 9, -1}) {
        CurrentWindow = number;
        ChangeCals::ChangeJD();
        EXPECT_EQ(takeCalls(), Calls{"year1.ShowYear"}) << number;
        EXPECT_EQ(CurrentWindow, 0);
    }
}

TEST_F(Updates, TodayWithoutAChangeDoesNothing) {
    ChangeCals::Year(Julian).Show();
    CurrentWindow = 0;
    ChangeCals::GoToToday(Jewish);
    EXPECT_EQ(takeCalls(), Calls{});
    EXPECT_EQ(CurrentWindow, 0);
}

TEST_F(Updates, TodayGoesThroughTheGregorianCalendar) {
    CurJD = 2451545;
    ChangeCals::ChangeJD();
    ChangeCals::Year(Jewish).Show();
    ChangeCals::Year(Julian).Show();
    ChangeCals::GoToToday(Jewish);
    EXPECT_EQ(dateIn(Gregorian), (Date{20, 11, 2026}));
    EXPECT_EQ(takeCalls(), (Calls{"year3.ShowYear", "year1.ShowYear"}));
}

TEST_F(Updates, OpeningAYearWindowShowsItUpToDateInFront) {
    ChangeCals::OpenYearWindow(Moslem);
    EXPECT_EQ(takeCalls(), Calls{"year4.ShowYear"});
    EXPECT_TRUE(ChangeCals::Year(Moslem).Visible());
}

TEST_F(Updates, ANumberThatIsNoCalendarOpensNothing) {
    for (const int c : {0, 5, 9, -1})
        ChangeCals::OpenYearWindow(c);
    EXPECT_EQ(takeCalls(), Calls{});
}

TEST_F(Updates, YearWindowsOfThePanesOpenFromTheLastToTheFirst) {
    CalendarOrder = {9, Jewish, Julian, Moslem};
    ChangeCals::OpenYearWindowsOfPanes();
    EXPECT_EQ(takeCalls(), (Calls{"year4.ShowYear", "year1.ShowYear", "year3.ShowYear"}));
}

TEST_F(Updates, TheMoonWindowIsRedrawnOnOpeningOnlyWhenItWasNotVisible) {
    ChangeCals::ShowMoonWindow();
    ChangeCals::ShowMoonWindow();
    EXPECT_EQ(takeCalls(), Calls{"moon.ReSetForm, CurrentWindow 0"});
}

TEST_F(Updates, TheMonthlyWindowIsRebuiltAndTheDayCarriedOnceWhenItWasNotVisible) {
    ChangeCals::Year(Moslem).Show();
    ChangeCals::ShowMonthlyWindow();
    EXPECT_EQ(takeCalls(), (Calls{"monthly.ReSetForm", "year4.ShowYear"}));
    EXPECT_TRUE(ChangeCals::Monthly().Visible());
    ChangeCals::ShowMonthlyWindow();
    EXPECT_EQ(takeCalls(), Calls{});
}

TEST_F(Updates, MinimisedWindowsComeBackWhenTheyAreAskedFor) {
    for (Form* window :
         {static_cast<Form*>(&ChangeCals::Monthly()), static_cast<Form*>(&ChangeCals::Year(Julian)),
          static_cast<Form*>(&ChangeCals::Moon())})
        window->showMinimized();
    ChangeCals::ShowMonthlyWindow();
    ChangeCals::OpenYearWindow(Julian);
    ChangeCals::ShowMoonWindow();
    for (const int number : {int{MonthlyWindowNumber}, int{Julian}, int{MoonWindowNumber}})
        EXPECT_EQ(ChangeCals::LoadedWindow(number)->WindowState(), Form::Normal) << number;
}

TEST_F(Updates, BringingUpTheMonthlyWindowKeepsTheChosenDay) {
    for (int julianDay = 1721319; julianDay <= 2817404; julianDay += 997) {
        CurJD = julianDay;
        ChangeCals::ChangeJD();
        const StateSnapshot before;
        ChangeCals::ShowMonthlyWindow();
        ChangeCals::Monthly().Hide();
        ASSERT_EQ(StateSnapshot{}, before) << julianDay;
    }
}

} // namespace
