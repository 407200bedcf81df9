// SPDX-License-Identifier: MIT
#include "controls/commands.h"

#include "changecals/changecals.h"
#include "changecals/closing.h"
#include "changecals/opening.h"
#include "controls/dayinwords.h"
#include "platform/form.h"
#include "shared/texts.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QShortcut>
#include <utility>

namespace {

struct Key {
    QKeyCombination key;
    Command command;
};

constexpr Key keys[] = {
    {Qt::CTRL | Qt::Key_T, Command::Today},
    {Qt::CTRL | Qt::Key_M, Command::MonthlyCalendar},
    {Qt::CTRL | Qt::Key_Y, Command::YearCalendars},
    {Qt::CTRL | Qt::Key_Comma, Command::Options},
    {Qt::Key_F1, Command::About},
    {Qt::CTRL | Qt::Key_C, Command::CopyDay},
    {Qt::CTRL | Qt::Key_P, Command::Print},
    {Qt::CTRL | Qt::Key_W, Command::Close},
    {Qt::CTRL | Qt::Key_Q, Command::Exit},
};

struct Look {
    const char* picture;
    int text;
};

Look lookOf(Command command) {
    switch (command) {
    case Command::YearCalendars:
        return {"years", YearCalendarsText};
    case Command::Today:
        return {"today", TodayText};
    case Command::Options:
        return {"options", OptionsText};
    case Command::About:
        return {"about", AboutText};
    default:
        return {"close", ExitText};
    }
}

} // namespace

Commands::Commands(Form& window, MainWindowNumber number, std::function<void()> close,
                   std::function<void()> print)
    : m_number(number), m_close(std::move(close)), m_print(std::move(print)) {
    addKeys(window);
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
        return ChangeCals::ShowOptions();
    case Command::About:
        return ChangeCals::ShowAbout();
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

void Commands::MouseDown(Command command, Qt::MouseButton button) const {
    if (command == Command::Close && button == Qt::RightButton)
        Run(Command::Exit);
}

QString Commands::PictureOf(Command command) {
    return QStringLiteral("buttons/") + QLatin1String(lookOf(command).picture);
}

int Commands::TextOf(Command command) {
    return lookOf(command).text;
}

void Commands::addKeys(Form& window) {
    for (const Key& entry : keys) {
        auto* shortcut = new QShortcut(QKeySequence(entry.key), &window);
        QObject::connect(shortcut, &QShortcut::activated, &window,
                         [this, command = entry.command] { Run(command); });
    }
}
