// SPDX-License-Identifier: MIT
#include "calc/calc.h"
#include "calc/state.h"

bool Calc::IsBeforeRange(int c) {
    return CurJD < MinJD(c);
}

bool Calc::IsAfterRange(int c) {
    return CurJD > MaxJD(c);
}
