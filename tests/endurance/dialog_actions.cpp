// SPDX-License-Identifier: MIT
#include "endurance/dialog_actions.h"

#include "endurance/controls.h"
#include "endurance/expected.h"
#include "platform/combobox.h"

#include <algorithm>
#include <array>

namespace {

/// As the dialog lists them.
const std::array<const char*, 4> languages{"English (Default)", "German", "Hebrew", "Russian"};

} // namespace

void DialogActions::UseOptions() {
    switch (m_hand.Below(10)) {
    case 0:
        return chooseVariant();
    case 1:
    case 2:
        return chooseWeekday();
    case 3:
    case 4:
        return chooseLanguage();
    case 5:
        return chooseStartup();
    case 6:
        return switchTips();
    case 7:
        closeDialog(options(), QStringLiteral("Command1_2"));
        return m_expected.options.reset();
    default:
        return apply();
    }
}

void DialogActions::UseAbout() {
    if (m_hand.OneIn(2)) {
        closeDialog(ChangeCals::LoadAbout(), QStringLiteral("cmdOK"));
    } else {
        m_hand.Say("Return in the about box");
        Hand::Key(ChangeCals::LoadAbout(), Qt::Key_Return);
    }
    m_expected.about = false;
}

void DialogActions::chooseVariant() {
    const int type = 1 + m_hand.Below(2);
    pressSpace(QStringLiteral("Option1_%1").arg(type));
    m_expected.options.value().moslemType = type;
}

void DialogActions::chooseWeekday() {
    const int pane = 1 + m_hand.Below(paneCount);
    const int c = m_expected.options.value().calendarOfPane(pane);
    int position = m_expected.options.value().firstWeekDay(c) - 1;
    moveInList(QStringLiteral("Combo1_%1").arg(pane), daysInWeek, position);
    m_expected.options.value().firstWeekDay(c) = position + 1;
}

void DialogActions::chooseLanguage() {
    std::string& language = m_expected.options.value().language;
    const auto* now = std::find(languages.begin(), languages.end(), language);
    int position = static_cast<int>(now - languages.begin());
    moveInList(QStringLiteral("Combo2"), static_cast<int>(languages.size()), position);
    language = languages.at(static_cast<std::size_t>(position));
}

void DialogActions::chooseStartup() {
    moveInList(QStringLiteral("Combo3"), 1 + calendarCount, m_expected.options.value().startup);
}

void DialogActions::switchTips() {
    pressSpace(QStringLiteral("Check1"));
    m_expected.options.value().tips = !m_expected.options.value().tips;
}

void DialogActions::apply() {
    if (m_hand.OneIn(2)) {
        m_hand.Press(options(), QStringLiteral("Command1_1"));
    } else {
        m_hand.Say("Return in the options");
        Hand::Key(options(), Qt::Key_Return);
    }
    m_expected.Apply();
}

void DialogActions::closeDialog(Form& dialog, const QString& button) {
    switch (m_hand.Below(4)) {
    case 0:
        return m_hand.Press(dialog, button);
    case 1:
        m_hand.Say("Escape in ", qPrintable(dialog.objectName()));
        return Hand::Key(dialog, Qt::Key_Escape);
    case 2:
        m_hand.Say("Ctrl+W in ", qPrintable(dialog.objectName()));
        return Hand::CommandKey(dialog, Qt::Key_W);
    default:
        m_hand.Say("frame of ", qPrintable(dialog.objectName()));
        dialog.close();
    }
}

void DialogActions::moveInList(const QString& name, int entries, int& position) {
    m_hand.Use({m_hand.controls.In<ComboBox>(options(), name), entries, position,
                [&position](int chosen) { position = chosen; }});
}

void DialogActions::pressSpace(const QString& name) {
    m_hand.Say("Space on ", qPrintable(name), " of the options");
    auto& button = m_hand.controls.In<QWidget>(options(), name);
    button.setFocus();
    Hand::Key(button, Qt::Key_Space);
}
