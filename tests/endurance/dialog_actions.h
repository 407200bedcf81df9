// SPDX-License-Identifier: MIT
#pragma once

#include "changecals/windows.h"
#include "endurance/hand.h"

/// What a user does in the options dialog and in the about box, while they are open.
class DialogActions {
public:
    explicit DialogActions(Hand& hand) : m_hand(hand), m_expected(hand.expected) {}

    void UseOptions();
    void UseAbout();

private:
    void chooseVariant();
    void chooseWeekday();
    void chooseLanguage();
    void chooseStartup();
    void switchTips();
    void apply();
    void closeDialog(Form& dialog, const QString& button);

    Form& options() { return ChangeCals::LoadOptions(); }
    void moveInList(const QString& name, int entries, int& position);
    void pressSpace(const QString& name);

    Hand& m_hand;
    Expected& m_expected;
};
