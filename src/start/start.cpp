// SPDX-License-Identifier: MIT
#include "start/start.h"

#include "calc/calc.h"
#include "calc/state.h"
#include "changecals/changecals.h"
#include "changecals/closing.h"
#include "changecals/opening.h"
#include "changecals/windows.h"
#include "monthly/frmmonthlycal.h"
#include "moon/frmmoon.h"
#include "platform/clock.h"
#include "shared/flags.h"
#include "shared/look.h"
#include "shared/settings.h"
#include "start/frmabout.h"
#include "start/frmoptions.h"
#include "start/language.h"
#include "start/storedsettings.h"
#include "yearcals/yearwindow.h"

#include <QCoreApplication>
#include <QThread>
#include <QWindow>

namespace {

using Clock = std::chrono::steady_clock;

constexpr double splashDays = 0.000012;
constexpr int standardSplashColor = 2;
constexpr auto exposeLimit = std::chrono::milliseconds(500);

void setFactories() {
    ChangeCals::SetFactories({
        [] { return new frmMonthlyCal; },
        [](int c) { return new frmYearCal(c); },
        [] { return new frmMoon; },
        [] { return new frmOptions; },
        [] { return new frmAbout; },
    });
}

int splashColor() {
    const bool known = StartupWindow >= 1 && StartupWindow <= ChosenDayBackground;
    return CalendarColors(known ? StartupWindow : standardSplashColor);
}

void letWindowsPaint() {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

// A window is painted only when the desktop has put it up, which takes a few
// events; a desktop that never does must not hold up the start.
void showSplash(frmAbout& splash) {
    splash.BecomeSplash(splashColor());
    splash.Show();
    const auto limit = Clock::now() + exposeLimit;
    while (!splash.windowHandle()->isExposed() && Clock::now() < limit)
        letWindowsPaint();
    splash.repaint();
    letWindowsPaint();
}

void chooseToday() {
    const SystemDate today = Today();
    CurDate(Gregorian, Day) = today.day;
    CurDate(Gregorian, Month) = today.month;
    CurDate(Gregorian, Year) = today.year;
    Calc::GregorianToJD();
    Calc::JDToJulian();
    Calc::JDToJewish();
    Calc::JDToMoslem();
    ChangeCals::SetMoonAge();
}

void loadWindows() {
    ChangeCals::Monthly();
    for (int c = 1; c <= calendarCount; ++c)
        ChangeCals::Year(c);
    ChangeCals::Moon();
}

void waitUntil(Clock::time_point release) {
    while (Clock::now() < release) {
        letWindowsPaint();
        QThread::msleep(1);
    }
}

void showStartupWindow() {
    CurrentWindow = StartupWindow;
    if (StartupWindow == 0) {
        ChangeCals::Monthly().ReSetForm();
        ChangeCals::Monthly().Show();
    } else if (isCalendar(StartupWindow)) {
        ChangeCals::Year(StartupWindow).ShowYear();
        ChangeCals::Year(StartupWindow).Show();
    }
}

} // namespace

bool Start::Main() {
    ChangeCals::BeginRun();
    setFactories();
    if (!ReadSettings())
        return false;
    showSplash(static_cast<frmAbout&>(ChangeCals::About()));
    const auto release =
        Clock::now() + std::chrono::duration_cast<Clock::duration>(Days(splashDays));
    Calc::FillConstantRows();
    LoadLanguage(LanguageName);
    Calc::SetMoslemType();
    chooseToday();
    loadWindows();
    ChangeCals::SetAllTexts();
    waitUntil(release);
    showStartupWindow();
    ChangeCals::UnloadAbout();
    ChangeCals::RefreshCloseTips();
    return true;
}
