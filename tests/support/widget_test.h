// SPDX-License-Identifier: MIT
#pragma once

#include "support/platform_test.h"
#include "support/state.h"

#include <QDate>

/// A fresh state on a desk of its own, today at 20 November 2026.
class WidgetTest : public StateTest, protected Desk {
protected:
    WidgetTest();
    ~WidgetTest() override;

    /// Sets English texts and today's state in all calendars.
    void startToday(QDate today = {2026, 11, 20});

    /// Puts a language of ours into the program's folder.
    void copyLanguage(const char* name) const;
};
