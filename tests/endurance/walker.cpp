// SPDX-License-Identifier: MIT
#include "endurance/walker.h"

#include "changecals/windows.h"
#include "endurance/expected.h"
#include "shared/mainwindows.h"

#include <vector>

void Walker::Play() {
    choosePlace();
    if (m_place == Nowhere)
        return m_windows.RestoreAny();
    if (m_hand.OneIn(20))
        return playWithWindows();
    Hand::Activate(form(m_place));
    playThere();
}

bool Walker::isUsable(int place) const {
    if (place == OptionsDialog)
        return m_expected.options.has_value();
    if (place == AboutBox)
        return m_expected.about;
    return place != Nowhere && m_expected.open(place) && !m_expected.minimised(place);
}

// A user goes to the window that comes to the front, and stays there a while.
void Walker::choosePlace() {
    for (int place = 1; place <= AboutBox; ++place) {
        if (isUsable(place) && form(place).isActiveWindow())
            m_place = place;
    }
    if (isUsable(m_place) && !m_hand.OneIn(20))
        return;
    std::vector<int> usable;
    for (int place = 1; place <= AboutBox; ++place) {
        if (isUsable(place))
            usable.push_back(place);
    }
    m_place = usable.empty() ? int{Nowhere} : m_hand.AnyOf(usable);
}

Form& Walker::form(int place) {
    if (place == OptionsDialog)
        return ChangeCals::LoadOptions();
    if (place == AboutBox)
        return ChangeCals::LoadAbout();
    return *ChangeCals::LoadedWindow(static_cast<MainWindowNumber>(place));
}

void Walker::playThere() {
    if (m_hand.OneIn(60))
        m_windows.PressCommandKey(form(m_place));
    else if (m_place <= MonthlyWindowNumber && m_hand.OneIn(60))
        m_windows.PressCommand(m_place);
    else if (m_hand.OneIn(60))
        m_hand.GoOn(form(m_place));
    else if (m_place == MonthlyWindowNumber)
        m_monthly.Play();
    else if (m_place == MoonWindowNumber)
        m_windows.UseMoon();
    else if (m_place == OptionsDialog)
        m_dialogs.UseOptions();
    else if (m_place == AboutBox)
        m_dialogs.UseAbout();
    else
        m_year.Play(m_place);
}

void Walker::playWithWindows() {
    switch (m_hand.Below(4)) {
    case 0:
        return m_windows.MinimiseAny();
    case 1:
        return m_windows.RestoreAny();
    default:
        return m_windows.CloseAny();
    }
}
