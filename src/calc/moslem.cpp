// SPDX-License-Identifier: MIT
// The tabular Moslem calendar: in a cycle of 30 years eleven have 355 days, the
// others 354; months alternate between 30 and 29 days and the twelfth has 30 in
// a long year.
#include "calc/calc.h"
#include "calc/months.h"
#include "calc/range.h"
#include "calc/state.h"
#include "shared/settings.h"

namespace {

constexpr int cycleYears = 30;
constexpr int longYear = 355;
constexpr int shortYear = 354;
constexpr int cycleDays = 11 * longYear + 19 * shortYear;

// The range ends with a year 22 of the cycle; eight of those 22 are long.
constexpr int rangeDays = 81 * cycleDays + 8 * longYear + 14 * shortYear;

constexpr int lastMoslemMonth = 12;

void setMoslemLengths(int yearOfCycle) {
    YearDays(Moslem, DaysInYear) = MoslemCycle(yearOfCycle);
    MonthDays(Moslem, lastMoslemMonth) = MoslemCycle(yearOfCycle) == longYear ? 30 : 29;
}

} // namespace

void Calc::SetMoslemType() {
    const bool thursdayEra = MoslemType == 1;
    MoslemCycle(15) = thursdayEra ? longYear : shortYear;
    MoslemCycle(16) = thursdayEra ? shortYear : longYear;
    MinJD(Moslem) = thursdayEra ? 1948439 : 1948440; // 15 or 16 July 622 Julian
    MaxJD(Moslem) = MinJD(Moslem) + rangeDays - 1;
}

void Calc::MoslemToJD() {
    const int yearsBefore = CurDate(Moslem, Year) - 1;
    const int yearsOfCycle = yearsBefore % cycleYears;
    int newYear = MinJD(Moslem) + yearsBefore / cycleYears * cycleDays;
    for (int year = 1; year <= yearsOfCycle; ++year)
        newYear += MoslemCycle(year);
    setMoslemLengths(yearsOfCycle + 1);
    DateToJD(Moslem, newYear);
}

void Calc::JDToMoslem() {
    const int days = CurJD - MinJD(Moslem);
    int year = days / cycleDays * cycleYears;
    int dayNumber = days % cycleDays + 1;
    int yearOfCycle = 1;
    while (yearOfCycle < cycleYears && dayNumber - MoslemCycle(yearOfCycle) >= 1) {
        dayNumber -= MoslemCycle(yearOfCycle);
        ++year;
        ++yearOfCycle;
    }
    if (dayNumber < 1)
        dayNumber = MoslemCycle(yearOfCycle); // before the era: no meaningful date
    else
        ++year;

    CurDate(Moslem, Year) = year;
    setMoslemLengths(yearOfCycle);
    DateFromDayNumber(Moslem, CurJD - dayNumber + 1, dayNumber);
}
