// SPDX-License-Identifier: MIT
#include "platform/buttonstack.h"

#include "platform/commandbutton.h"

ButtonStack::ButtonStack(const QString& name, const QStringList& pictures, QWidget* parent) {
    for (const QString& picture : pictures) {
        const QString number = QString::number(m_buttons.size());
        auto* button = new CommandButton(name + u'_' + number, picture, parent);
        button->setFocusPolicy(m_buttons.empty() ? Qt::StrongFocus : Qt::ClickFocus);
        button->setVisible(m_buttons.empty());
        connect(button, &CommandButton::clicked, this, &ButtonStack::Click);
        m_buttons.push_back(button);
    }
}

void ButtonStack::Place(int x, int y, int side) {
    for (CommandButton* button : m_buttons) {
        button->SetSide(side);
        button->move(x, y);
    }
}

void ButtonStack::BringToFront(int index) {
    if (index == m_front || index < 0 || index >= static_cast<int>(m_buttons.size()))
        return;
    CommandButton* former = Front();
    const bool hadFocus = former->window()->focusWidget() == former; // also behind other windows
    former->setFocusPolicy(Qt::ClickFocus);
    m_front = index;
    Front()->setFocusPolicy(Qt::StrongFocus);
    Front()->raise();
    QWidget::setTabOrder(former, Front());
    Front()->show();
    if (hadFocus)
        Front()->setFocus();
    former->hide();
}
