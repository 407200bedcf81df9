// SPDX-License-Identifier: MIT
#include "controls/dayinwords.h"

#include "calc/state.h"
#include "changecals/changecals.h"
#include "shared/texts.h"
#include "support/widget_test.h"

namespace {

class SpokenDays : public WidgetTest {
protected:
    SpokenDays() { startToday(); }
};

TEST_F(SpokenDays, AreWholeDatesInTheirCalendar) {
    EXPECT_EQ(SpokenDay(Gregorian, 5, QStringLiteral("20"), 11),
              QStringLiteral("Friday, 20 November 2026, Gregorian calendar"));
    EXPECT_EQ(SpokenDay(Moslem, 1, QStringLiteral("7"), 9),
              QStringLiteral("Monday, 7 Ramadan 1448, Moslem calendar"));
}

TEST_F(SpokenDays, TheChosenOneIsSaidWhereACalendarHasIt) {
    EXPECT_EQ(SpokenChosenDay(Gregorian),
              QStringLiteral("Friday, 20 November 2026, Gregorian calendar"));
    CurJD = 1948438; // the day before the Moslem era
    ChangeCals::ChangeJD();
    EXPECT_EQ(SpokenChosenDay(Moslem), QString());
    EXPECT_EQ(SpokenChosenDay(Julian), QStringLiteral("Wednesday, 14 July 622, Julian calendar"));
    for (const int noCalendar : {0, 5})
        EXPECT_EQ(SpokenChosenDay(noCalendar), QString());
}

TEST_F(SpokenDays, KeepNamesFromTheRightApartFromNumbersWhereTheyAreSeen) {
    MonthNames(Gregorian, 11) = "\u05D0\u05D1";
    EXPECT_EQ(ChosenDayInWords().split(u'\n').at(1),
              QStringLiteral("Gregorian calendar: 20 \u2068\u05D0\u05D1\u2069 2026"));
    EXPECT_EQ(SpokenDay(Gregorian, 5, QStringLiteral("20"), 11),
              QStringLiteral("Friday, 20 \u05D0\u05D1 2026, Gregorian calendar"));
}

TEST_F(SpokenDays, HaveTheMonthsNamesOfALeapYear) {
    CurDate(Jewish, Day) = 1;
    CurDate(Jewish, Month) = 7;
    CurDate(Jewish, Year) = 5784;
    ChangeCals::ChangeCal(Jewish);
    EXPECT_EQ(SpokenDay(Jewish, 7, QStringLiteral("14"), 7),
              QStringLiteral("Sunday, 14 Adar II 5784, Jewish calendar"));
}

TEST_F(SpokenDays, AreInTheLanguageNowChosen) {
    WeekDayNames(5) = "Freitag";
    CalendarNames(Gregorian) = "Gregorianischer Kalender";
    EXPECT_EQ(SpokenDay(Gregorian, 5, QStringLiteral("20"), 11),
              QStringLiteral("Freitag, 20 November 2026, Gregorianischer Kalender"));
    MonthNames(Gregorian, 11) = "נובמבר";
    EXPECT_EQ(SpokenDay(Gregorian, 5, QStringLiteral("20"), 11),
              QStringLiteral("Freitag, 20 נובמבר 2026, Gregorianischer Kalender"));
}

} // namespace
