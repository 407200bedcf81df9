// SPDX-License-Identifier: MIT
#include "monthly/monthly_test.h"
#include "platform/settingsfile.h"

#include <QFile>
#include <QSettings>
#include <set>
#include <string>

namespace {

class MonthlyWindowTest : public MonthlyTest {};

TEST_F(MonthlyWindowTest, HasItsCaptionFromTheTexts) {
    EXPECT_EQ(window().windowTitle(), QStringLiteral("Monthly calendars"));
}

TEST_F(MonthlyWindowTest, LoadingFillsNoControl) {
    frmMonthlyCal fresh;
    EXPECT_EQ(child<ComboBox>(fresh, "Combo1_1")->ListCount(), 0);
    EXPECT_EQ(child<ComboBox>(fresh, "Combo6")->ListCount(), 0);
    EXPECT_EQ(child<MSFlexGrid>(fresh, "MSFlexGrid1_1")->TextMatrix(0, 0), QString());
}

TEST_F(MonthlyWindowTest, StandsWhereItsStoredPositionSays) {
    FormTop(MonthlyWindowNumber) = 750;
    FormLeft(MonthlyWindowNumber) = 1500;
    frmMonthlyCal fresh;
    EXPECT_EQ(fresh.pos(), QPoint(100, 50));
}

TEST_F(MonthlyWindowTest, TodayReturnsToTodayAndDoesNothingWhenItIsToday) {
    ChangeCals::LoadYear(Julian).Show();
    calls.clear();
    click(&command(2));
    EXPECT_TRUE(takeCalls().empty());
    goTo(2451545);
    click(&command(2));
    EXPECT_EQ(dateIn(Gregorian), (Date{20, 11, 2026}));
    EXPECT_EQ(takeCalls(), std::vector<std::string>{"year1.ShowYear"});
    expectPanesShowTheState();
}

TEST_F(MonthlyWindowTest, AnswersWithTheDayOfTheFirstPaneThatHasIt) {
    CalendarOrder = {Jewish, Moslem, Gregorian, Julian};
    EXPECT_EQ(window().Answer(), QStringLiteral("Friday, 10 Kislev 5787, Jewish calendar"));
    CalendarOrder = {9, Moslem, Julian, Jewish};
    goTo(1948438); // the day before the Moslem era
    EXPECT_EQ(window().Answer(), QStringLiteral("Wednesday, 14 July 622, Julian calendar"));
}

TEST_F(MonthlyWindowTest, CommandsOpenTheOtherWindows) {
    CalendarOrder = {Jewish, Gregorian, Julian, Moslem};
    window().ReSetForm();
    calls.clear();
    click(&command(1));
    EXPECT_EQ(takeCalls(), (std::vector<std::string>{"year4.ShowYear", "year1.ShowYear",
                                                     "year2.ShowYear", "year3.ShowYear"}));
    click(&command(3));
    EXPECT_TRUE(ChangeCals::LoadOptions().Visible());
    EXPECT_FALSE(ChangeCals::LoadOptions().isModal());
    click(&command(4));
    EXPECT_TRUE(ChangeCals::LoadAbout().Visible());
    EXPECT_FALSE(ChangeCals::LoadAbout().isModal());
}

TEST_F(MonthlyWindowTest, CommandsAnswerToSpaceAndReturn) {
    command(3).setFocus();
    QTest::keyClick(&command(3), Qt::Key_Space);
    EXPECT_TRUE(ChangeCals::LoadOptions().Visible());
    command(4).setFocus();
    QTest::keyClick(&command(4), Qt::Key_Return);
    EXPECT_TRUE(ChangeCals::LoadAbout().Visible());
}

TEST_F(MonthlyWindowTest, TheMoonButtonOfThePhaseIsInFrontAndOpensTheMoonWindow) {
    for (int julianDay = 2461365; julianDay < 2461395; ++julianDay) {
        goTo(julianDay);
        const QPoint middle = moonButton(MoonPhase).geometry().center();
        EXPECT_EQ(window().childAt(middle), &moonButton(MoonPhase));
        for (int phase = 0; phase <= 8; ++phase)
            EXPECT_EQ((moonButton(phase).focusPolicy() & Qt::TabFocus) != 0, phase == MoonPhase);
    }
    click(&moonButton(MoonPhase));
    EXPECT_TRUE(ChangeCals::LoadMoon().Visible());
}

TEST_F(MonthlyWindowTest, TheFocusStaysOnTheMoonWhenItsPhaseChanges) {
    moonButton(MoonPhase).setFocus();
    const int before = MoonPhase;
    goTo(CurJD + 8);
    ASSERT_NE(MoonPhase, before);
    EXPECT_TRUE(moonButton(MoonPhase).hasFocus());
}

TEST_F(MonthlyWindowTest, CloseButtonEndsTheProgramWhenItIsTheOnlyWindow) {
    click(&command(5));
    EXPECT_EQ(m_exitStatus, 0);
    EXPECT_EQ(QSettings(settingsPath(), QSettings::IniFormat).allKeys().size(),
              2 * mainWindowCount);
}

TEST_F(MonthlyWindowTest, CloseButtonOnlyHidesBesideAYearWindow) {
    ChangeCals::LoadYear(Jewish).Show();
    MonthlyWindow* const hidden = &window();
    click(&command(5));
    EXPECT_FALSE(hidden->Visible());
    EXPECT_EQ(&window(), hidden);
    EXPECT_EQ(m_exitStatus, std::nullopt);
}

TEST_F(MonthlyWindowTest, RightPressOnTheCloseButtonEndsTheProgram) {
    ChangeCals::LoadYear(Jewish).Show();
    for (const int index : {1, 2, 3, 4})
        QTest::mousePress(&command(index), Qt::RightButton);
    EXPECT_EQ(m_exitStatus, std::nullopt);
    QTest::mousePress(&command(5), Qt::RightButton);
    EXPECT_EQ(m_exitStatus, 0);
    EXPECT_TRUE(QFile::exists(settingsPath()));
}

TEST_F(MonthlyWindowTest, FrameCloseEndsTheProgramWithoutSaving) {
    window().close();
    EXPECT_EQ(m_exitStatus, 0);
    EXPECT_FALSE(QFile::exists(settingsPath()));
}

TEST_F(MonthlyWindowTest, TipsAndNames) {
    const struct {
        QWidget* control;
        const char* tip;
        const char* name;
    } rows[] = {
        {&combo(1, 2), "Calendar", "Gregorian calendar, Calendar"},
        {&combo(2, 2), "Year", "Gregorian calendar, Year"},
        {&combo(3, 3), "Year month number/Number of months in the year. Month",
         "Jewish calendar, Month"},
        {&grid(1), "Monthly calendar (Double-click to show year calendar)",
         "Julian calendar, Monthly calendar"},
        {&combo(4, 4), "Year day number/Number of days in the year",
         "Moslem calendar, Year day number"},
        {&combo(5, 4), "Year week number/Number of weeks in the year",
         "Moslem calendar, Year week number"},
        {&combo(6), "Week day", "Week day"},
        {&combo(7), "Moon age (in days)", "Moon age (in days)"},
        {&combo(8), "Julian Day", "Julian Day"},
        {&moonButton(3), "Moon", "Moon"},
        {&command(1), "Year calendars", "Year calendars"},
        {&command(2), "Today", "Today"},
        {&command(3), "Options", "Options"},
        {&command(4), "About", "About"},
        {&command(5), "Exit", "Exit"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.control->toolTip(), QLatin1String(row.tip));
        EXPECT_EQ(row.control->accessibleName(), QLatin1String(row.name));
    }
    ShowTips = 0;
    window().SetTexts();
    for (const auto& row : rows) {
        EXPECT_EQ(row.control->toolTip(), QString());
        EXPECT_EQ(row.control->accessibleName(), QLatin1String(row.name));
    }
}

TEST_F(MonthlyWindowTest, TabGoesThroughTheWindowInReadingOrder) {
    QStringList expected;
    for (int pane = 1; pane <= paneCount; ++pane) {
        for (const char* control :
             {"Combo1_", "Combo2_", "Combo3_", "MSFlexGrid1_", "Combo4_", "Combo5_"})
            expected.append(QLatin1String(control) + QString::number(pane));
    }
    expected += {QStringLiteral("Combo6"), QStringLiteral("Combo7"),
                 QStringLiteral("Command2_%1").arg(MoonPhase), QStringLiteral("Combo8")};
    for (int index = 1; index <= 5; ++index)
        expected.append(QStringLiteral("Command1_%1").arg(index));

    combo(1, 1).setFocus();
    QStringList passed;
    for (qsizetype i = 0; i < expected.size(); ++i) {
        passed.append(QApplication::focusWidget()->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(passed, expected);
}

TEST_F(MonthlyWindowTest, EmblemsStandAboveTheirCalendarsPanes) {
    const int lefts[] = {20, 176, 332, 488};
    CalendarOrder = {Moslem, Jewish, Gregorian, Julian};
    window().ReSetForm();
    for (int pane = 1; pane <= paneCount; ++pane) {
        auto* emblem = child<QWidget>(
            window(), qPrintable(QStringLiteral("Image1_%1").arg(CalendarOrder(pane))));
        EXPECT_EQ(emblem->x(), lefts[pane - 1]);
        EXPECT_TRUE(emblem->isVisible());
        EXPECT_LT(emblem->geometry().bottom(), combo(1, pane).y());
    }
}

TEST_F(MonthlyWindowTest, APaneWithoutACalendarStandsEmptyAndIsRepairedByChoosing) {
    CalendarOrder = {9, Gregorian, Jewish, Moslem};
    window().ReSetForm();
    EXPECT_EQ(combo(1, 1).ListIndex(), -1);
    EXPECT_TRUE(combo(1, 1).isVisible());
    EXPECT_FALSE(grid(1).isVisible());
    for (const int kind : {2, 3, 4, 5}) {
        EXPECT_FALSE(combo(kind, 1).isVisible());
        QTest::keyClick(&combo(kind, 1), Qt::Key_F12); // is filled before any key
        EXPECT_EQ(combo(kind, 1).ListCount(), 1) << kind;
    }
    ChangeCals::ChangeJD();
    EXPECT_EQ(CalendarOrder(1), 9);

    combo(1, 1).setFocus();
    QTest::keyClick(&combo(1, 1), Qt::Key_Down);
    EXPECT_EQ(CalendarOrder(1), Julian);
    expectPanesShowTheState();
    EXPECT_EQ(GetSetting(QStringLiteral("Startup"), QStringLiteral("Calendar1"), {}),
              QStringLiteral("1"));
}

TEST_F(MonthlyWindowTest, APaneWithoutACalendarCanTakeOneThatAnotherPaneShows) {
    CalendarOrder = {9, Gregorian, Jewish, Moslem};
    window().ReSetForm();
    chooseByMouse(combo(1, 1), Jewish - 1);
    EXPECT_EQ(CalendarOrder(1), Jewish);
    EXPECT_EQ(CalendarOrder(3), 9);
    EXPECT_FALSE(grid(3).isVisible());
    EXPECT_TRUE(grid(1).isVisible());
}

// Printing

class MonthlyPaper : public MonthlyTest {
protected:
    /// What Ctrl+P asks for with the focus on a control.
    static std::string printedFrom(QWidget& control) {
        control.setFocus();
        calls.clear();
        QTest::keyClick(&control, Qt::Key_P, Qt::ControlModifier);
        return calls.size() == 1 ? calls[0] : "nothing, or more";
    }

    static void goToDay(int julianDay) {
        CurJD = julianDay;
        ChangeCals::ChangeJD();
    }
};

TEST_F(MonthlyPaper, IsOfThePaneWithTheFocus) {
    CalendarOrder = {Moslem, Jewish, Gregorian, Julian};
    window().ReSetForm();
    for (int pane = 1; pane <= paneCount; ++pane) {
        const std::string expected = "print month " + std::to_string(CalendarOrder(pane));
        EXPECT_EQ(printedFrom(grid(pane)), expected);
        for (int kind = 1; kind <= 5; ++kind)
            EXPECT_EQ(printedFrom(combo(kind, pane)), expected) << kind;
    }
}

TEST_F(MonthlyPaper, IsOfTheFirstPaneWhereNoneHasTheFocus) {
    CalendarOrder = {Moslem, Jewish, Gregorian, Julian};
    window().ReSetForm();
    EXPECT_EQ(printedFrom(command(2)), "print month 4");
    EXPECT_EQ(printedFrom(combo(8)), "print month 4");
}

TEST_F(MonthlyPaper, IsOfAPaneThatShowsTheDay) {
    goToDay(1721319); // 1 Tishri 3761, before the other calendars
    EXPECT_EQ(printedFrom(combo(1, 4)), "print month 3");
    goToDay(2817404); // the last of 6761, after the others
    EXPECT_EQ(printedFrom(combo(1, 1)), "print month 3");
    CalendarOrder = {Julian, Gregorian, 9, Moslem};
    window().ReSetForm();
    EXPECT_EQ(printedFrom(combo(1, 3)), "print month 0");
}

TEST_F(MonthlyWindowTest, AnswersWithTheDayOfTheLastPaneWhereNoOtherHasIt) {
    CalendarOrder = {Julian, Gregorian, Moslem, Jewish};
    goTo(1721319); // before the other calendars
    EXPECT_EQ(window().Answer(), QStringLiteral("Saturday, 1 Tishri 3761, Jewish calendar"));
}

TEST_F(MonthlyWindowTest, TheEmblemOfACalendarThatNoPaneShowsIsHidden) {
    CalendarOrder = {Julian, Gregorian, Jewish, 9};
    window().ReSetForm();
    EXPECT_TRUE(child<QWidget>(window(), "Image1_4")->isHidden());
    EXPECT_TRUE(child<QWidget>(window(), "Image1_3")->isVisible());
}

TEST_F(MonthlyWindowTest, WhatARefillChangesIsNotTheUsers) {
    std::set<std::string> changed;
    const auto watch = [&changed](const char* what) {
        return [&changed, what] {
            changed.insert(what);
            EXPECT_TRUE(Updating) << what;
        };
    };
    const QObject context;
    QObject::connect(&combo(2, 1), &QComboBox::currentTextChanged, &context, watch("year"));
    QObject::connect(grid(1).model(), &QAbstractItemModel::dataChanged, &context, watch("days"));
    QObject::connect(&combo(6), &QComboBox::currentTextChanged, &context, watch("weekday"));
    goTo(2451545);
    EXPECT_EQ(changed, (std::set<std::string>{"year", "days", "weekday"}));
}

} // namespace
