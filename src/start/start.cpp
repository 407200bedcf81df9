// SPDX-License-Identifier: MIT
#include "start/start.h"

#include "calc/calc.h"
#include "changecals/changecals.h"
#include "changecals/opening.h"
#include "changecals/windows.h"
#include "monthly/frmmonthlycal.h"
#include "moon/frmmoon.h"
#include "printing/print.h"
#include "settings/usersettings.h"
#include "shared/flags.h"
#include "shared/mainwindows.h"
#include "shared/settings.h"
#include "start/frmabout.h"
#include "start/frmoptions.h"
#include "start/language.h"
#include "start/splash.h"
#include "yearcals/frmyearcal.h"

#include <QApplication>

namespace {

void beginRun() {
    QApplication::setQuitOnLastWindowClosed(false); // closing decides by itself
    ChangeCals::BeginRun({
        [] { return new frmMonthlyCal; },
        [](int c) { return new frmYearCal(c); },
        [] { return new frmMoon; },
        [] { return new frmOptions; },
        [] { return new frmAbout; },
        Printing::Print,
        {frmYearCal::LargestSize(Julian), frmYearCal::LargestSize(Gregorian),
         frmYearCal::LargestSize(Jewish), frmYearCal::LargestSize(Moslem), QSize(),
         frmMoon::LargestSize()},
    });
}

void loadWindows() {
    ChangeCals::LoadMonthly();
    for (int c = 1; c <= calendarCount; ++c)
        ChangeCals::LoadYear(c);
    ChangeCals::LoadMoon();
}

void showStartupWindow() {
    CurrentWindow = StartupWindow;
    if (StartupWindow == 0) {
        ChangeCals::LoadMonthly().ReSetForm();
        ChangeCals::LoadMonthly().Show();
    } else if (IsCalendar(StartupWindow)) {
        ChangeCals::LoadYear(StartupWindow).ShowYear();
        ChangeCals::LoadYear(StartupWindow).Show();
    }
}

} // namespace

bool Start::Main() {
    beginRun();
    if (!ReadSettings())
        return false;
    Splash splash;
    Calc::FillConstantRows();
    LoadLanguage(LanguageName);
    Calc::SetMoslemType();
    ChangeCals::GoToToday(MonthlyWindowNumber);
    loadWindows();
    ChangeCals::SetAllTexts();
    splash.WaitItsTime();
    showStartupWindow();
    splash.Hide();
    return true;
}
