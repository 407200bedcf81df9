// SPDX-License-Identifier: MIT
// The tabular Moslem calendar: in a cycle of 30 years eleven have 355 days, the
// others 354; months alternate between 30 and 29 days and the twelfth has 30 in
// a long year.
#include "calc/calc.h"
#include "calc/state.h"
#include "shared/settings.h"

namespace {

constexpr int cycleYears = 30;
constexpr int longYear = 355;
constexpr int commonYear = 354;
constexpr int cycleDays = 11 * longYear + 19 * commonYear; // 10631
constexpr int lastMonth = 12;

void setMoslemYear(int yearOfCycle) {
    YearDays(Moslem, DaysInYear) = MoslemCycle(yearOfCycle);
    MonthDays(Moslem, lastMonth) = MoslemCycle(yearOfCycle) == longYear ? 30 : 29;
}

void setMoslemBounds() {
    YearJD(Moslem, FirstDay) = CurJD - CurDate(Moslem, DayNumber) + 1;
    YearJD(Moslem, LastDay) = YearJD(Moslem, FirstDay) + YearDays(Moslem, DaysInYear) - 1;
    Calc::SetMonthStarts(Moslem);
}

} // namespace

void Calc::SetMoslemType() {
    const bool thursdayEra = MoslemType == 1; // 15 July 622; otherwise Friday 16 July
    MoslemCycle(15) = thursdayEra ? longYear : commonYear;
    MoslemCycle(16) = thursdayEra ? commonYear : longYear;
    MinJD(Moslem) = thursdayEra ? 1948439 : 1948440;
    MaxJD(Moslem) = thursdayEra ? 2817345 : 2817346;
}

void Calc::MoslemToJD() {
    const int yearsBefore = CurDate(Moslem, Year) - 1;
    const int yearsOfCycle = yearsBefore % cycleYears;
    setMoslemYear(yearsOfCycle + 1);
    int& day = CurDate(Moslem, Day);
    if (day > MonthDays(Moslem, CurDate(Moslem, Month)))
        day = MonthDays(Moslem, CurDate(Moslem, Month));
    CurDate(Moslem, DayNumber) = DayOfYear(Moslem, CurDate(Moslem, Month), day);

    CurJD = yearsBefore / cycleYears * cycleDays + MinJD(Moslem) - 1 + CurDate(Moslem, DayNumber);
    for (int year = 1; year <= yearsOfCycle; ++year)
        CurJD += MoslemCycle(year);
    setMoslemBounds();
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
    CurDate(Moslem, DayNumber) = dayNumber;
    setMoslemYear(yearOfCycle);
    CurDate(Moslem, Day) = dayNumber;
    DayToMonth(Moslem, CurDate(Moslem, Month), CurDate(Moslem, Day));
    setMoslemBounds();
}
