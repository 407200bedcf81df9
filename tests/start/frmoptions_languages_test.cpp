// SPDX-License-Identifier: MIT
#include "shared/english.h"
#include "start/frmoptions_test.h"
#include "support/messageshown.h"

#include <QCursor>
#include <QDir>
#include <QFile>
#include <optional>

namespace {

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
    const MessageShown watch(
        [this](const QMessageBox&) { EXPECT_EQ(dialog->focusWidget(), list("Combo2")); });
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

TEST_F(Options, TheAboutBoxInTheFormerLanguageIsGoneBeforeAnyWindowIsInTheNewOne) {
    copyLanguage("German");
    const QPointer<Form> about(&ChangeCals::LoadAbout());
    about->Show();
    std::optional<bool> seen;
    QObject::connect(monthly, &QWidget::windowTitleChanged, monthly,
                     [&] { seen = !about.isNull() && about->Visible(); });
    changeLanguage("German");
    EXPECT_EQ(seen, false);
}

TEST_F(Options, ThePointerWaitsWhileTheyAreApplied) {
    copyLanguage("German");
    std::optional<Qt::CursorShape> meanwhile;
    QObject::connect(monthly, &QWidget::windowTitleChanged, monthly, [&meanwhile] {
        if (const QCursor* pointer = QGuiApplication::overrideCursor())
            meanwhile = pointer->shape();
    });
    changeLanguage("German");
    EXPECT_EQ(meanwhile, Qt::WaitCursor);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

} // namespace
