// SPDX-License-Identifier: MIT
#include "changecals/opening.h"

#include "calc/state.h"
#include "changecals/changecals.h"
#include "changecals/windows.h"
#include "shared/calendars.h"
#include "shared/mainwindows.h"
#include "shared/settings.h"

void ChangeCals::OpenYearWindow(int c) {
    if (!IsCalendar(c))
        return;
    YearWindow& window = LoadYear(c);
    window.ShowYear();
    window.Show();
}

// Only the last window asks for the keyboard: one that comes back from the
// minimised state would get it later than the others.
void ChangeCals::OpenYearWindowsOfPanes() {
    YearWindow* last = nullptr;
    for (int pane = paneCount; pane >= 1; --pane) {
        if (!IsCalendar(CalendarOrder(pane)))
            continue;
        last = &LoadYear(CalendarOrder(pane));
        last->ShowYear();
        last->ShowInFront();
    }
    if (last != nullptr)
        last->Show();
}

void ChangeCals::ShowMoonWindow() {
    MoonWindow& window = LoadMoon();
    if (!window.Visible())
        window.ReSetForm();
    window.Show();
}

void ChangeCals::ShowMonthlyWindow() {
    MonthlyWindow& window = LoadMonthly();
    if (!window.Visible()) {
        window.ReSetForm();
        // Whichever calendar the user comes from.
        ChooseDate(Jewish, ChosenDate(Jewish), MonthlyWindowNumber);
    }
    window.Show();
}

void ChangeCals::SetAllTexts() {
    for (const MainWindowNumber number : mainWindows) {
        if (MainWindow* window = LoadedWindow(number))
            window->SetTexts();
    }
    RefreshCloseTips();
}
