// SPDX-License-Identifier: MIT
#pragma once

#include "changecals/firstplaces.h"
#include "platform/form.h"

#include <functional>

// The windows as they see each other.

/// One of the six windows whose positions are stored.
class MainWindow : public Form {
    Q_OBJECT

public:
    using Form::Form;

    /// Caption and tool tips in the language now chosen; the tips are empty when
    /// ShowTips is off. Accessible names are set in either case.
    virtual void SetTexts() = 0;
};

/// One of the five windows of which the last to go ends the program.
class CalendarWindow : public MainWindow {
    Q_OBJECT

public:
    using MainWindow::MainWindow;

    /// The tip of the close button, an entry of StringTexts.
    virtual void SetCloseTip(int text) = 0;

protected:
    /// One that comes or goes brings the close tips of all up to date.
    bool event(QEvent* event) override;
};

/// The window of the four panes 1..4.
class MonthlyWindow : public CalendarWindow {
    Q_OBJECT

public:
    using CalendarWindow::CalendarWindow;

    /// Refills a pane's selectors; always followed by SetGrid of that pane.
    virtual void SetCal(int pane) = 0;

    /// Refills a pane's month grid.
    virtual void SetGrid(int pane) = 0;

    /// Refills weekday, moon and Julian Day.
    virtual void SetCommonInfo() = 0;

    /// Rebuilds all of it.
    virtual void ReSetForm() = 0;

    /// Refills a pane, and all of it.
    void RefillPane(int pane);
    void Refill();
};

/// The year window of one calendar.
class YearWindow : public CalendarWindow {
    Q_OBJECT

public:
    using CalendarWindow::CalendarWindow;

    /// Brings it up to date with the chosen day.
    virtual void ShowYear() = 0;

    /// What is filled in is out of date: the next ShowYear refills all of it.
    virtual void ForgetYear() = 0;
};

class MoonWindow : public MainWindow {
    Q_OBJECT

public:
    using MainWindow::MainWindow;

    /// Draws the moon of the chosen day.
    virtual void ReSetForm() = 0;
};

/// What can be printed of a calendar: the year or the month of the chosen day.
enum class Paper { Year, Month };

namespace ChangeCals {

/// Make a window, loaded but not shown; the last one prints.
struct WindowFactories {
    std::function<MonthlyWindow*()> monthly;
    std::function<YearWindow*(int c)> year;
    std::function<MoonWindow*()> moon;
    std::function<Form*()> options;
    std::function<Form*()> about;
    std::function<void(Paper paper, int c)> print = {};

    /// Of the contents at their largest, as far as they are known before the
    /// windows are made.
    WindowSizes sizes{};
};

/// A run of the program begins: its windows are made by these, and nothing is
/// ending.
void BeginRun(WindowFactories factories);

/// A run is over: destroys every window; none is to be used afterwards.
void EndRun();

/// The single instances, created on first use and afresh after an unloading.
MonthlyWindow& LoadMonthly();
YearWindow& LoadYear(int c);
MoonWindow& LoadMoon();
Form& LoadOptions();
Form& LoadAbout();

/// Has the user choose a printer or a file, and prints. Beeps where c is no
/// calendar or cannot show the chosen day.
void Print(Paper paper, int c);

/// Of the contents at their largest; a window that is placed tells its own.
WindowSizes& LargestSizes();

/// A main window, nullptr while it is not loaded.
MainWindow* LoadedWindow(MainWindowNumber window);
YearWindow* LoadedYear(int c);

/// Whether a main window is loaded and visible.
bool IsVisible(MainWindowNumber window);

/// How many of the calendar windows are visible, 0..5, minimised ones included.
/// One that is not loaded counts as not visible.
int CountOpenWindows();

/// Gives every close button the tool tip of several open windows.
void SetCloseTipsSeveral();

/// Gives every close button the tool tip that the number of open windows asks
/// for.
void RefreshCloseTips();

/// Unloads the about box where it is loaded.
void UnloadAbout();

/// Takes every window from the screen without telling it.
void HideAllWindows();

/// The run is ending: windows that go need not tell.
bool IsLeaving();
void SetLeaving();

} // namespace ChangeCals
