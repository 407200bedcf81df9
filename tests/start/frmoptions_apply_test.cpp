// SPDX-License-Identifier: MIT
#include "start/frmoptions_test.h"

#include "platform/settingsfile.h"
#include "shared/english.h"

#include <QAccessible>
#include <QCheckBox>
#include <QFile>
#include <QPointer>
#include <QRadioButton>

namespace {

// Apply and Close

TEST_F(Options, ApplyWithNothingChangedWritesItsValuesAndRedrawsNothing) {
    showAllWindows();
    open();
    apply();
    EXPECT_TRUE(dialog.isNull());
    EXPECT_EQ(
        stored(),
        (QStringList{
            QStringLiteral("Gregorian/FirstWeekDay=7"), QStringLiteral("Jewish/FirstWeekDay=7"),
            QStringLiteral("Julian/FirstWeekDay=7"), QStringLiteral("Moslem/FirstWeekDay=7"),
            QStringLiteral("Moslem/Type=1"), QStringLiteral("Startup/Language=English (Default)"),
            QStringLiteral("Startup/ShowTips=1"), QStringLiteral("Startup/Window=0")}));
    EXPECT_EQ(rebuilt(), nothing);
    EXPECT_EQ(texts(), nothing);
    EXPECT_EQ(monthly->record.refilled, 0);
}

TEST_F(Options, ApplyLeavesNoYearWindowWithWhatIsFilledIn) {
    open();
    press("Option1_2");
    apply();
    for (int c = 1; c <= calendarCount; ++c)
        EXPECT_EQ(years(c)->record.forgotten, 1) << "hidden, and shown again later: " << c;
}

TEST_F(Options, ReturnOnTheButtonApplies) {
    open();
    auto* button = child<CommandButton>(*dialog, "Command1_1");
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Return);
    processEvents();
    EXPECT_TRUE(dialog.isNull());
    EXPECT_EQ(stored().size(), 8);
}

TEST_F(Options, ReturnAppliesFromAnyOtherControl) {
    for (const char* name : {"Option1_1", "Combo1_2", "Combo2", "Check1"}) {
        open();
        press("Option1_2");
        auto* control = child<QWidget>(*dialog, name);
        control->setFocus();
        QTest::keyClick(control, Qt::Key_Return);
        processEvents();
        EXPECT_TRUE(dialog.isNull()) << name;
        EXPECT_EQ(MoslemType, 2) << name;
        MoslemType = 1;
    }
}

TEST_F(Options, ReturnOnTheCloseButtonCloses) {
    open();
    auto* button = child<CommandButton>(*dialog, "Command1_2");
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Return);
    processEvents();
    EXPECT_TRUE(dialog.isNull());
    EXPECT_TRUE(stored().isEmpty());
}

TEST_F(Options, CtrlWClosesItAndDiscards) {
    for (const char* name : {"Option1_1", "Combo1_2", "Combo2", "Check1", "Command1_1"}) {
        open();
        press("Option1_2");
        auto* control = child<QWidget>(*dialog, name);
        control->setFocus();
        QTest::keyClick(control, Qt::Key_W, Qt::ControlModifier);
        EXPECT_TRUE(dialog->IsUnloaded()) << name;
        EXPECT_EQ(MoslemType, 1);
        EXPECT_TRUE(stored().isEmpty());
        processEvents();
    }
}

TEST_F(Options, ApplyUnloadsTheAboutBox) {
    ChangeCals::LoadAbout().Show();
    const QPointer<Form> about(&ChangeCals::LoadAbout());
    open();
    apply();
    EXPECT_TRUE(about.isNull());
}

TEST_F(Options, EscClosesItAndDiscards) {
    open();
    press("Option1_2");
    QTest::keyClick(dialog, Qt::Key_Escape);
    EXPECT_TRUE(dialog->IsUnloaded());
    EXPECT_EQ(MoslemType, 1);
    EXPECT_TRUE(stored().isEmpty());
}

