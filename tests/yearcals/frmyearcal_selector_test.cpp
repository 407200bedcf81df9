// SPDX-License-Identifier: MIT
#include "yearcals/year_test.h"

namespace {

class YearSelector : public YearTest {};

TEST_F(YearSelector, TheSelectorHoldsTheShownYearUntilItGetsTheFocus) {
    for (const int c : {Julian, Gregorian, Jewish, Moslem}) {
        open(c);
        ComboBox& years = selector(c);
        EXPECT_EQ(years.ListCount(), 1);
        EXPECT_EQ(years.Text(), QString::number(CurDate(c, Year)));
        years.setFocus();
        EXPECT_EQ(years.ListCount(), lastYear(c) - firstYear(c) + 1);
        EXPECT_EQ(years.Text(), QString::number(CurDate(c, Year)));
        command(c, 1).setFocus();
        years.setFocus();
        EXPECT_EQ(years.ListCount(), lastYear(c) - firstYear(c) + 1);
    }
}

TEST_F(YearSelector, YearsByKeysAndByTyping) {
    for (const int c : {Julian, Gregorian, Jewish, Moslem}) {
        open(c);
        ComboBox& years = selector(c);
        years.setFocus();
        const int before = CurDate(c, Year);
        for (int step = 1; step <= 3; ++step) {
            QTest::keyClick(&years, Qt::Key_Down);
            EXPECT_EQ(CurDate(c, Year), before + step);
            expectEveryCellRight(c);
        }
        QTest::keyClick(&years, Qt::Key_Home);
        EXPECT_EQ(CurDate(c, Year), firstYear(c));
        goTo(2461365);
        QTest::keyClicks(&years, c == Jewish ? QStringLiteral("5700") : QStringLiteral("1400"));
        EXPECT_EQ(CurDate(c, Year), c == Jewish ? 5700 : 1400);
        goTo(2461365);
    }
}

TEST_F(YearSelector, ATypedYearKeepsTheDayAndFillsTheGridOnce) {
    setDate(Jewish, 14, 13, 5787);
    ChangeCals::ChangeCal(Jewish);
    open(Jewish);
    ChangeCals::LoadMonthly().Show();
    ComboBox& years = selector(Jewish);
    years.setFocus();
    calls.clear();
    QTest::keyClicks(&years, QStringLiteral("5790"));
    EXPECT_EQ(dateIn(Jewish), (Date{14, 13, 5790}));
    expectEveryCellRight(Jewish);
    std::vector<std::string> once = takeCalls();
    QTest::keyClick(&years, Qt::Key_Down);
    EXPECT_EQ(takeCalls(), once);
}

TEST_F(YearSelector, TheSameYearAgainDoesNothing) {
    open(Gregorian);
    ChangeCals::LoadMonthly().Show();
    calls.clear();
    Q_EMIT selector(Gregorian).activated(0);
    selector(Gregorian).setFocus();
    Q_EMIT selector(Gregorian).activated(2025);
    EXPECT_TRUE(takeCalls().empty());
}

TEST_F(YearSelector, AFullListSurvivesAYearPastItsEnd) {
    open(Gregorian);
    ComboBox& years = selector(Gregorian);
    years.setFocus();
    goTo(2817404);
    EXPECT_EQ(CurDate(Gregorian, Year), 3001);
    EXPECT_EQ(years.Text(), QStringLiteral("3001"));
    EXPECT_FALSE(years.isEnabled());
    goTo(2461365);
    EXPECT_EQ(years.Text(), QStringLiteral("2026"));
    EXPECT_TRUE(years.isEnabled());
    years.setFocus();
    EXPECT_EQ(years.ListCount(), 3000);
    EXPECT_EQ(years.ListIndex(), 2025);
}

TEST_F(YearSelector, TheJewishSelectorShowsItsYearOnEveryDayBeyondTheTop) {
    open(Jewish);
    for (int julianDay = 2817404; julianDay < 2817410; ++julianDay) {
        goTo(julianDay);
        EXPECT_EQ(selector(Jewish).Text(),
                  julianDay == 2817404 ? QStringLiteral("6761") : QStringLiteral("6762"));
    }
    goTo(2461365);
    EXPECT_EQ(selector(Jewish).Text(), QStringLiteral("5787"));
}

TEST_F(YearSelector, AYearLeftByAButtonCanBeChosenAgain) {
    open(Gregorian);
    ComboBox& years = selector(Gregorian);
    years.setFocus();
    clickCommand(Gregorian, NextYear);
    years.setFocus();
    QTest::keyClick(&years, Qt::Key_Up);
    EXPECT_EQ(CurDate(Gregorian, Year), 2026);
}

TEST_F(YearSelector, ARefillIsMarkedAsNoChoiceOfTheUsers) {
    open(Gregorian);
    ComboBox& years = selector(Gregorian);
    years.setFocus();
    std::vector<bool> updating;
    const QObject context;
    QObject::connect(&years, &QComboBox::currentIndexChanged, &context,
                     [&updating] { updating.push_back(Updating); });
    goTo(CurJD + 365);
    EXPECT_EQ(updating, std::vector<bool>{true});
    EXPECT_FALSE(Updating);
}

} // namespace
