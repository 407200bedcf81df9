// SPDX-License-Identifier: MIT
#include "changecals/opening.h"

#include "changecals/changecals.h"
#include "support/recording_windows.h"
#include "support/widget_test.h"

#include <utility>

namespace {

using Calls = std::vector<std::string>;

class Opening : public WidgetTest {
protected:
    Opening() {
        startToday();
        useRecordingWindows();
    }
};

TEST_F(Opening, OpeningAYearWindowShowsItUpToDateInFront) {
    ChangeCals::OpenYearWindow(Moslem);
    EXPECT_EQ(takeCalls(), Calls{"year4.ShowYear"});
    EXPECT_TRUE(ChangeCals::LoadYear(Moslem).Visible());
}

TEST_F(Opening, ANumberThatIsNoCalendarOpensNothing) {
    for (const int c : {0, 5, 9, -1})
        ChangeCals::OpenYearWindow(c);
    EXPECT_EQ(takeCalls(), Calls{});
}

TEST_F(Opening, YearWindowsOfThePanesOpenFromTheLastToTheFirst) {
    CalendarOrder = {9, Jewish, Julian, Moslem};
    ChangeCals::OpenYearWindowsOfPanes();
    EXPECT_EQ(takeCalls(), (Calls{"year4.ShowYear", "year1.ShowYear", "year3.ShowYear"}));
    for (const int c : {Jewish, Julian, Moslem})
        EXPECT_TRUE(ChangeCals::LoadYear(c).Visible()) << c;
}

TEST_F(Opening, TheYearWindowOfTheFirstPaneGetsTheKeyboard) {
    CalendarOrder = {Gregorian, Jewish, Julian, Moslem};
    ChangeCals::LoadYear(Gregorian).showMinimized();
    ChangeCals::OpenYearWindowsOfPanes();
    EXPECT_TRUE(waitUntil([] { return ChangeCals::LoadYear(Gregorian).isActiveWindow(); }));
    EXPECT_EQ(ChangeCals::LoadYear(Gregorian).WindowState(), Form::Normal);
}

TEST_F(Opening, PanesWithoutCalendarsOpenNothing) {
    CalendarOrder = {9, 0, -1, 5};
    ChangeCals::OpenYearWindowsOfPanes();
    EXPECT_EQ(takeCalls(), Calls{});
}

TEST_F(Opening, TheMoonWindowIsRedrawnOnOpeningOnlyWhenItWasNotVisible) {
    ChangeCals::ShowMoonWindow();
    EXPECT_EQ(takeCalls(), Calls{"moon.ReSetForm, CurrentWindow 0"});
    ChangeCals::ShowMoonWindow();
    EXPECT_EQ(takeCalls(), Calls{});
}

TEST_F(Opening, TheMonthlyWindowIsRebuiltAndTheDayCarriedOnceWhenItWasNotVisible) {
    ChangeCals::LoadYear(Moslem).Show();
    CurrentWindow = Julian; // asked last, and not visible
    ChangeCals::ShowMonthlyWindow();
    EXPECT_EQ(takeCalls(), (Calls{"monthly.ReSetForm", "year4.ShowYear"}));
    EXPECT_TRUE(ChangeCals::LoadMonthly().Visible());
    ChangeCals::ShowMonthlyWindow();
    EXPECT_EQ(takeCalls(), Calls{});
}

TEST_F(Opening, MinimisedWindowsComeBackWhenTheyAreAskedFor) {
    for (Form* window : {static_cast<Form*>(&ChangeCals::LoadMonthly()),
                         static_cast<Form*>(&ChangeCals::LoadYear(Julian)),
                         static_cast<Form*>(&ChangeCals::LoadMoon())})
        window->showMinimized();
    ChangeCals::ShowMonthlyWindow();
    ChangeCals::OpenYearWindow(Julian);
    ChangeCals::ShowMoonWindow();
    for (const auto number : {MonthlyWindowNumber, YearWindowNumber(Julian), MoonWindowNumber})
        EXPECT_EQ(ChangeCals::LoadedWindow(number)->WindowState(), Form::Normal) << number;
}

TEST_F(Opening, BringingUpTheMonthlyWindowKeepsTheChosenDay) {
    for (int julianDay = 1721319; julianDay <= 2817404; julianDay += 997) {
        CurJD = julianDay;
        ChangeCals::ChangeJD();
        const StateSnapshot before;
        ChangeCals::ShowMonthlyWindow();
        ChangeCals::LoadMonthly().Hide();
        ASSERT_EQ(StateSnapshot{}, before) << julianDay;
    }
}

TEST_F(Opening, YearWindowsAreUpToDateBeforeTheyAreSeen) {
    class Watching : public RecordingYear {
    public:
        using RecordingYear::RecordingYear;
        void ShowYear() override { ::record(Visible() ? "seen" : "unseen"); }
    };
    auto factories = recordingFactories();
    factories.year = [](int c) { return new Watching(c); };
    ChangeCals::BeginRun(std::move(factories));
    ChangeCals::OpenYearWindow(Moslem);
    EXPECT_EQ(takeCalls(), Calls{"unseen"});
    ChangeCals::LoadYear(Moslem).Hide();
    ChangeCals::OpenYearWindowsOfPanes();
    EXPECT_EQ(takeCalls(), (Calls{"unseen", "unseen", "unseen", "unseen"}));
}

} // namespace
