// SPDX-License-Identifier: MIT
#include "start/rebuilding.h"

#include "changecals/windows.h"
#include "shared/settings.h"

void ForgetFilledYears() {
    for (int c = 1; c <= calendarCount; ++c) {
        if (YearWindow* window = ChangeCals::LoadedYear(c))
            window->ForgetYear();
    }
}

void RebuildVisibleWindows() {
    RebuildVisibleWindowsOf({true, true, true, true});
    if (ChangeCals::IsVisible(MoonWindowNumber))
        ChangeCals::LoadMoon().ReSetForm();
}

void RebuildVisibleWindowsOf(const Table<bool, calendarCount>& calendars) {
    const bool any =
        calendars(Julian) || calendars(Gregorian) || calendars(Jewish) || calendars(Moslem);
    if (any && ChangeCals::IsVisible(MonthlyWindowNumber))
        ChangeCals::LoadMonthly().ReSetForm();
    for (int c = 1; c <= calendarCount; ++c) {
        if (calendars(c) && ChangeCals::IsVisible(c))
            ChangeCals::LoadYear(c).ShowYear();
    }
}
