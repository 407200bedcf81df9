// SPDX-License-Identifier: MIT
#include "monthly/weekdayandmoon.h"

#include "monthly/monthly_test.h"

#include <QLocale>

namespace {

class CommonSelectors : public MonthlyTest {};

TEST_F(CommonSelectors, TheWeekdayListBeginsWithMondayWhateverOpensTheWeek) {
    FirstWeekDay = {Saturday, Saturday, Saturday, Saturday};
    window().ReSetForm();
    EXPECT_EQ(combo(6).ListCount(), 7);
    EXPECT_EQ(combo(6).itemText(0), QStringLiteral("Monday"));
    EXPECT_EQ(combo(6).itemText(6), QStringLiteral("Sunday"));
}

TEST_F(CommonSelectors, WeekdaysByMouseThenByKeysThenByTyping) {
    ComboBox& weekdays = combo(6);
    for (const int weekday : {1, 7, 3}) {
        chooseByMouse(weekdays, weekday - 1);
        EXPECT_EQ(WeekDayNo, weekday);
        expectPanesShowTheState();
    }
    for (const int weekday : {4, 5, 6}) {
        QTest::keyClick(&weekdays, Qt::Key_Down);
        EXPECT_EQ(WeekDayNo, weekday);
    }
    QTest::keyClicks(&weekdays, QStringLiteral("Tu"));
    EXPECT_EQ(WeekDayNo, 2);
    expectPanesShowTheState();
}

TEST_F(CommonSelectors, ATypedMoonAgeIsChosen) {
    const int before = CurJD;
    QTest::keyClicks(&combo(7), QStringLiteral("12.6"));
    EXPECT_EQ(CurJD, before + 2);
    EXPECT_EQ(combo(7).Text(), QStringLiteral("12.6"));
}

TEST_F(CommonSelectors, EveryWeekdayBelowTheLowestDayBeepsAndChangesNothing) {
    goTo(1721319); // a Saturday
    for (int position = 0; position < 5; ++position) {
        m_beeps = 0;
        chooseByMouse(combo(6), position);
        EXPECT_EQ(m_beeps, 1) << position;
        EXPECT_EQ(CurJD, 1721319);
        EXPECT_EQ(combo(6).ListIndex(), 5);
        expectPanesShowTheState();
    }
    QTest::keyClick(&combo(6), Qt::Key_Down);
    EXPECT_EQ(CurJD, 1721320);
}

TEST_F(CommonSelectors, MoonAgeBelowTheLowestDayBeepsAndChangesNothing) {
    goTo(1721319);
    const QString age = combo(7).Text();
    combo(7).setFocus();
    ASSERT_GT(combo(7).ListIndex(), 0);
    QTest::keyClick(&combo(7), Qt::Key_Home);
    EXPECT_EQ(m_beeps, 1);
    EXPECT_EQ(CurJD, 1721319);
    EXPECT_EQ(combo(7).Text(), age);
    expectPanesShowTheState();
}

TEST_F(CommonSelectors, MoonAgesAreThoseOfTheWholeDaysOfTheLunation) {
    combo(7).setFocus();
    EXPECT_EQ(combo(7).itemText(0), QStringLiteral("0.6"));
    EXPECT_EQ(combo(7).ListIndex(), 10);
    EXPECT_EQ(combo(7).Text(), QStringLiteral("10.6"));
    EXPECT_EQ(combo(7).ListCount(), 29);
}

TEST_F(CommonSelectors, TheMoonAgeThatIsChosenIsTheOneThatIsShown) {
    for (int start = 2451545; start < 2451545 + 4000; start += 37) {
        goTo(start);
        combo(7).setFocus();
        QTest::keyClick(&combo(7), Qt::Key_F1); // is filled before any key
        const int position = combo(7).ListIndex();
        const int target = (position + 11) % combo(7).ListCount();
        const QString chosen = combo(7).itemText(target);
        combo(7).SetListIndex(target);
        Q_EMIT combo(7).activated(target);
        ASSERT_EQ(CurJD, start + target - position);
        ASSERT_EQ(combo(7).Text(), chosen) << start;
    }
}

TEST_F(CommonSelectors, MoonAgesByMouseThenByKeys) {
    const int before = CurJD;
    chooseByMouse(combo(7), 0);
    EXPECT_EQ(CurJD, before - 10);
    chooseByMouse(combo(7), 20);
    EXPECT_EQ(CurJD, before + 10);
    QTest::keyClick(&combo(7), Qt::Key_Down);
    QTest::keyClick(&combo(7), Qt::Key_Down);
    QTest::keyClick(&combo(7), Qt::Key_Up);
    EXPECT_EQ(CurJD, before + 11);
    expectPanesShowTheState();
}

TEST_F(CommonSelectors, MoonAgesWorkInLocalesWithACommaAndWithOtherDigits) {
    for (const auto language : {QLocale::German, QLocale::Arabic, QLocale::Persian}) {
        QLocale::setDefault(QLocale(language));
        goTo(2461365);
        EXPECT_EQ(combo(7).Text(),
                  language == QLocale::German ? QStringLiteral("10,6") : QStringLiteral("10.6"));
        QTest::keyClick(&combo(7), Qt::Key_Down);
        EXPECT_EQ(CurJD, 2461366);
        expectPanesShowTheState();
    }
    QLocale::setDefault(QLocale::c());
}

TEST_F(CommonSelectors, AgesShowOneDecimalAndNoZero) {
    const struct {
        float age;
        const char* text;
    } rows[] = {{0.0F, "0"}, {12.0F, "12"}, {10.0F, "10"}, {29.5F, "29.5"}, {3.04F, "3"}};
    for (const auto& row : rows) {
        MoonAge = row.age;
        window().SetCommonInfo();
        EXPECT_EQ(combo(7).Text(), QLatin1String(row.text));
    }
}

TEST_F(CommonSelectors, TheLowestDayItselfIsReached) {
    goTo(1721320); // a Sunday
    QTest::keyClick(&combo(6), Qt::Key_Up);
    EXPECT_EQ(m_beeps, 0);
    EXPECT_EQ(CurJD, 1721319);
    expectPanesShowTheState();
}

} // namespace
