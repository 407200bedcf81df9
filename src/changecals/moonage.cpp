// SPDX-License-Identifier: MIT
#include "changecals/moonage.h"

#include "calc/calc.h"
#include "calc/state.h"
#include "platform/numbers.h"

#include <cmath>

namespace {

constexpr int meanNewMoon = 1720993;
constexpr int phases = 8;

} // namespace

void ChangeCals::SetMoonAge() {
    WeekDayNo = Calc::WeekdayOf(CurJD);
    MoonAge = static_cast<float>(CurJD - meanNewMoon);
    // In double the product is exact, so only the storing in single rounds.
    const double days = MoonAge;
    const double month = lunation;
    MoonAge = static_cast<float>(days - std::trunc(days / month) * month);
    MoonPhase = CInt(MoonAge / month * phases).value_or(0);
}
