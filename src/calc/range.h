// SPDX-License-Identifier: MIT
#pragma once

#include "calc/state.h"

/// What each calendar can show. The windows keep what the user enters inside;
/// the arithmetic goes on beyond. MinJD(Moslem) is the Moslem epoch; the Moslem
/// days are set by Calc::SetMoslemType.
inline const Table<int, calendarCount> MinYear{1, 1, 3761, 1};
inline const Table<int, calendarCount> MaxYear{3000, 3000, 6761, 2452};
inline Table<int, calendarCount> MinJD{
    1721424, // 1 January 1 Julian
    1721426, // 1 January 1 Gregorian
    1721319, // 1 Tishri 3761
};
inline Table<int, calendarCount> MaxJD{
    2817173, // 31 December 3000 Julian
    2817152, // 31 December 3000 Gregorian
    2817404, // the last day of Elul 6761
};

namespace Calc {

/// Where the chosen day lies to what calendar c can show.
inline bool IsBeforeRange(int c) {
    return CurJD < MinJD(c);
}
inline bool IsAfterRange(int c) {
    return CurJD > MaxJD(c);
}

/// The days that some calendar can show: no other range is as wide as the Jewish one.
inline int LowestDay() {
    return MinJD(Jewish);
}
inline int HighestDay() {
    return MaxJD(Jewish);
}

} // namespace Calc
