// SPDX-License-Identifier: MIT
#pragma once

#include "shared/english.h"
#include "shared/mainwindows.h"
#include "shared/settings.h"
#include "shared/table.h"

#include <gtest/gtest.h>

/// Fails the test when any table is read outside its bounds while it lives.
class BoundsWatch {
protected:
    BoundsWatch() {
        onOutOfBounds = [](int index, int extent) {
            ADD_FAILURE() << "table index " << index << " outside 1.." << extent;
        };
    }
    ~BoundsWatch() { onOutOfBounds = nullptr; }
};

/// The user's choices as they are where nothing is stored.
inline void resetSettings(int moslemType = 1) {
    CalendarOrder = {Julian, Gregorian, Jewish, Moslem};
    FirstWeekDay = {Sunday, Sunday, Sunday, Sunday};
    for (int window = 1; window <= mainWindowCount; ++window)
        FormTop(window) = FormLeft(window) = noPosition;
    MoslemType = moslemType;
    StartupWindow = 0;
    LanguageName = englishLanguage;
    ShowTips = 1;
}