TEST_F(Options, CloseDiscards) {
    copyLanguage("German");
    showAllWindows();
    const StateSnapshot before;
    for (const bool byButton : {true, false}) {
        open();
        press("Option1_2");
        press("Check1");
        choose("Combo1_1", 0);
        chooseLanguage("German");
        choose("Combo3", 3);
        if (byButton)
            close();
        else
            dialog->close();
        processEvents();
        EXPECT_TRUE(dialog.isNull());
    }
    EXPECT_EQ(StateSnapshot(), before);
    EXPECT_EQ(MoslemType, 1);
    EXPECT_EQ(ShowTips, 1);
    EXPECT_EQ(StartupWindow, 0);
    EXPECT_EQ(FirstWeekDay(Julian), Sunday);
    EXPECT_EQ(LanguageName, englishLanguage);
    EXPECT_FALSE(QFile::exists(settingsPath()));
    EXPECT_EQ(rebuilt(), nothing);
}

TEST_F(Options, TheStartupWindowIsKept) {
    open();
    choose("Combo3", 3);
    apply();
    EXPECT_EQ(StartupWindow, 3);
    EXPECT_TRUE(isStored("Startup/Window=3"));
}

TEST_F(Options, AStartupWindowThatIsNoneStaysUntilOneIsChosen) {
    for (const int window : {9, -1}) {
        StartupWindow = window;
        open();
        EXPECT_EQ(list("Combo3")->ListIndex(), -1);
        apply();
        EXPECT_EQ(StartupWindow, window);
        EXPECT_EQ(GetSetting(QStringLiteral("Startup"), QStringLiteral("Window"), QString()),
                  QString::number(window));
    }
}

TEST_F(Options, ItCanBeOpenedAgain) {
    open();
    Form* first = dialog;
    ChangeCals::LoadOptions().Show();
    EXPECT_EQ(&ChangeCals::LoadOptions(), first) << "there is one of it";
    apply();
    open();
    EXPECT_FALSE(dialog->IsUnloaded());
    close();
}

// The Moslem variant

TEST_F(Options, AMoslemVariantIsApplied) {
    showAllWindows();
    const StateSnapshot before;
    open();
    press("Option1_2");
    apply();
    EXPECT_EQ(MoslemType, 2);
    EXPECT_TRUE(isStored("Moslem/Type=2"));
    EXPECT_EQ(CurJD, before.curJD);
    EXPECT_EQ(CurDate(Moslem, DayNumber), before.curDate(Moslem, DayNumber) - 1)
        << "the era begins a day later";
    for (int c = 1; c <= calendarCount; ++c)
        EXPECT_TRUE(invariantsHold(c)) << c;
    EXPECT_EQ(rebuilt(), (std::vector<int>{0, 0, 0, 1, 1, 0}));
    EXPECT_EQ(texts(), nothing);
}

TEST_F(Options, AStoredVariantThatIsNoneStaysUntilAnOptionIsClicked) {
    MoslemType = 7;
    Calc::SetMoslemType();
    Calc::JDToMoslem();
    open();
    EXPECT_TRUE(child<QRadioButton>(*dialog, "Option1_2")->isChecked());
    apply();
    EXPECT_EQ(MoslemType, 7);
    EXPECT_TRUE(isStored("Moslem/Type=7"));
    open();
    press("Option1_2");
    apply();
    EXPECT_EQ(MoslemType, 2);
    EXPECT_TRUE(isStored("Moslem/Type=2"));
}

TEST_F(Options, ArrowKeysChooseAVariantToo) {
    open();
    auto* first = child<QRadioButton>(*dialog, "Option1_1");
    first->setFocus();
    QTest::keyClick(first, Qt::Key_Down);
    apply();
    EXPECT_EQ(MoslemType, 2);
}

TEST_F(Options, AssistiveToolsChooseAVariantToo) {
    open();
    auto* tool = QAccessible::queryAccessibleInterface(child<QRadioButton>(*dialog, "Option1_2"));
    tool->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    apply();
    EXPECT_EQ(MoslemType, 2);
    EXPECT_TRUE(isStored("Moslem/Type=2"));
}

