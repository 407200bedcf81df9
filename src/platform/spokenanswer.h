// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// A control or a window that answers in words what it shows after a change; nothing,
/// where it says no more.
class Speaker {
public:
    virtual ~Speaker() = default;
    virtual QString Answer() const { return {}; }
};

/// The user has changed something: when all of it is done, assistive tools are told
/// once what the control with the focus shows; of a control that is no Speaker, what
/// its window says. A focus that moves meanwhile is told by itself and answer enough.
void AnswerUser();
