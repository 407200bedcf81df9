// SPDX-License-Identifier: MIT
#include "changecals/closing.h"

#include "changecals/positions.h"
#include "changecals/windows.h"
#include "platform/message.h"
#include "platform/program.h"
#include "platform/text.h"
#include "settings/storedsettings.h"
#include "shared/settings.h"
#include "shared/texts.h"

#include <array>

namespace {

// The order in which the calendar windows are asked and told.
constexpr std::array calendarWindows{int{MonthlyWindowNumber}, int{Julian}, int{Gregorian},
                                     int{Jewish}, int{Moslem}};

void setCloseTips(int text) {
    for (const int number : calendarWindows) {
        if (CalendarWindow* window = ChangeCals::LoadedCalendarWindow(number))
            window->SetCloseTip(text);
    }
}

} // namespace

int ChangeCals::CountOpenWindows() {
    int open = 0;
    for (const int number : calendarWindows) {
        if (IsVisible(number))
            ++open;
    }
    return open;
}

void ChangeCals::CloseWindow(Form& form, int arg) {
    if (CountOpenWindows() < 2) {
        ExitProgram(arg);
        return;
    }
    form.Hide();
    AfterWindowClosed();
}

void ChangeCals::ExitProgram(int) {
    if (IsLeaving())
        return;
    SetLeaving();
    if (const MainWindow* window = ReadPositions()) {
        MsgBox(QStringLiteral("Overflow: the window “%1” stands too far out for its position to "
                              "be stored. No position was saved.")
                   .arg(Told(window->windowTitle())));
        LeaveProgram(1);
        return;
    }
    SaveSettings(SettingGroup::Positions);
    LeaveProgram(0);
}

void ChangeCals::AfterWindowClosed() {
    if (IsLeaving())
        return;
    const int open = CountOpenWindows();
    if (open == 0)
        LeaveProgram(0);
    else if (open < 2)
        setCloseTips(ExitText);
}

void ChangeCals::SetCloseTipsSeveral() {
    setCloseTips(CloseOrExitText);
}

void ChangeCals::RefreshCloseTips() {
    if (CountOpenWindows() < 2)
        setCloseTips(ExitText);
    else
        SetCloseTipsSeveral();
}

void ChangeCals::LeaveProgram(int status) {
    SetLeaving();
    HideAllWindows();
    EndProgram(status);
}
