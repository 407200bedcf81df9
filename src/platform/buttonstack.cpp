// SPDX-License-Identifier: MIT
#include "platform/buttonstack.h"

#include "platform/text.h"

ButtonStack::ButtonStack(const QString& name, const QStringList& pictures, QWidget* parent) {
    for (const QString& picture : pictures) {
        const QString number = QString::number(m_buttons.size());
        auto* button = new CommandButton(name + u'_' + number, picture, parent);
        connect(button, &CommandButton::clicked, this, &ButtonStack::Click);
        m_buttons.push_back(button);
    }
    BringToFront(0);
}

void ButtonStack::Move(int x, int y) {
    for (CommandButton* button : m_buttons)
        button->move(x, y);
}

void ButtonStack::SetTips(const QString& tip, const QString& accessibleName) {
    for (CommandButton* button : m_buttons) {
        button->setToolTip(PlainTip(tip));
        button->setAccessibleName(accessibleName);
    }
}

void ButtonStack::BringToFront(int index) {
    const auto front = static_cast<std::size_t>(index);
    if (front >= m_buttons.size())
        return;
    const bool hadFocus = Front()->hasFocus();
    m_front = front;
    for (std::size_t i = 0; i < m_buttons.size(); ++i)
        m_buttons[i]->SetTabStop(i == front);
    Front()->raise();
    if (hadFocus)
        Front()->setFocus();
}
