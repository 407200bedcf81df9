// SPDX-License-Identifier: MIT
#include "changecals/opening.h"

#include "changecals/changecals.h"
#include "changecals/closing.h"
#include "changecals/windows.h"
#include "shared/calendars.h"
#include "shared/flags.h"
#include "shared/settings.h"

namespace {

void bringUpYearWindow(int c) {
    if (!isCalendar(c))
        return;
    YearWindow& window = ChangeCals::Year(c);
    window.ShowYear();
    window.Show();
}

} // namespace

void ChangeCals::OpenYearWindow(int c) {
    bringUpYearWindow(c);
    RefreshCloseTips();
}

void ChangeCals::OpenYearWindowsOfPanes() {
    for (int pane = 4; pane >= 1; --pane)
        bringUpYearWindow(CalendarOrder(pane));
    RefreshCloseTips();
}

void ChangeCals::ShowMoonWindow() {
    MoonWindow& window = Moon();
    if (!window.Visible())
        window.ReSetForm();
    window.Show();
}

void ChangeCals::ShowMonthlyWindow() {
    MonthlyWindow& window = Monthly();
    if (!window.Visible()) {
        window.ReSetForm();
        CurrentWindow = 0;
        ChangeCal(Jewish); // whichever calendar the user comes from
    }
    window.Show();
    RefreshCloseTips();
}

void ChangeCals::ShowOptions() {
    Options().Show();
}

void ChangeCals::ShowAbout() {
    About().Show();
}

void ChangeCals::SetAllTexts() {
    for (int number = 1; number <= mainWindowCount; ++number) {
        if (MainWindow* window = LoadedWindow(number))
            window->SetTexts();
    }
    RefreshCloseTips();
}
