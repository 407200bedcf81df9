// SPDX-License-Identifier: MIT
#include "start/frmoptions.h"

#include "changecals/changecals.h"
#include "changecals/opening.h"
#include "platform/combobox.h"
#include "platform/commandbutton.h"
#include "platform/numbers.h"
#include "platform/settingsstore.h"
#include "platform/twips.h"
#include "start/english.h"
#include "start/language.h"
#include "start/recordingwindows.h"
#include "support/widget_test.h"

#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QPointer>
#include <QRadioButton>
#include <QScreen>

namespace {

class Options : public WidgetTest {
protected:
    Options() {
        startToday();
        ChangeCals::SetFactories({
            [this] { return monthly = new RecordingMonthly; },
            [this](int c) { return years(c) = new RecordingYear(c); },
            [this] { return moon = new RecordingMoon; },
            [] { return new frmOptions; },
            [] { return new Form(QStringLiteral("frmAbout")); },
        });
        ChangeCals::Monthly();
        for (int c = 1; c <= calendarCount; ++c)
            ChangeCals::Year(c);
        ChangeCals::Moon();
    }

    void open() {
        ChangeCals::ShowOptions();
        dialog = &ChangeCals::Options();
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
        for (Record* record : records())
            *record = {};
    }

    void apply() {
        click(child<CommandButton>(*dialog, "Command1_1"));
        processEvents();
    }

    void close() {
        click(child<CommandButton>(*dialog, "Command1_2"));
        processEvents();
    }

    ComboBox* list(const char* name) { return child<ComboBox>(*dialog, name); }

    /// Chooses an entry of a list by keys.
    void choose(const char* name, int position) {
        ComboBox* box = list(name);
        box->setFocus();
        QTest::keyClick(box, Qt::Key_Home);
        for (int step = 0; step < position; ++step)
            QTest::keyClick(box, Qt::Key_Down);
        EXPECT_EQ(box->ListIndex(), position) << name;
    }

    void chooseLanguage(const char* language) {
        choose("Combo2", list("Combo2")->findText(QLatin1String(language)));
    }

    /// Presses a box or an option by its key.
    void press(const char* name) {
        auto* button = child<QAbstractButton>(*dialog, name);
        button->setFocus();
        QTest::keyClick(button, Qt::Key_Space);
    }

    /// Opens the dialog, chooses a language and applies it.
    void changeLanguage(const char* language) {
        open();
        chooseLanguage(language);
        apply();
        EXPECT_EQ(LanguageName, language);
    }

    void copyLanguage(const char* name) const {
        const QString file = QLatin1String(name) + QStringLiteral(".lng");
        EXPECT_TRUE(QFile::copy(QStringLiteral(LANGUAGES_DIR "/") + file, programPath(file)));
    }

    std::vector<Record*> records() {
        return {&years(1)->record, &years(2)->record, &years(3)->record,
                &years(4)->record, &monthly->record,  &moon->record};
    }

    /// How often each window was rebuilt, by the numbers of the main windows.
    std::vector<int> rebuilt() {
        std::vector<int> counts;
        for (const Record* record : records())
            counts.push_back(record->rebuilt);
        return counts;
    }

    std::vector<int> texts() {
        std::vector<int> counts;
        for (const Record* record : records())
            counts.push_back(record->texts);
        return counts;
    }

    void showAllWindows() {
        monthly->Show();
        moon->Show();
        for (int c = 1; c <= calendarCount; ++c)
            years(c)->Show();
    }

    /// "Section/Key=Value" of everything in the settings file.
    QStringList stored() const {
        QStringList entries;
        QString section;
        for (const QString& line : QString::fromUtf8(readFile(settingsPath())).split(u'\n')) {
            if (line.startsWith(u'['))
                section = line.chopped(1).mid(1) + u'/';
            else if (!line.isEmpty())
                entries.append(section + line);
        }
        entries.sort();
        return entries;
    }

    bool isStored(const char* entry) const { return stored().contains(QString::fromUtf8(entry)); }

