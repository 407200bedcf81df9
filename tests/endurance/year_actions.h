// SPDX-License-Identifier: MIT
#pragma once

#include "changecals/windows.h"
#include "endurance/hand.h"

/// What a user does in a year window, while it stays open.
class YearActions {
public:
    explicit YearActions(Hand& hand) : m_hand(hand), m_expected(hand.expected) {}

    void Play(int c);

private:
    Form& window(int c) { return *ChangeCals::LoadedYear(c); }
    MSFlexGrid& grid(int c);

    void pressCell(int c);
    void moveAndPress(int c);
    void page(int c);
    void goToEnd(int c);
    void openMonthly(int c);
    void useYears(int c);
    void pressStep(int c);
    void openOtherYear(int c);

    void step(int c, int by);

    Hand& m_hand;
    Expected& m_expected;
};
