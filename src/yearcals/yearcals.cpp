// SPDX-License-Identifier: MIT
#include "yearcals/yearcals.h"

#include "calc/calc.h"
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
    SetAvailable(controls.grid, false, true, controls.heir);
    controls.selector.Clear();
    SetAvailable(controls.selector, true, false, controls.heir);
    SetAvailable(controls.previousYear, true, false, controls.heir);
    SetAvailable(controls.nextYear, true, false, controls.heir);
}

// The way back from beyond the range stays open.
void setAvailable(const YearCals::YearControls& controls, int c) {
    const bool inRange = !Calc::IsAfterRange(c);
    SetAvailable(controls.grid, true, inRange, controls.heir);
    QWidget& heir = inRange ? static_cast<QWidget&>(controls.grid) : controls.heir;
    SetAvailable(controls.selector, true, inRange, heir);
    SetAvailable(controls.previousYear, true, CurDate(c, Year) != MinYear(c), heir);
    SetAvailable(controls.nextYear, true, inRange && CurDate(c, Year) != MaxYear(c), heir);
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
