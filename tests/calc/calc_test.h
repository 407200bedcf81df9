// SPDX-License-Identifier: MIT
#pragma once

#include "calc/range.h"
#include "support/state.h"

constexpr int unixEpoch = 2440588; // 1 January 1970 Gregorian

class Judges : public StateTest {};
class JewishJudges : public StateTest {};

inline void goToJD(int julianDay) {
    CurJD = julianDay;
    Calc::JDToJulian();
    Calc::JulianToGregorian();
    Calc::JDToJewish();
    Calc::JDToMoslem();
}

inline void toJD(int c) {
    switch (c) {
    case Julian:
        return Calc::JulianToJD();
    case Gregorian:
        return Calc::GregorianToJD();
    case Jewish:
        return Calc::JewishToJD();
    default:
        return Calc::MoslemToJD();
    }
}

/// Enters a date of calendar c and gives the one that it becomes.
inline Date enter(int c, Date date) {
    setDate(c, date.day, date.month, date.year);
    toJD(c);
    return dateIn(c);
}
