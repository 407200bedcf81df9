// SPDX-License-Identifier: MIT
#pragma once

#include "endurance/dialog_actions.h"
#include "endurance/monthly_actions.h"
#include "endurance/window_actions.h"
#include "endurance/year_actions.h"

/// Chooses by chance what the user does next, and where.
class Walker {
public:
    explicit Walker(Hand& hand)
        : m_hand(hand),
          m_expected(hand.expected),
          m_monthly(hand),
          m_year(hand),
          m_windows(hand),
          m_dialogs(hand) {}

    /// One action.
    void Play();

private:
    /// Where the user is: a main window by its number, or a dialog.
    enum Place : int { Nowhere = 0, OptionsDialog = 7, AboutBox = 8 };

    bool isUsable(int place) const;
    void choosePlace();
    static Form& form(int place);
    void playThere();
    void playWithWindows();

    Hand& m_hand;
    Expected& m_expected;
    MonthlyActions m_monthly;
    YearActions m_year;
    WindowActions m_windows;
    DialogActions m_dialogs;
    int m_place = Nowhere;
};
