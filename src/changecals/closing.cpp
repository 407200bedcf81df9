// SPDX-License-Identifier: MIT
#include "changecals/closing.h"

#include "changecals/windowpositions.h"
#include "changecals/windows.h"
#include "platform/message.h"
#include "platform/program.h"
#include "settings/usersettings.h"

void ChangeCals::CloseWindow(Form& form, int arg) {
    if (CountOpenWindows() < 2)
        ExitProgram(arg);
    else
        form.Hide();
}

void ChangeCals::MouseDownOnClose(Qt::MouseButton button) {
    if (button == Qt::RightButton)
        ExitProgram();
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
    if (!IsLeaving() && CountOpenWindows() == 0)
        LeaveProgram(0);
}

void ChangeCals::LeaveProgram(int status) {
    SetLeaving();
    HideAllWindows();
    EndProgram(status);
}
