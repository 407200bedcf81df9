// SPDX-License-Identifier: MIT
#include "start/rebuilding.h"

#include "changecals/windows.h"
#include "shared/settings.h"

void RebuildVisibleWindows() {
    RebuildVisibleWindowsOf({true, true, true, true});
    if (ChangeCals::IsVisible(MoonWindowNumber))
        ChangeCals::Moon().ReSetForm();
}

void RebuildVisibleWindowsOf(const Table<bool, calendarCount>& calendars) {
    const bool any =
        calendars(Julian) || calendars(Gregorian) || calendars(Jewish) || calendars(Moslem);
    if (any && ChangeCals::IsVisible(MonthlyWindowNumber))
        ChangeCals::Monthly().ReSetForm();
    for (int c = 1; c <= calendarCount; ++c) {
        if (calendars(c) && ChangeCals::IsVisible(c))
            ChangeCals::Year(c).ShowYear();
    }
}