    const std::vector<int> nothing = std::vector<int>(mainWindowCount, 0);
    RecordingMonthly* monthly = nullptr;
    Table<RecordingYear*, calendarCount> years;
    RecordingMoon* moon = nullptr;
    QPointer<Form> dialog;
};

// What is shown

TEST_F(Options, ShowsTheSettings) {
    copyLanguage("German");
    FirstWeekDay = {1, 2, 3, 7};
    StartupWindow = 2;
    open();
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Options"));
    EXPECT_TRUE(child<QCheckBox>(*dialog, "Check1")->isChecked());
    EXPECT_TRUE(child<QRadioButton>(*dialog, "Option1_1")->isChecked());
    EXPECT_EQ(list("Combo1_1")->Text(), QStringLiteral("Mo"));
    EXPECT_EQ(list("Combo1_3")->Text(), QStringLiteral("We"));
    EXPECT_EQ(list("Combo1_4")->Text(), QStringLiteral("Su"));
    EXPECT_EQ(list("Combo2")->Text(), QStringLiteral("English (Default)"));
    EXPECT_EQ(list("Combo2")->ListCount(), 2);
    EXPECT_EQ(list("Combo3")->ListCount(), 5);
    EXPECT_EQ(list("Combo3")->Text(), QStringLiteral("Gregorian calendar"));
    close();
}

TEST_F(Options, ListsTheCalendarsInTheOrderOfThePanes) {
    CalendarOrder = {4, 3, 2, 1};
    FirstWeekDay = {1, 2, 3, 4};
    open();
    for (int pane = 1; pane <= 4; ++pane) {
        ComboBox* box = list(("Combo1_" + std::to_string(pane)).c_str());
        EXPECT_EQ(box->accessibleName(), Text(CalendarNames(5 - pane)));
        EXPECT_EQ(box->ListIndex(), 4 - pane);
    }
    close();
}

TEST_F(Options, StandsAtAThirdOfTheFreeHeight) {
    open();
    const QSize free = QGuiApplication::primaryScreen()->size() - dialog->size();
    EXPECT_NEAR(dialog->Left(), CLng(ToTwips(free.width()) / 2.0).value_or(0), twipsPerPixel);
    EXPECT_NEAR(dialog->Top(), CLng(ToTwips(free.height()) / 3.0).value_or(0), twipsPerPixel);
    close();
}

TEST_F(Options, AFirstWeekdayThatIsNoneIsShownInSevens) {
    FirstWeekDay = {8, 0, -1, 15};
    open();
    EXPECT_EQ(list("Combo1_1")->ListIndex(), 0);
    for (int pane = 2; pane <= 4; ++pane)
        EXPECT_EQ(list(("Combo1_" + std::to_string(pane)).c_str())->ListIndex(),
                  Calc::WeekStart(pane) - 1);
    apply();
    EXPECT_EQ(FirstWeekDay, (Table<int, 4>{8, 0, -1, 15})) << "kept while it is not chosen anew";
}

TEST_F(Options, APaneWithoutACalendarHasAnEmptyDisabledList) {
    CalendarOrder = {9, 2, 3, 4};
    open();
    EXPECT_EQ(list("Combo1_1")->ListCount(), 0);
    EXPECT_FALSE(list("Combo1_1")->isEnabled());
    EXPECT_TRUE(list("Combo1_2")->isEnabled());
    apply();
    EXPECT_EQ(FirstWeekDay, (Table<int, 4>{Sunday, Sunday, Sunday, Sunday}));
}

TEST_F(Options, AnEmptyEraLeavesTheLeapYearsAlone) {
    LabelTexts(MoslemEra1Label).clear();
    LabelTexts(MoslemLeapYears1Label) = "2 & 5";
    open();
    EXPECT_EQ(child<QRadioButton>(*dialog, "Option1_1")->text(), QStringLiteral("2 && 5"));
    EXPECT_EQ(child<QRadioButton>(*dialog, "Option1_2")->text(),
              Text(LabelTexts(MoslemEra2Label)) + QStringLiteral("\r\n") +
                  Text(LabelTexts(MoslemLeapYears2Label)));
    close();
}

TEST_F(Options, TipsAreShownWithTipsOnly) {
    for (const bool tips : {true, false}) {
        ShowTips = tips ? 1 : 0;
        open();
        const auto* button = child<CommandButton>(*dialog, "Command1_1");
        EXPECT_EQ(button->toolTip(), tips ? QStringLiteral("Apply") : QString());
        EXPECT_EQ(button->accessibleName(), QStringLiteral("Apply"));
        close();
    }
}

TEST_F(Options, RunsAsItsLanguageDoes) {
    copyLanguage("Hebrew");
    open();
    EXPECT_EQ(dialog->layoutDirection(), Qt::LeftToRight);
    chooseLanguage("Hebrew");
    apply();
    open();
    EXPECT_EQ(dialog->layoutDirection(), Qt::RightToLeft);
    EXPECT_GT(child<CommandButton>(*dialog, "Command1_1")->x(),
              child<CommandButton>(*dialog, "Command1_2")->x());
    EXPECT_EQ(monthly->layoutDirection(), Qt::LeftToRight);
    close();
}

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

TEST_F(Options, ReturnOnTheButtonApplies) {
    open();
    auto* button = child<CommandButton>(*dialog, "Command1_1");
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Return);
    processEvents();
    EXPECT_TRUE(dialog.isNull());
    EXPECT_EQ(stored().size(), 8);
}

