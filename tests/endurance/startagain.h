// SPDX-License-Identifier: MIT
#pragma once

#include "changecals/windows.h"
#include "start/start.h"
#include "support/state.h"
#include "support/texttables.h"

/// As a process begins that has only the settings file.
inline void StartAgain() {
    ChangeCals::EndRun();
    resetState();
    clearTexts();
    EXPECT_TRUE(Start::Main());
}
