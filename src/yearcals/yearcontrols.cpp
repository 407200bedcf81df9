// SPDX-License-Identifier: MIT
#include "yearcals/yearcontrols.h"

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

// The way back from beyond the range stays open.
void setAvailable(const YearCals::YearControls& controls, int c) {
    const bool isBefore = Calc::IsBeforeRange(c);
    const bool isAfter = Calc::IsAfterRange(c);
    const bool isWithin = !isBefore && !isAfter;
    const int year = CurDate(c, Year);
    SetAvailable(controls.grid, !isBefore, !isAfter, controls.focusNext);
    QWidget& focusNext = isWithin ? static_cast<QWidget&>(controls.grid) : controls.focusNext;
    SetAvailable(controls.selector, true, isWithin, focusNext);
    SetAvailable(controls.previousYear, true, !isBefore && year != MinYear(c), focusNext);
    SetAvailable(controls.nextYear, true, isWithin && year != MaxYear(c), focusNext);
}

} // namespace

void YearCals::ShowYear(const YearControls& controls, int c) {
    const UpdatingGuard updating;
    controls.moon.BringToFront(MoonPhase);
    setAvailable(controls, c);
    if (Calc::IsBeforeRange(c)) {
        controls.selector.Clear();
        return;
    }
    Controls::ShowYearInList(controls.selector, c);
    controls.grid.ShowYear();
}
