// SPDX-License-Identifier: MIT
#pragma once

#include "endurance/hand.h"
#include "shared/mainwindows.h"
#include "shared/table.h"

/// What a user does with windows as such: opens, closes, minimises and restores
/// them, and gives them commands.
class WindowActions {
public:
    explicit WindowActions(Hand& hand) : m_hand(hand), m_expected(hand.expected) {}

    /// A command by its key, in any window.
    void PressCommandKey(Form& window);

    /// A command by its button in a calendar window (1..5).
    void PressCommand(int number);

    void CloseAny();
    void MinimiseAny();
    void RestoreAny();

    void UseMoon();

private:
    int anyWindow(const Table<bool, mainWindowCount>& among);
    void close(int number);
    void endByPress(int number);

    Hand& m_hand;
    Expected& m_expected;
};
