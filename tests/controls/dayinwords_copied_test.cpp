// SPDX-License-Identifier: MIT
#include "controls/dayinwords.h"

#include "changecals/changecals.h"
#include "shared/texts.h"
#include "support/widget_test.h"

namespace {

class CopiedDay : public WidgetTest {
protected:
    CopiedDay() { startToday(); }

    static QStringList linesOn(int julianDay) {
        CurJD = julianDay;
        ChangeCals::ChangeJD();
        return ChosenDayInWords().split(u'\n');
    }
};

TEST_F(CopiedDay, SaysTheDayInEveryCalendarAndWhatTheyHaveInCommon) {
    EXPECT_EQ(linesOn(2451545), (QStringList{QStringLiteral("Julian calendar: 19 December 1999"),
                                             QStringLiteral("Gregorian calendar: 1 January 2000"),
                                             QStringLiteral("Jewish calendar: 23 Tevet 5760"),
                                             QStringLiteral("Moslem calendar: 25 Ramadan 1420"),
                                             QStringLiteral("Week day: Saturday"),
                                             QStringLiteral("Julian Day: 2451545"),
                                             QStringLiteral("Moon age (in days): 24.3")}));
}

TEST_F(CopiedDay, LeavesOutWhatACalendarCannotShow) {
    EXPECT_EQ(linesOn(1721319).size(), 4); // Jewish only
    EXPECT_EQ(linesOn(1721319).front(), QStringLiteral("Jewish calendar: 1 Tishri 3761"));
    EXPECT_EQ(linesOn(1948438).size(), 6); // the day before the Moslem era
    EXPECT_EQ(linesOn(1948439).size(), 7);
    EXPECT_EQ(linesOn(2817345).front(), QStringLiteral("Jewish calendar: 29 Tammuz 6761"));
}

TEST_F(CopiedDay, IsInTheLanguageNowChosen) {
    CalendarNames(Gregorian) = "Gregorianischer Kalender";
    MonthNames(Gregorian, 1) = "Januar";
    EXPECT_EQ(linesOn(2451545).at(1), QStringLiteral("Gregorianischer Kalender: 1 Januar 2000"));
}

} // namespace
