// SPDX-License-Identifier: MIT
#include "changecals/windows.h"
#include "shared/mainwindows.h"

#include "shared/settings.h"
#include "shared/table.h"
#include "shared/texts.h"

#include <QEvent>
#include <QPointer>
#include <algorithm>
#include <array>

namespace {

ChangeCals::WindowFactories windowFactories;

QPointer<MonthlyWindow> monthly;
Table<QPointer<YearWindow>, calendarCount> years;
QPointer<MoonWindow> moon;
QPointer<Form> options;
QPointer<Form> about;

bool leaving = false;

// An unloaded window still lives until its events are done.
template <typename Window>
bool isLoaded(const QPointer<Window>& window) {
    return window && !window->IsUnloaded();
}

template <typename Window, typename Maker>
Window& loaded(QPointer<Window>& window, const Maker& maker) {
    if (!isLoaded(window))
        window = maker();
    return *window;
}

template <typename Action>
void forAllWindows(const Action& action) {
    for (int c = 1; c <= calendarCount; ++c)
        action(years(c).data());
    action(monthly.data());
    action(moon.data());
    action(options.data());
    action(about.data());
}

// The order in which the calendar windows are asked and told.
constexpr std::array calendarWindows{MonthlyWindowNumber, YearWindowNumber(Julian),
                                     YearWindowNumber(Gregorian), YearWindowNumber(Jewish),
                                     YearWindowNumber(Moslem)};

CalendarWindow* loadedCalendarWindow(MainWindowNumber window) {
    if (window == MonthlyWindowNumber)
        return isLoaded(monthly) ? monthly.data() : nullptr;
    return ChangeCals::LoadedYear(window);
}

void setCloseTips(int text) {
    for (const MainWindowNumber number : calendarWindows) {
        if (CalendarWindow* window = loadedCalendarWindow(number))
            window->SetCloseTip(text);
    }
}

} // namespace

bool CalendarWindow::event(QEvent* event) {
    const bool isDone = MainWindow::event(event);
    const bool comesOrGoes = event->type() == QEvent::Show || event->type() == QEvent::Hide;
    if (comesOrGoes && !event->spontaneous() && !leaving)
        ChangeCals::RefreshCloseTips();
    return isDone;
}

void MonthlyWindow::RefillPane(int pane) {
    SetCal(pane);
    SetGrid(pane);
}

void MonthlyWindow::Refill() {
    for (int pane = 1; pane <= paneCount; ++pane)
        RefillPane(pane);
    SetCommonInfo();
}

void ChangeCals::BeginRun(WindowFactories factories) {
    windowFactories = std::move(factories);
    leaving = false;
}

WindowSizes& ChangeCals::LargestSizes() {
    return windowFactories.sizes;
}

void ChangeCals::EndRun() {
    forAllWindows([](Form* window) { delete window; });
}

MonthlyWindow& ChangeCals::LoadMonthly() {
    return loaded(monthly, windowFactories.monthly);
}

YearWindow& ChangeCals::LoadYear(int c) {
    return loaded(years(c), [c] { return windowFactories.year(c); });
}

MoonWindow& ChangeCals::LoadMoon() {
    return loaded(moon, windowFactories.moon);
}

Form& ChangeCals::LoadOptions() {
    return loaded(options, windowFactories.options);
}

Form& ChangeCals::LoadAbout() {
    return loaded(about, windowFactories.about);
}

void ChangeCals::Print(Paper paper, int c) {
    windowFactories.print(paper, c);
}

MainWindow* ChangeCals::LoadedWindow(MainWindowNumber window) {
    if (window == MoonWindowNumber)
        return isLoaded(moon) ? moon.data() : nullptr;
    return loadedCalendarWindow(window);
}

YearWindow* ChangeCals::LoadedYear(int c) {
    return isLoaded(years(c)) ? years(c).data() : nullptr;
}

bool ChangeCals::IsVisible(MainWindowNumber window) {
    const MainWindow* form = LoadedWindow(window);
    return form != nullptr && form->Visible();
}

int ChangeCals::CountOpenWindows() {
    return static_cast<int>(std::ranges::count_if(calendarWindows, IsVisible));
}

void ChangeCals::SetCloseTipsSeveral() {
    setCloseTips(CloseOrExitText);
}

void ChangeCals::RefreshCloseTips() {
    if (CountOpenWindows() < 2)
        setCloseTips(ExitText);
    else
        SetCloseTipsSeveral();
}

void ChangeCals::UnloadAbout() {
    if (isLoaded(about))
        about->Unload();
}

void ChangeCals::HideAllWindows() {
    forAllWindows([](Form* window) {
        if (window != nullptr)
            window->hide();
    });
}

bool ChangeCals::IsLeaving() {
    return leaving;
}

void ChangeCals::SetLeaving() {
    leaving = true;
}
