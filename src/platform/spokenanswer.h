// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// A control or a window that answers in words what it shows after a change.
class Speaker {
public:
    Speaker() = default;
    virtual ~Speaker() = default;
    Speaker(const Speaker&) = delete;
    Speaker& operator=(const Speaker&) = delete;

    virtual QString Answer() const = 0;
};

/// The user has changed something: when all of it is done, assistive tools are told
/// once what the control with the focus shows; of a control that is no Speaker, what
/// its window says. A focus that moves meanwhile is told by itself and answer enough.
void AnswerUser();
