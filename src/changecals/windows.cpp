// SPDX-License-Identifier: MIT
#include "changecals/windows.h"

#include "shared/settings.h"
#include "shared/table.h"

#include <QPointer>

namespace {

ChangeCals::WindowFactories make;

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

} // namespace

void ChangeCals::BeginRun(WindowFactories factories) {
    make = std::move(factories);
    leaving = false;
}

WindowSizes& ChangeCals::LargestSizes() {
    return make.sizes;
}

void ChangeCals::EndRun() {
    forAllWindows([](Form* window) { delete window; });
}

MonthlyWindow& ChangeCals::LoadMonthly() {
    return loaded(monthly, make.monthly);
}

YearWindow& ChangeCals::LoadYear(int c) {
    return loaded(years(c), [c] { return make.year(c); });
}

MoonWindow& ChangeCals::LoadMoon() {
    return loaded(moon, make.moon);
}

Form& ChangeCals::LoadOptions() {
    return loaded(options, make.options);
}

Form& ChangeCals::LoadAbout() {
    return loaded(about, make.about);
}

void ChangeCals::Print(Paper paper, int c) {
    make.print(paper, c);
}

MainWindow* ChangeCals::LoadedWindow(int number) {
    if (number == MoonWindowNumber)
        return isLoaded(moon) ? moon.data() : nullptr;
    return LoadedCalendarWindow(number);
}

CalendarWindow* ChangeCals::LoadedCalendarWindow(int number) {
    if (number == MonthlyWindowNumber)
        return isLoaded(monthly) ? monthly.data() : nullptr;
    return LoadedYear(number);
}

YearWindow* ChangeCals::LoadedYear(int c) {
    return isLoaded(years(c)) ? years(c).data() : nullptr;
}

bool ChangeCals::IsVisible(int number) {
    const MainWindow* window = LoadedWindow(number);
    return window != nullptr && window->Visible();
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
