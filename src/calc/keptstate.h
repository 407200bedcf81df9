// SPDX-License-Identifier: MIT
#pragma once

#include "calc/range.h"
#include "calc/state.h"
#include "shared/texts.h"

#include <tuple>

/// Puts variables back at its end.
template <typename... T>
class Kept {
public:
    explicit Kept(T&... variables) : m_variables(variables...), m_values(variables...) {}
    ~Kept() { m_variables = m_values; }
    Kept(const Kept&) = delete;
    Kept& operator=(const Kept&) = delete;

private:
    std::tuple<T&...> m_variables;
    std::tuple<T...> m_values;
};

namespace Calc {

/// Keeps the chosen day, all its tables and the layout of the Jewish month names,
/// so that other days can be derived meanwhile. No window may be asked to show
/// anything before its end.
[[nodiscard]] inline auto KeepState() {
    return Kept(CurJD, CurDate, MonthDays, YearDays, YearJD, MoslemCycle, JewishLeap, MinJD, MaxJD,
                WeekDayNo, MoonAge, MoonPhase, MonthNames);
}

} // namespace Calc
