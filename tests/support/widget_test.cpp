// SPDX-License-Identifier: MIT
#include "support/widget_test.h"

#include "changecals/changecals.h"
#include "changecals/windows.h"
#include "platform/clock.h"
#include "settings/usersettings.h"
#include "shared/english.h"

#include <QFile>

WidgetTest::WidgetTest() {
    ChangeCals::BeginRun({});
    EXPECT_TRUE(ReadSettings());
}

WidgetTest::~WidgetTest() {
    ChangeCals::EndRun();
    EXPECT_FALSE(Updating);
}

void WidgetTest::startToday(QDate today) {
    Today = [today] { return today; };
    SetEnglishTexts();
    MonthNames(Jewish, 13).clear();
    setDate(Gregorian, today.day(), today.month(), today.year());
    ChangeCals::ChangeCal(Gregorian);
}

void WidgetTest::copyLanguage(const char* name) const {
    const QString file = QLatin1String(name) + QStringLiteral(".lng");
    EXPECT_TRUE(QFile::copy(QStringLiteral(LANGUAGES_DIR "/") + file, programPath(file)));
}
