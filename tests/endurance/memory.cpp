// SPDX-License-Identifier: MIT
#include "endurance/memory.h"

#include "calc/state.h"
#include "changecals/changecals.h"
#include "changecals/opening.h"
#include "changecals/windows.h"
#include "platform/combobox.h"
#include "platform/flexgrid.h"
#include "shared/mainwindows.h"
#include "support/platform_test.h"

#include <QPixmapCache>
#include <cstddef>
#include <malloc.h>

// Of the sanitizer's runtime, whose header not every compiler brings.
extern "C" std::size_t
__sanitizer_get_current_allocated_bytes(); // NOLINT(bugprone-reserved-identifier)

namespace {

std::size_t allocatedBytes() {
#if defined(__SANITIZE_ADDRESS__)
    return __sanitizer_get_current_allocated_bytes();
#else
    const auto all = mallinfo2();
    return all.uordblks + all.hblkhd;
#endif
}

void goTo(int julianDay) {
    CurJD = julianDay;
    ChangeCals::ChangeJD();
    processEvents();
}

// The grid keeps the texts that it has laid out, up to a limit: it forgets them.
void forgetLaidOutTexts(MSFlexGrid& grid) {
    grid.SetFontPixelSize(grid.font().pixelSize());
}

void unfold(ComboBox& list) {
    if (!list.isVisible() || !list.isEnabled())
        return;
    list.showPopup();
    list.hidePopup();
}

} // namespace

std::size_t BytesAtRest() {
    const int day = CurJD;
    ChangeCals::LoadOptions().Unload();
    ChangeCals::UnloadAbout();
    ChangeCals::OpenYearWindowsOfPanes();
    ChangeCals::ShowMonthlyWindow();
    ChangeCals::ShowMoonWindow();
    goTo(2451545);
    for (const MainWindowNumber number : mainWindows) {
        const MainWindow& window = *ChangeCals::LoadedWindow(number);
        for (auto* list : window.findChildren<ComboBox*>())
            unfold(*list);
        for (auto* grid : window.findChildren<MSFlexGrid*>())
            forgetLaidOutTexts(*grid);
    }
    goTo(2461365);
    QPixmapCache::clear();
    const std::size_t bytes = allocatedBytes();
    goTo(day);
    return bytes;
}