TEST_F(Options, ApplyUnloadsTheAboutBox) {
    ChangeCals::ShowAbout();
    const QPointer<Form> about(&ChangeCals::About());
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
    for (const Record* record : records()) {
        EXPECT_EQ(record->tip, QString());
        EXPECT_EQ(record->closeTip, QString());
    }
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

// Languages

TEST_F(Options, ALanguageChangesTheTextsOfEveryWindow) {
    copyLanguage("German");
    monthly->Show();
    moon->Show();
    years(Jewish)->Show();
    changeLanguage("German");
    EXPECT_EQ(texts(), std::vector<int>(mainWindowCount, 1));
    EXPECT_EQ(rebuilt(), (std::vector<int>{0, 0, 1, 0, 1, 1}));
    EXPECT_EQ(monthly->windowTitle(), QStringLiteral("Monatskalender"));
    EXPECT_EQ(years(Moslem)->windowTitle(), QStringLiteral("Islamischer Kalender"));
    EXPECT_EQ(moon->windowTitle(), QStringLiteral("Mond"));
    for (const Record* record : records())
        EXPECT_EQ(record->tip, QStringLiteral("Heute"));
    EXPECT_EQ(monthly->record.closeTip, Text(StringTexts(CloseOrExitText)));
    EXPECT_TRUE(isStored("Startup/Language=German"));
    open();
    EXPECT_EQ(list("Combo2")->Text(), QStringLiteral("German"));
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Optionen"));
    close();
}

TEST_F(Options, ALanguageAndTipsAreChangedTogether) {
    copyLanguage("German");
    showAllWindows();
    open();
    chooseLanguage("German");
    press("Check1");
    choose("Combo1_4", 0);
    press("Option1_2");
    apply();
    EXPECT_EQ(texts(), std::vector<int>(mainWindowCount, 1));
    EXPECT_EQ(rebuilt(), std::vector<int>(mainWindowCount, 1));
    for (const Record* record : records())
        EXPECT_EQ(record->tip, QString());
    EXPECT_EQ(MoslemType, 2);
    EXPECT_EQ(FirstWeekDay(Moslem), Monday);
    EXPECT_TRUE(invariantsHold(Moslem));
}

TEST_F(Options, ALanguageStoredInOtherCaseIsSelected) {
    copyLanguage("German");
    LanguageName = "german";
    open();
    EXPECT_EQ(list("Combo2")->Text(), QStringLiteral("German"));
    apply();
    EXPECT_EQ(LanguageName, "German");
}

void expectLeapNames() {
    EXPECT_EQ(MonthNames(Jewish, 6), AdarName + " I");
    EXPECT_EQ(MonthNames(Jewish, 7), AdarName + " II");
    EXPECT_FALSE(MonthNames(Jewish, 13).empty());
    EXPECT_NE(MonthNames(Jewish, 13), MonthNames(Jewish, 12));
}

TEST_F(Options, LanguagesMayChangeBackAndForthInAJewishLeapYear) {
    copyLanguage("Russian");
    copyLanguage("German");
    setDate(Gregorian, 24, 3, 2024);
    ChangeCals::ChangeCal(Gregorian);
    ASSERT_EQ(dateIn(Jewish), (Date{14, 7, 5784}));
    const StateSnapshot before;
    for (int round = 0; round < 3; ++round) {
        for (const char* language : {"Russian", "German", "English (Default)"}) {
            changeLanguage(language);
            EXPECT_EQ(StateSnapshot(), before) << language;
            expectLeapNames();
        }
    }
    EXPECT_EQ(MonthNames(Jewish, 7), "Adar II");
    EXPECT_EQ(MonthNames(Jewish, 13), "Elul");
}

TEST_F(Options, ACommonYearIsRightAfterChangesInALeapYear) {
    copyLanguage("Russian");
    setDate(Gregorian, 24, 3, 2024);
    ChangeCals::ChangeCal(Gregorian);
    changeLanguage("Russian");
    setDate(Gregorian, 20, 11, 2025);
    ChangeCals::ChangeCal(Gregorian);
    EXPECT_FALSE(JewishLeap);
    EXPECT_EQ(MonthNames(Jewish, 6), AdarName);
    EXPECT_EQ(MonthNames(Jewish, 12), "Элул");
    EXPECT_EQ(MonthNames(Jewish, 13), "");
    EXPECT_TRUE(invariantsHold(Jewish));
    changeLanguage("English (Default)");
    EXPECT_EQ(MonthNames(Jewish, 6), "Adar");
    EXPECT_EQ(MonthNames(Jewish, 12), "Elul");
    EXPECT_EQ(MonthNames(Jewish, 13), "");
}

TEST_F(Options, AFileThatVanishedIsToldAndEnglishTakesItsPlace) {
    copyLanguage("Russian");
    copyLanguage("German");
    setDate(Gregorian, 24, 3, 2024);
    ChangeCals::ChangeCal(Gregorian);
    changeLanguage("Russian");
    const StateSnapshot before;
    open();
    chooseLanguage("German");
    const QString path = programPath(QStringLiteral("German.lng"));
    ASSERT_TRUE(QFile::remove(path));
    apply();
    EXPECT_EQ(m_messages.take(), QStringList{QDir::toNativeSeparators(path) +
                                             QStringLiteral("\r\n\r\nFile not found")});
    EXPECT_TRUE(dialog.isNull());
    EXPECT_EQ(LanguageName, englishLanguage);
    EXPECT_TRUE(isStored("Startup/Language=German"));
    EXPECT_EQ(StateSnapshot(), before);
    EXPECT_EQ(MonthNames(Jewish, 6), "Adar I");
    EXPECT_EQ(MonthNames(Jewish, 13), "Elul");
    EXPECT_EQ(monthly->windowTitle(), QStringLiteral("Monthly calendars"));
}

TEST_F(Options, WithoutALanguageNothingIsApplied) {
    LanguageName = "Gone";
    open();
    EXPECT_EQ(list("Combo2")->ListIndex(), -1);
    press("Option1_2");
    click(child<CommandButton>(*dialog, "Command1_1"));
    processEvents();
    EXPECT_EQ(m_messages.take(), QStringList{QStringLiteral("Select language")});
    ASSERT_FALSE(dialog.isNull());
    EXPECT_TRUE(dialog->Visible());
    EXPECT_EQ(dialog->focusWidget(), list("Combo2"));
    EXPECT_FALSE(QFile::exists(settingsPath()));
    EXPECT_EQ(MoslemType, 1);
    chooseLanguage("English (Default)");
    apply();
    EXPECT_TRUE(dialog.isNull());
    EXPECT_EQ(MoslemType, 2);
}

TEST_F(Options, ItCanBeOpenedAgain) {
    open();
    Form* first = dialog;
    ChangeCals::ShowOptions();
    EXPECT_EQ(&ChangeCals::Options(), first) << "there is one of it";
    apply();
    open();
    EXPECT_FALSE(dialog->IsUnloaded());
    close();
}

} // namespace
