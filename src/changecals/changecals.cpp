// SPDX-License-Identifier: MIT
#include "changecals/changecals.h"

#include "calc/calc.h"
#include "calc/state.h"
#include "changecals/moonage.h"
#include "changecals/windows.h"
#include "platform/clock.h"
#include "platform/spokenanswer.h"
#include "shared/flags.h"
#include "shared/mainwindows.h"
#include "shared/settings.h"

namespace {

// As CurrentWindow numbers it.
int asCurrent(MainWindowNumber window) {
    return IsCalendar(window) ? window : 0;
}

void redrawYear(int c) {
    ChangeCals::LoadYear(c).ShowYear();
}

const Table<void (*)(), calendarCount> toJulianDay{Calc::JulianToJD, Calc::GregorianToJD,
                                                   Calc::JewishToJD, Calc::MoslemToJD};

// The one way from a day, written in calendar c or else in CurJD, to all the
// calendars. The Gregorian date comes from the Julian, and the Jewish needs the
// Julian year: hence the order.
void deriveAll(int c) {
    if (IsCalendar(c))
        toJulianDay(c)();
    if (c != Julian)
        Calc::JDToJulian();
    if (c != Gregorian)
        Calc::JulianToGregorian();
    if (c != Jewish)
        Calc::JDToJewish();
    if (c != Moslem)
        Calc::JDToMoslem();
}

} // namespace

void ChangeCals::ChangeCal(int c) {
    if (IsCalendar(c))
        deriveAll(c);
    SetMoonAge();
    UpdateWindows();
}

void ChangeCals::ChangeJD() {
    deriveAll(0);
    SetMoonAge();
    UpdateWindows();
}

void ChangeCals::ChooseDate(int c, const Date& date, MainWindowNumber window) {
    const UpdatingGuard updating;
    CurDate(c, Day) = date.day;
    CurDate(c, Month) = date.month;
    CurDate(c, Year) = date.year;
    CurrentWindow = asCurrent(window);
    ChangeCal(c);
}

void ChangeCals::ChooseJulianDay(int day, MainWindowNumber window) {
    const UpdatingGuard updating;
    CurJD = day;
    CurrentWindow = asCurrent(window);
    ChangeJD();
}

void ChangeCals::DeriveDay(int day) {
    if (day == CurJD)
        return;
    CurJD = day;
    deriveAll(0);
}

void ChangeCals::UpdateWindows() {
    AnswerUser();
    const int asking = CurrentWindow;
    if (IsCalendar(asking))
        redrawYear(asking);
    if (IsVisible(MonthlyWindowNumber))
        LoadMonthly().Refill();
    for (int c = 1; c <= calendarCount; ++c) {
        if (c != asking && IsVisible(YearWindowNumber(c)))
            redrawYear(c);
    }
    CurrentWindow = 0;
    if (IsVisible(MoonWindowNumber))
        LoadMoon().ReSetForm();
}

Table<bool, calendarCount> ChangeCals::ChangeRules(const Rules& before) {
    Table<bool, calendarCount> changed;
    if (MoslemType != before.moslemType) {
        Calc::SetMoslemType();
        Calc::JDToMoslem();
        changed(Moslem) = true;
    }
    for (int c = 1; c <= calendarCount; ++c) {
        if (FirstWeekDay(c) == before.firstWeekDay(c))
            continue;
        Calc::SetWeeks(c);
        changed(c) = true;
    }
    return changed;
}

void ChangeCals::RebuildWindows(const Table<bool, calendarCount>& calendars) {
    const bool any = calendars != Table<bool, calendarCount>();
    const bool all = calendars == Table<bool, calendarCount>{true, true, true, true};
    for (int c = 1; c <= calendarCount; ++c) {
        if (YearWindow* window = LoadedYear(c))
            window->ForgetYear();
    }
    if (any && IsVisible(MonthlyWindowNumber))
        LoadMonthly().ReSetForm();
    for (int c = 1; c <= calendarCount; ++c) {
        if (calendars(c) && IsVisible(YearWindowNumber(c)))
            redrawYear(c);
    }
    if (all && IsVisible(MoonWindowNumber))
        LoadMoon().ReSetForm();
}

void ChangeCals::GoToToday(MainWindowNumber window) {
    const QDate clock = Today();
    const Date today{clock.day(), clock.month(), clock.year()};
    if (today != ChosenDate(Gregorian))
        ChooseDate(Gregorian, today, window);
}
