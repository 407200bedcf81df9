// SPDX-License-Identifier: MIT
// The months of a year and their lengths.
#include "calc/calc.h"
#include "calc/state.h"

namespace {

void fillMonthLengths(int c, const Table<int, 12>& lengths) {
    for (int month = 1; month <= 12; ++month)
        MonthDays(c, month) = lengths(month);
}

} // namespace

void Calc::FillConstantRows() {
    const Table<int, 12> roman{31, 30, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const int byYear = 0;
    fillMonthLengths(Julian, roman);
    fillMonthLengths(Gregorian, roman);
    fillMonthLengths(Jewish, {30, byYear, byYear, 29, 30, byYear, 30, 29, 30, 29, 30, 29});
    fillMonthLengths(Moslem, {30, 29, 30, 29, 30, 29, 30, 29, 30, 29, 30, 29});

    for (int year = 1; year <= 30; ++year)
        MoslemCycle(year) = 354;
    for (const int longYear : {2, 5, 7, 10, 13, 18, 21, 24, 26, 29})
        MoslemCycle(longYear) = 355;
}

int Calc::MonthsInYear(int c) {
    return c == Jewish && JewishLeap ? monthLimit : 12;
}
