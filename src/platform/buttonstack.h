// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QStringList>
#include <vector>

class CommandButton;

/// Buttons that lie one over another; only the one in front is shown and reached
/// by Tab. They are counted from 0 and named name_0, name_1, ...
class ButtonStack : public QObject {
    Q_OBJECT

public:
    ButtonStack(const QString& name, const QStringList& pictures, QWidget* parent);

    void Place(int x, int y, int side);

    /// The focus, where a button of the stack has it, goes along.
    void BringToFront(int index);

    CommandButton* Front() const { return m_buttons[static_cast<std::size_t>(m_front)]; }
    const std::vector<CommandButton*>& Buttons() const { return m_buttons; }

Q_SIGNALS:
    void Click();

private:
    std::vector<CommandButton*> m_buttons;
    int m_front = 0;
};
