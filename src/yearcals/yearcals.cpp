// SPDX-License-Identifier: MIT
#include "yearcals/yearcals.h"

#include "calc/range.h"
#include "calc/state.h"
#include "controls/yearlist.h"
#include "platform/availability.h"
#include "platform/buttonstack.h"
#include "platform/combobox.h"
#include "platform/commandbutton.h"
#include "shared/flags.h"
#include "yearcals/yeargrid.h"

namespace {

void hideYear(const YearCals::YearControls& controls) {
    SetAvailable(controls.grid, false, true, controls.focusNext);
    controls.selector.Clear();
    SetAvailable(controls.selector, true, false, controls.focusNext);
    SetAvailable(controls.previousYear, true, false, controls.focusNext);
    SetAvailable(controls.nextYear, true, false, controls.focusNext);
}

// The way back from beyond the range stays open.
void setAvailable(const YearCals::YearControls& controls, int c) {
    const bool inRange = !Calc::IsAfterRange(c);
    SetAvailable(controls.grid, true, inRange, controls.focusNext);
    QWidget& focusNext = inRange ? static_cast<QWidget&>(controls.grid) : controls.focusNext;
    SetAvailable(controls.selector, true, inRange, focusNext);
    SetAvailable(controls.previousYear, true, CurDate(c, Year) != MinYear(c), focusNext);
    SetAvailable(controls.nextYear, true, inRange && CurDate(c, Year) != MaxYear(c), focusNext);
}

} // namespace

void YearCals::ShowYear(const YearControls& controls, int c) {
    const UpdatingGuard updating;
    controls.moon.BringToFront(MoonPhase);
    if (Calc::IsBeforeRange(c)) {
        hideYear(controls);
        return;
    }
    setAvailable(controls, c);
    Controls::ShowYearInList(controls.selector, c);
    controls.grid.ShowYear();
}
