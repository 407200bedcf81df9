// SPDX-License-Identifier: MIT
#pragma once

#include "endurance/hand.h"

/// What a user does in the monthly window, while it stays open.
class MonthlyActions {
public:
    explicit MonthlyActions(Hand& hand) : m_hand(hand), m_expected(hand.expected) {}

    void Play();

private:
    template <typename Widget>
    Widget& control(const QString& name);
    ComboBox& list(int kind, int pane);
    MSFlexGrid& grid(int pane);

    void useGrid();
    void pressCell(int pane);
    void moveAndPress(int pane);
    void page(int pane);
    void goToEnd(int pane);
    void openYear(int pane);

    void useList();
    void useChooser(int pane);
    void useYears(int pane);
    void useMonths(int pane);
    void useDays(int pane);
    void useWeeks(int pane);
    void useWeekdays();
    void useMoonAges();

    void useJulianDay();
    void typeJulianDay();
    void typeJulianDayOutside();
    void typeLetters();

    Hand& m_hand;
    Expected& m_expected;
};
