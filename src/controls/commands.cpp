// SPDX-License-Identifier: MIT
#include "controls/commands.h"

#include "changecals/changecals.h"
#include "changecals/closing.h"
#include "changecals/opening.h"
#include "changecals/windows.h"
#include "controls/dayinwords.h"
#include "shared/texts.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QShortcut>
#include <algorithm>
#include <utility>

namespace {

struct Row {
    Command command;
    QKeyCombination key;
    const char* picture = nullptr; ///< of its button, where it has one
    int text = 0;
};

constexpr Row rows[] = {
    {Command::Today, Qt::CTRL | Qt::Key_T, "buttons/today", TodayText},
    {Command::MonthlyCalendar, Qt::CTRL | Qt::Key_M},
    {Command::YearCalendars, Qt::CTRL | Qt::Key_Y, "buttons/years", YearCalendarsText},
    {Command::Options, Qt::CTRL | Qt::Key_Comma, "buttons/options", OptionsText},
    {Command::About, Qt::Key_F1, "buttons/about", AboutText},
    {Command::CopyDay, Qt::CTRL | Qt::Key_C},
    {Command::Print, Qt::CTRL | Qt::Key_P},
    {Command::Close, Qt::CTRL | Qt::Key_W, "buttons/close", ExitText},
    {Command::Exit, Qt::CTRL | Qt::Key_Q},
};

const Row& rowOf(Command command) {
    return *std::ranges::find(rows, command, &Row::command);
}

} // namespace

Commands::Commands(Form& window, MainWindowNumber number, std::function<void()> close,
                   std::function<void()> print)
    : m_number(number), m_close(std::move(close)), m_print(std::move(print)) {
    for (const Row& row : rows) {
        auto* shortcut = new QShortcut(row.key, &window);
        QObject::connect(shortcut, &QShortcut::activated, &window,
                         [this, command = row.command] { Run(command); });
    }
}

void Commands::Run(Command command) const {
    switch (command) {
    case Command::Today:
        return ChangeCals::GoToToday(m_number);
    case Command::MonthlyCalendar:
        return ChangeCals::ShowMonthlyWindow();
    case Command::YearCalendars:
        return ChangeCals::OpenYearWindowsOfPanes();
    case Command::Options:
        return ChangeCals::LoadOptions().Show();
    case Command::About:
        return ChangeCals::LoadAbout().Show();
    case Command::CopyDay:
        return QGuiApplication::clipboard()->setText(ChosenDayInWords());
    case Command::Print:
        return m_print();
    case Command::Close:
        return m_close();
    case Command::Exit:
        return ChangeCals::ExitProgram();
    }
}

QString Commands::PictureOf(Command command) {
    return QLatin1String(rowOf(command).picture);
}

int Commands::TextOf(Command command) {
    return rowOf(command).text;
}
