// SPDX-License-Identifier: MIT
#include "changecals/opening.h"

#include "changecals/changecals.h"
#include "changecals/closing.h"
#include "changecals/windows.h"
#include "shared/calendars.h"
#include "shared/flags.h"
#include "shared/settings.h"

void ChangeCals::OpenYearWindow(int c) {
    if (!isCalendar(c))
        return;
    YearWindow& window = Year(c);
    window.ShowYear();
    window.Show();
    RefreshCloseTips();
}

// Only the last window asks for the keyboard: one that comes back from the
// minimised state would get it later than the others.
void ChangeCals::OpenYearWindowsOfPanes() {
    YearWindow* last = nullptr;
    for (int pane = 4; pane >= 1; --pane) {
        if (!isCalendar(CalendarOrder(pane)))
            continue;
        last = &Year(CalendarOrder(pane));
        last->ShowYear();
        last->ShowInFront();
    }
    if (last != nullptr)
        last->Show();
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
