// SPDX-License-Identifier: MIT
#include "changecals/changecals.h"

#include "calc/calc.h"
#include "calc/state.h"
#include "changecals/windows.h"
#include "platform/clock.h"
#include "platform/numbers.h"
#include "shared/flags.h"
#include "shared/settings.h"

namespace {

constexpr int meanNewMoon = 1720993;
constexpr int phases = 8;

void redrawYear(int c) {
    ChangeCals::Year(c).ShowYear();
}

void redrawMonthly() {
    MonthlyWindow& window = ChangeCals::Monthly();
    for (int pane = 1; pane <= 4; ++pane) {
        window.SetCal(pane);
        window.SetGrid(pane);
    }
    window.SetCommonInfo();
}

// The Gregorian date comes from the Julian, and the Jewish needs the Julian year.
void deriveJulianAndGregorian() {
    Calc::JDToJulian();
    Calc::JulianToGregorian();
}

void showChange() {
    ChangeCals::SetMoonAge();
    ChangeCals::UpdateWindows();
}

} // namespace

void ChangeCals::ChangeCal(int c) {
    switch (c) {
    case Julian:
        Calc::JulianToJD();
        Calc::JulianToGregorian();
        Calc::JDToJewish();
        Calc::JDToMoslem();
        break;
    case Gregorian:
        Calc::GregorianToJD();
        Calc::JDToJulian();
        Calc::JDToJewish();
        Calc::JDToMoslem();
        break;
    case Jewish:
        Calc::JewishToJD();
        deriveJulianAndGregorian();
        Calc::JDToMoslem();
        break;
    case Moslem:
        Calc::MoslemToJD();
        deriveJulianAndGregorian();
        Calc::JDToJewish();
        break;
    default:
        break;
    }
    showChange();
}

void ChangeCals::ChangeJD() {
    deriveJulianAndGregorian();
    Calc::JDToJewish();
    Calc::JDToMoslem();
    showChange();
}

void ChangeCals::UpdateWindows() {
    const int asking = CurrentWindow;
    if (isCalendar(asking))
        redrawYear(asking);
    if (IsVisible(MonthlyWindowNumber))
        redrawMonthly();
    for (int c = 1; c <= calendarCount; ++c) {
        if (c != asking && IsVisible(c))
            redrawYear(c);
    }
    CurrentWindow = 0;
    if (IsVisible(MoonWindowNumber))
        Moon().ReSetForm();
}

void ChangeCals::SetMoonAge() {
    WeekDayNo = CurJD % daysInWeek + 1;
    MoonAge = static_cast<float>(CurJD - meanNewMoon);
    // In double the product is exact, so only the storing in single rounds.
    const double days = MoonAge;
    const double month = lunation;
    MoonAge = static_cast<float>(days - Fix(days / month) * month);
    MoonPhase = CInt(MoonAge / month * phases).value_or(0);
}

void ChangeCals::GoToToday(int window) {
    const SystemDate today = Today();
    const SystemDate chosen{CurDate(Gregorian, ::Day), CurDate(Gregorian, ::Month),
                            CurDate(Gregorian, ::Year)};
    if (chosen == today)
        return;
    CurDate(Gregorian, ::Day) = today.day;
    CurDate(Gregorian, ::Month) = today.month;
    CurDate(Gregorian, ::Year) = today.year;
    CurrentWindow = window;
    ChangeCal(Gregorian);
}
