// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

/// The desktop's beep.
void Beep();

/// Replaces the beep; an empty function puts it back.
void SetBeep(std::function<void()> beep);
