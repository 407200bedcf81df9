// SPDX-License-Identifier: MIT
#include "platform/pictures.h"
#include "yearcals/year_test.h"

#include <QFile>
#include <QSettings>

namespace {

class YearWindows : public YearTest {};

TEST_F(YearWindows, HaveTheirNamesAndCaptions) {
    const char* names[] = {"frmJulian", "frmGregorian", "frmJewish", "frmMoslem"};
    const char* captions[] = {"Julian calendar", "Gregorian calendar", "Jewish calendar",
                              "Moslem calendar"};
    for (const int c : {Julian, Gregorian, Jewish, Moslem}) {
        EXPECT_EQ(year(c).objectName(), QLatin1String(names[c - 1]));
        EXPECT_EQ(year(c).windowTitle(), QLatin1String(captions[c - 1]));
    }
}

TEST_F(YearWindows, StandWhereTheirStoredPositionSays) {
    for (const int c : {Julian, Gregorian, Jewish, Moslem}) {
        FormLeft(c) = 150 * c;
        FormTop(c) = 300 * c;
        EXPECT_EQ(year(c).pos(), QPoint(10 * c, 20 * c));
    }
}

TEST_F(YearWindows, LoadingFillsNoGrid) {
    EXPECT_EQ(grid(Julian).TextMatrix(1, 0), QString());
    EXPECT_EQ(selector(Julian).ListCount(), 0);
}

TEST_F(YearWindows, AnswerWithTheDayInTheirCalendar) {
    EXPECT_EQ(year(Jewish).Answer(), QStringLiteral("Friday, 10 Kislev 5787, Jewish calendar"));
    EXPECT_EQ(year(Julian).Answer(), QStringLiteral("Friday, 7 November 2026, Julian calendar"));
}

// Ranges

TEST_F(YearWindows, BeforeTheRangeTheGridDisappearsAfterItIsDisabled) {
    for (const int type : {1, 2}) {
        MoslemType = type;
        Calc::SetMoslemType();
        for (const int c : {Julian, Gregorian, Jewish, Moslem})
            ChangeCals::OpenYearWindow(c);
        for (const int julianDay : {1721319, 1721423, 1721424, 1721425, 1721426, 1948438, 1948439,
                                    1948440, 2817152, 2817153, 2817173, 2817174, 2817345, 2817346,
                                    2817347, 2817404, 2817405, 2817411, 2461365}) {
            goTo(julianDay);
            for (const int c : {Julian, Gregorian, Jewish, Moslem}) {
                const bool shown = !isBeforeRange(c);
                const bool enabled = shown && !isAfterRange(c);
                EXPECT_EQ(grid(c).isVisible(), shown) << julianDay << " " << c;
                EXPECT_EQ(selector(c).isEnabled(), enabled);
                EXPECT_EQ(selector(c).Text(),
                          shown ? QString::number(CurDate(c, Year)) : QString());
                EXPECT_EQ(command(c, NextYear).isEnabled(),
                          enabled && CurDate(c, Year) != lastYear(c));
                EXPECT_EQ(command(c, PreviousYear).isEnabled(),
                          shown && CurDate(c, Year) != firstYear(c));
                EXPECT_FALSE(Updating);
                if (shown) {
                    EXPECT_EQ(grid(c).isEnabled(), enabled);
                    expectEveryCellRight(c);
                }
            }
        }
    }
}

// Buttons

TEST_F(YearWindows, FromYearsBeyondTheLastTheYearBeforeLeadsBack) {
    setDate(Gregorian, 20, 11, 3003);
    ChangeCals::ChangeCal(Gregorian);
    for (const int year : {3002, 3001, 3000, 2999}) {
        open(Gregorian);
        clickCommand(Gregorian, PreviousYear);
        EXPECT_EQ(dateIn(Gregorian), (Date{20, 11, year}));
        EXPECT_EQ(selector(Gregorian).Text(), QString::number(year));
    }
}

TEST_F(YearWindows, YearsStepWithinTheRangeOnly) {
    for (const int c : {Julian, Gregorian, Jewish, Moslem}) {
        open(c);
        const int before = CurDate(c, Year);
        clickCommand(c, NextYear);
        EXPECT_EQ(CurDate(c, Year), before + 1);
        clickCommand(c, PreviousYear);
        clickCommand(c, PreviousYear);
        EXPECT_EQ(CurDate(c, Year), before - 1);
        setDate(c, 1, 1, firstYear(c));
        ChangeCals::ChangeCal(c);
        EXPECT_FALSE(command(c, PreviousYear).isEnabled());
        QTest::keyClick(&grid(c), Qt::Key_PageUp);
        EXPECT_EQ(CurDate(c, Year), firstYear(c));
        EXPECT_FALSE(Updating);
        setDate(c, 1, 1, lastYear(c));
        ChangeCals::ChangeCal(c);
        EXPECT_FALSE(command(c, NextYear).isEnabled());
        QTest::keyClick(&grid(c), Qt::Key_PageDown);
        EXPECT_EQ(CurDate(c, Year), lastYear(c));
        EXPECT_FALSE(Updating);
        goTo(2461365);
    }
}

TEST_F(YearWindows, StepsWorkWithAFullListToo) {
    open(Gregorian);
    selector(Gregorian).setFocus();
    clickCommand(Gregorian, NextYear);
    EXPECT_EQ(selector(Gregorian).ListIndex(), 2026);
    EXPECT_EQ(selector(Gregorian).ListCount(), 3000);
}

TEST_F(YearWindows, TodayIsTakenThroughTheGregorianCalendar) {
    goTo(2451545);
    open(Moslem);
    clickCommand(Moslem, TodayButton);
    EXPECT_EQ(CurJD, 2461365);
    ChangeCals::LoadMonthly().Show();
    calls.clear();
    clickCommand(Moslem, TodayButton);
    EXPECT_TRUE(takeCalls().empty());
    EXPECT_FALSE(Updating);
}

TEST_F(YearWindows, LeadToTheOtherThree) {
    const int others[4][3] = {{2, 3, 4}, {1, 3, 4}, {1, 2, 4}, {1, 2, 3}};
    for (const int c : {Julian, Gregorian, Jewish, Moslem}) {
        for (int place = 0; place < 3; ++place) {
            open(c);
            const int other = others[c - 1][place];
            year(other).Hide();
            clickCommand(c, FirstOtherCalendar + place);
            EXPECT_TRUE(year(other).Visible()) << c << " to " << other;
            expectEveryCellRight(other);
        }
    }
}

TEST_F(YearWindows, LeadToTheMoonTheOptionsAndTheAboutBox) {
    open(Julian);
    auto* front = child<CommandButton>(year(Julian),
                                       qPrintable(QStringLiteral("Command2_%1").arg(MoonPhase)));
    EXPECT_EQ(year(Julian).childAt(front->geometry().center()), front);
    click(front);
    EXPECT_TRUE(ChangeCals::LoadMoon().Visible());
    clickCommand(Julian, OptionsButton);
    EXPECT_TRUE(ChangeCals::LoadOptions().Visible());
    clickCommand(Julian, AboutButton);
    EXPECT_TRUE(ChangeCals::LoadAbout().Visible());
    EXPECT_FALSE(Updating);
}

TEST_F(YearWindows, ADoubleClickBringsBackTheMonthlyWindow) {
    open(Jewish);
    QTest::mouseDClick(grid(Jewish).viewport(), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_TRUE(ChangeCals::LoadMonthly().Visible());
    EXPECT_EQ(takeCalls().front(), "monthly.ReSetForm");
}

TEST_F(YearWindows, ADoubleClickRestoresAMinimisedMonthlyWindow) {
    open(Jewish);
    ChangeCals::LoadMonthly().showMinimized();
    QTest::mouseDClick(grid(Jewish).viewport(), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_EQ(ChangeCals::LoadMonthly().WindowState(), Form::Normal);
}

// Closing

TEST_F(YearWindows, TheCloseButtonHidesAndKeepsListAndGrid) {
    ChangeCals::LoadMonthly().Show();
    open(Gregorian);
    YearWindow* const window = &year(Gregorian);
    selector(Gregorian).setFocus();
    clickCommand(Gregorian, CloseButton);
    EXPECT_FALSE(window->Visible());
    EXPECT_EQ(&year(Gregorian), window);
    EXPECT_EQ(selector(Gregorian).ListCount(), 3000);
    EXPECT_EQ(m_exitStatus, std::nullopt);
    EXPECT_FALSE(Updating);
}

TEST_F(YearWindows, TheCloseButtonOfTheLastWindowEndsTheProgram) {
    open(Moslem);
    clickCommand(Moslem, CloseButton);
    EXPECT_EQ(m_exitStatus, 0);
    EXPECT_EQ(QSettings(settingsPath(), QSettings::IniFormat).allKeys().size(),
              2 * mainWindowCount);
}

TEST_F(YearWindows, TheRightButtonOnCloseEndsTheProgram) {
    ChangeCals::LoadMonthly().Show();
    open(Moslem);
    for (int index = 1; index <= 9; ++index) {
        if (index != CloseButton)
            QTest::mousePress(&command(Moslem, index), Qt::RightButton);
    }
    EXPECT_EQ(m_exitStatus, std::nullopt);
    QTest::mousePress(&command(Moslem, CloseButton), Qt::RightButton);
    EXPECT_EQ(m_exitStatus, 0);
}

TEST_F(YearWindows, AWindowClosedByItsFrameIsFilledAfresh) {
    ChangeCals::LoadMonthly().Show();
    open(Gregorian);
    selector(Gregorian).setFocus();
    year(Gregorian).close();
    goTo(CurJD + 1);
    open(Gregorian);
    EXPECT_EQ(selector(Gregorian).ListCount(), 1);
    expectEveryCellRight(Gregorian);
}

TEST_F(YearWindows, TheLastOneClosedByItsFrameEndsWithoutSaving) {
    open(Jewish);
    year(Jewish).close();
    EXPECT_EQ(m_exitStatus, 0);
    EXPECT_FALSE(QFile::exists(settingsPath()));
}

// Jewish window

TEST_F(YearWindows, TheJewishWindowFitsItsYearAfterMinimisingAndMaximising) {
    setDate(Jewish, 1, 1, 5784);
    ChangeCals::ChangeCal(Jewish);
    open(Jewish);
    YearWindow& window = year(Jewish);
    EXPECT_EQ(window.width(), 507);
    for (const auto state : {Qt::WindowMinimized, Qt::WindowMaximized}) {
        window.setWindowState(state);
        processEvents();
        setDate(Jewish, 1, 1, 5785);
        ChangeCals::ChangeCal(Jewish);
        window.setWindowState(Qt::WindowNoState);
        EXPECT_TRUE(waitUntil([&window] { return window.width() == 389; }));
        window.setWindowState(state);
        processEvents();
        setDate(Jewish, 1, 1, 5784);
        ChangeCals::ChangeCal(Jewish);
        window.setWindowState(Qt::WindowNoState);
        EXPECT_TRUE(waitUntil([&window] { return window.width() == 507; }));
    }
}

// Keyboard and names

TEST_F(YearWindows, TabGoesThroughTheControlsTheMoonBeingTheFifthStop) {
    open(Julian);
    goTo(CurJD + 8);
    QStringList expected{QStringLiteral("Combo1"), QStringLiteral("Command1_1"),
                         QStringLiteral("Command1_2"), QStringLiteral("Command1_3"),
                         QStringLiteral("Command2_%1").arg(MoonPhase)};
    for (const int index : {7, 8, 9, 4, 5, 6})
        expected.append(QStringLiteral("Command1_%1").arg(index));
    expected.append(QStringLiteral("MSFlexGrid1"));
    selector(Julian).setFocus();
    QStringList passed;
    for (qsizetype i = 0; i < expected.size(); ++i) {
        passed.append(QApplication::focusWidget()->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(passed, expected);
}

TEST_F(YearWindows, CtrlPPrintsTheYear) {
    for (const int c : {Julian, Gregorian, Jewish, Moslem}) {
        open(c);
        grid(c).setFocus();
        calls.clear();
        QTest::keyClick(&grid(c), Qt::Key_P, Qt::ControlModifier);
        EXPECT_EQ(takeCalls(), std::vector<std::string>{"print year " + std::to_string(c)});
    }
}

TEST_F(YearWindows, TipsAndNames) {
    open(Jewish);
    const struct {
        QWidget* control;
        const char* tip;
        const char* name = tip;
    } rows[] = {
        {&selector(Jewish), "Year"},
        {&command(Jewish, 1), "Previous year"},
        {&command(Jewish, 2), "Next year"},
        {&command(Jewish, 3), "Today"},
        {&command(Jewish, 4), "Options"},
        {&command(Jewish, 5), "About"},
        {&command(Jewish, 6), "Exit"},
        {&command(Jewish, 7), "Julian calendar"},
        {&command(Jewish, 8), "Gregorian calendar"},
        {&command(Jewish, 9), "Moslem calendar"},
        {child<QWidget>(year(Jewish), "Command2_3"), "Moon"},
        {&grid(Jewish), "Year calendar (Double-click to show monthly calendars)", "Year calendar"}};
    for (const auto& row : rows) {
        EXPECT_EQ(row.control->toolTip(), QLatin1String(row.tip));
        EXPECT_EQ(row.control->accessibleName(),
                  QStringLiteral("Jewish calendar, ") + QLatin1String(row.name));
    }
    ShowTips = 0;
    year(Jewish).SetTexts();
    for (const auto& row : rows)
        EXPECT_EQ(row.control->toolTip(), QString());
}

TEST_F(YearWindows, ButtonsHaveTheirPictures) {
    const char* pictures[] = {"buttons/previous", "buttons/next",      "buttons/today",
                              "buttons/options",  "buttons/about",     "buttons/close",
                              "emblems/julian",   "emblems/gregorian", "emblems/moslem"};
    for (int index = 1; index <= 9; ++index) {
        const QIcon expected = ButtonPicture(QLatin1String(pictures[index - 1]));
        EXPECT_EQ(command(Jewish, index).icon().pixmap(24).toImage(), expected.pixmap(24).toImage())
            << index;
    }
}

TEST_F(YearWindows, APressThatIsDraggedOffDoesNothing) {
    open(Julian);
    QTest::mousePress(&command(Julian, NextYear), Qt::LeftButton);
    QTest::mouseRelease(&command(Julian, NextYear), Qt::LeftButton, {}, QPoint(-40, -40));
    EXPECT_EQ(CurDate(Julian, Year), 2026);
}

} // namespace
