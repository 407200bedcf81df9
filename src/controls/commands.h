// SPDX-License-Identifier: MIT
#pragma once

#include "shared/mainwindows.h"

#include <QString>
#include <functional>

class Form;

/// What a window can be told to do, by a button or by a key.
enum class Command {
    Today,           ///< Ctrl+T
    MonthlyCalendar, ///< Ctrl+M
    YearCalendars,   ///< Ctrl+Y, of the four panes
    Options,         ///< Ctrl+comma
    About,           ///< F1
    CopyDay,         ///< Ctrl+C, the chosen day in words
    Print,           ///< Ctrl+P, in calendar windows
    Close,           ///< Ctrl+W
    Exit,            ///< Ctrl+Q
};

/// The commands as one window carries them out.
class Commands {
public:
    /// `number` is the window to be redrawn first, of a dialog the monthly one; `close`
    /// and `print` are what Close and Print do.
    Commands(
        Form& window, MainWindowNumber number, std::function<void()> close,
        std::function<void()> print = [] {});

    Commands(const Commands&) = delete;
    Commands& operator=(const Commands&) = delete;

    void Run(Command command) const;

    /// The picture of a command's button and the entry of StringTexts that names
    /// it; for the commands that have a button.
    static QString PictureOf(Command command);
    static int TextOf(Command command);

private:
    MainWindowNumber m_number;
    std::function<void()> m_close;
    std::function<void()> m_print;
};