// First weekdays

TEST_F(Options, AFirstWeekdayConcernsItsCalendarOnly) {
    monthly->Show();
    moon->Show();
    years(Jewish)->Show();
    years(Moslem)->Show();
    open();
    choose("Combo1_3", 0);
    apply();
    EXPECT_EQ(FirstWeekDay, (Table<int, 4>{Sunday, Sunday, Monday, Sunday}));
    EXPECT_TRUE(isStored("Jewish/FirstWeekDay=1"));
    EXPECT_EQ(rebuilt(), (std::vector<int>{0, 0, 1, 0, 1, 0}));
    EXPECT_TRUE(invariantsHold(Jewish));
}

TEST_F(Options, HiddenWindowsAreNotRebuilt) {
    open();
    for (const char* name : {"Combo1_1", "Combo1_2", "Combo1_3", "Combo1_4"})
        choose(name, 0);
    apply();
    EXPECT_EQ(FirstWeekDay, (Table<int, 4>{Monday, Monday, Monday, Monday}));
    EXPECT_EQ(rebuilt(), nothing);
}

TEST_F(Options, AWeekdayBelongsToTheCalendarThatThePaneHadWhenItWasLoaded) {
    open();
    CalendarOrder = {3, 2, 1, 4};
    choose("Combo1_1", 0);
    apply();
    EXPECT_EQ(FirstWeekDay(Julian), Monday);
    EXPECT_EQ(FirstWeekDay(Jewish), Sunday);
}

TEST_F(Options, WeeksAreCountedAnew) {
    setDate(Gregorian, 1, 3, 2026); // a Sunday
    ChangeCals::ChangeCal(Gregorian);
    const int before = CurDate(Gregorian, WeekNumber);
    open();
    choose("Combo1_2", 0);
    apply();
    EXPECT_EQ(CurDate(Gregorian, WeekNumber), before - 1);
}

// Tool tips

TEST_F(Options, TipsAreSwitchedInEveryWindow) {
    showAllWindows();
    open();
    press("Check1");
    apply();
    EXPECT_EQ(ShowTips, 0);
    EXPECT_TRUE(isStored("Startup/ShowTips=0"));
    EXPECT_EQ(texts(), std::vector<int>(mainWindowCount, 1));
    EXPECT_EQ(rebuilt(), nothing);
    for (const Record* record : records())
        EXPECT_EQ(record->tip, QString());
    open();
    press("Check1");
    apply();
    EXPECT_EQ(ShowTips, 1);
    for (const Record* record : records())
        EXPECT_EQ(record->tip, QStringLiteral("Today"));
    EXPECT_EQ(monthly->record.closeTip, Text(StringTexts(CloseOrExitText)));
}

TEST_F(Options, AStoredNumberOfTipsBecomesOne) {
    ShowTips = 5;
    open();
    EXPECT_TRUE(child<QCheckBox>(*dialog, "Check1")->isChecked());
    apply();
    EXPECT_EQ(ShowTips, 1);
}

TEST_F(Options, APressThatIsDraggedOffDoesNothing) {
    open();
    for (const char* name : {"Option1_2", "Command1_1", "Command1_2"}) {
        auto* button = child<QAbstractButton>(*dialog, name);
        QTest::mousePress(button, Qt::LeftButton);
        QTest::mouseRelease(button, Qt::LeftButton, {}, QPoint(-40, -40));
        ASSERT_FALSE(dialog->IsUnloaded()) << name;
    }
    EXPECT_TRUE(stored().isEmpty());
    apply();
    EXPECT_EQ(MoslemType, 1);
}

TEST_F(Options, TheMonthlyWindowCanBecomeTheStartupWindowAgain) {
    StartupWindow = 3;
    open();
    choose("Combo3", 0);
    apply();
    EXPECT_EQ(StartupWindow, 0);
    EXPECT_TRUE(isStored("Startup/Window=0"));
}

} // namespace
