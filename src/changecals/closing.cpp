// SPDX-License-Identifier: MIT
#include "changecals/closing.h"

#include "changecals/placing.h"
#include "changecals/saving.h"
#include "changecals/windows.h"
#include "platform/message.h"
#include "platform/numbers.h"
#include "platform/program.h"
#include "platform/settingsstore.h"
#include "platform/text.h"
#include "shared/settings.h"
#include "shared/texts.h"

#include <array>
#include <optional>

namespace {

bool leaving = false;

// The order in which the calendar windows are asked and told.
constexpr std::array calendarWindows{int{MonthlyWindowNumber}, int{Julian}, int{Gregorian},
                                     int{Jewish}, int{Moslem}};

void setCloseTips(int text) {
    if (ShowTips == 0)
        return;
    for (const int number : calendarWindows) {
        if (CalendarWindow* window = ChangeCals::LoadedCalendarWindow(number))
            window->SetCloseTip(Text(StringTexts(text)));
    }
}

struct Positions {
    Table<int, mainWindowCount> top = FormTop;
    Table<int, mainWindowCount> left = FormLeft;
};

// False when a position does not fit in 16 bits.
bool readPosition(int number, Positions& positions) {
    const MainWindow* window = ChangeCals::LoadedWindow(number);
    const ChangeCals::Position place = window != nullptr
                                           ? ChangeCals::Position{window->Left(), window->Top()}
                                           : ChangeCals::PlaceOf(number);
    if (window != nullptr && window->WindowState() == Form::Minimised)
        return true;
    const std::optional<int> left = CInt(place.left);
    const std::optional<int> top = CInt(place.top);
    positions.left(number) = left.value_or(0);
    positions.top(number) = top.value_or(0);
    return left && top;
}

bool readPositions(Positions& positions) {
    if (!HasWindowPositions())
        return true;
    for (int number = 1; number <= mainWindowCount; ++number) {
        if (!readPosition(number, positions))
            return false;
    }
    return true;
}

void savePositions() {
    for (int number = 1; number <= mainWindowCount; ++number) {
        const QString section = ChangeCals::SettingsSection(number);
        SaveSetting(section, QStringLiteral("Top"), QString::number(FormTop(number)));
        SaveSetting(section, QStringLiteral("Left"), QString::number(FormLeft(number)));
    }
    ChangeCals::FlushSettingsOrTell();
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
    if (leaving)
        return;
    leaving = true;
    Positions positions;
    if (!readPositions(positions)) {
        MsgBox(QStringLiteral("Overflow: a window stands too far right or down for its position "
                              "to be stored. No position was saved."));
        LeaveProgram(1);
        return;
    }
    FormTop = positions.top;
    FormLeft = positions.left;
    savePositions();
    LeaveProgram(0);
}

void ChangeCals::AfterWindowClosed() {
    if (leaving)
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

bool ChangeCals::IsLeaving() {
    return leaving;
}

void ChangeCals::LeaveProgram(int status) {
    leaving = true;
    HideAllWindows();
    EndProgram(status);
}

void ChangeCals::BeginRun() {
    leaving = false;
    ForgetTelling();
}
