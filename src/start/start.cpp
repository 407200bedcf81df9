// SPDX-License-Identifier: MIT
#include "start/start.h"

#include "calc/calc.h"
#include "changecals/changecals.h"
#include "changecals/closing.h"
#include "changecals/opening.h"
#include "changecals/windows.h"
#include "monthly/frmmonthlycal.h"
#include "moon/frmmoon.h"
#include "platform/clock.h"
#include "settings/storedsettings.h"
#include "shared/flags.h"
#include "shared/look.h"
#include "shared/settings.h"
#include "start/frmabout.h"
#include "start/frmoptions.h"
#include "start/language.h"
#include "yearcals/frmyearcal.h"

#include <QCoreApplication>
#include <QThread>
#include <QWindow>

namespace {

using Clock = std::chrono::steady_clock;

constexpr double splashDays = 0.000012;
constexpr int standardSplashColor = 2;
constexpr auto exposeLimit = std::chrono::milliseconds(500);

void beginRun() {
    ChangeCals::BeginRun({
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

void loadWindows() {
    ChangeCals::LoadMonthly();
    for (int c = 1; c <= calendarCount; ++c)
        ChangeCals::LoadYear(c);
    ChangeCals::LoadMoon();
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
    frmAbout splash;
    showSplash(splash);
    const auto release =
        Clock::now() + std::chrono::duration_cast<Clock::duration>(Days(splashDays));
    Calc::FillConstantRows();
    LoadLanguage(LanguageName);
    Calc::SetMoslemType();
    ChangeCals::GoToToday(0);
    loadWindows();
    ChangeCals::SetAllTexts();
    waitUntil(release);
    showStartupWindow();
    splash.Hide();
    ChangeCals::RefreshCloseTips();
    return true;
}
