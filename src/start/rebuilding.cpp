// SPDX-License-Identifier: MIT
#include "start/rebuilding.h"

#include "changecals/windows.h"
#include "shared/settings.h"

namespace {

bool isVisible(int window) {
    const MainWindow* loaded = ChangeCals::LoadedWindow(window);
    return loaded != nullptr && loaded->Visible();
}

} // namespace

void RebuildVisibleWindows() {
    RebuildVisibleWindowsOf({true, true, true, true});
    if (isVisible(MoonWindowNumber))
        ChangeCals::Moon().ReSetForm();
}

void RebuildVisibleWindowsOf(const Table<bool, calendarCount>& calendars) {
    const bool any =
        calendars(Julian) || calendars(Gregorian) || calendars(Jewish) || calendars(Moslem);
    if (any && isVisible(MonthlyWindowNumber))
        ChangeCals::Monthly().ReSetForm();
    for (int c = 1; c <= calendarCount; ++c) {
        if (calendars(c) && isVisible(c))
            ChangeCals::Year(c).ShowYear();
    }
}
