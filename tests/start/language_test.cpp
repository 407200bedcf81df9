// SPDX-License-Identifier: MIT
#include "start/language.h"

#include "platform/lngfile.h"
#include "shared/english.h"
#include "support/texttables.h"
#include "support/usualrights.h"
#include "support/widget_test.h"

#include <QDir>
#include <QFile>
#include <QLocale>

namespace {

class Language : public WidgetTest {
protected:
    Language() {
        clearTexts();
        SetEnglishTexts();
    }

    void writeLanguage(const char* file, const QByteArray& bytes) const {
        writeFile(programPath(QString::fromUtf8(file)), bytes);
    }

    /// The name after loading.
    std::string load(std::string name) {
        LoadLanguage(name);
        return name;
    }

    /// The message that tells of a language's file.
    QStringList told(const char* name, const char* what) const {
        const QString path = programPath(QString::fromUtf8(name) + QStringLiteral(".lng"));
        return {QDir::toNativeSeparators(path) + QStringLiteral("\r\n\r\n") + QLatin1String(what)};
    }

    void expectEnglishAfter(const char* name, const char* what) {
        EXPECT_EQ(load(name), englishLanguage) << name;
        EXPECT_EQ(m_messages.take(), told(name, what)) << name;
        EXPECT_EQ(TextTables(), english) << name;
    }

    const TextTables english = [] {
        clearTexts();
        SetEnglishTexts();
        return TextTables();
    }();
};

TEST_F(Language, EnglishNeedsNoFile) {
    clearTexts();
    EXPECT_EQ(load(englishLanguage), englishLanguage);
    EXPECT_EQ(TextTables(), english);
}

TEST_F(Language, EnglishIsBuiltInEvenWhereAFileHasItsName) {
    writeLanguage("English (Default).lng", "[STRINGS]\n1=x\n");
    load(englishLanguage);
    EXPECT_EQ(TextTables(), english);
}

TEST_F(Language, AFileChangesWhatItHoldsOnly) {
    writeLanguage("German.lng", "[STRINGS]\n23=Nicht gefunden\n");
    EXPECT_EQ(load("German"), "German");
    TextTables expected = english;
    expected.stringTexts(FileNotFoundText) = "Nicht gefunden";
    EXPECT_EQ(TextTables(), expected);
}

TEST_F(Language, EverySectionFillsItsTable) {
    writeLanguage("X.lng", "[CALENDARS]\n5=a\n[JGMONTHS]\n12=b\n[JMONTHS]\n12=c\n[MMONTHS]\n12=d\n"
                           "[WEEKDAYS]\n7=e\n[WEEKDAYSABBR]\n7=f\n[LABELS]\n12=g\n"
                           "[STRINGS]\n25=h\n[SPEECH]\n1=i\n");
    load("X");
    TextTables expected = english;
    expected.selectedWord = "i";
    expected.calendarNames(5) = "a";
    expected.monthNames(Julian, 12) = expected.monthNames(Gregorian, 12) = "b";
    expected.monthNames(Jewish, 12) = "c";
    expected.monthNames(Moslem, 12) = "d";
    expected.weekDayNames(7) = "e";
    expected.weekDayAbbrs(7) = "f";
    expected.labelTexts(12) = "g";
    expected.stringTexts(25) = "h";
    EXPECT_EQ(TextTables(), expected);
}

TEST_F(Language, WhatAFileHasTooMuchIsIgnored) {
    writeLanguage("X.lng", "[CALENDARS]\n0=a\n6=b\n[JMONTHS]\n13=c\n[OTHER]\n1=d\n[STRINGS]\n26=e\n"
                           "[JGMONTHS]\n13=f\n[MMONTHS]\n13=g\n");
    load("X");
    EXPECT_EQ(TextTables(), english);
}

TEST_F(Language, JulianAndGregorianMonthsShareASection) {
    writeLanguage("X.lng", "[JGMONTHS]\n1=Januar\n");
    load("X");
    EXPECT_EQ(MonthNames(Julian, 1), "Januar");
    EXPECT_EQ(MonthNames(Gregorian, 1), "Januar");
}

TEST_F(Language, AdarIsTheFilesSixthMonth) {
    writeLanguage("X.lng", "[JMONTHS]\n6=Veadar\n");
    load("X");
    EXPECT_EQ(AdarName, "Veadar");
    EXPECT_EQ(MonthNames(Jewish, 6), "Veadar");
}

TEST_F(Language, AdarIsEnglishWhereTheFileHasNone) {
    writeLanguage("X.lng", "[JMONTHS]\n1=a\n");
    AdarName = "stale";
    MonthNames(Jewish, 6) = "stale I";
    load("X");
    EXPECT_EQ(AdarName, "Adar");
    EXPECT_EQ(MonthNames(Jewish, 6), "Adar");
}

TEST_F(Language, AnotherLanguageLeavesNothingOfTheFormer) {
    writeLanguage("A.lng", "[STRINGS]\n1=a\n2=a\n[JMONTHS]\n6=a\n[LABELS]\n1=a\n");
    writeLanguage("B.lng", "[STRINGS]\n2=b\n");
    load("A");
    load("B");
    TextTables expected = english;
    expected.stringTexts(2) = "b";
    EXPECT_EQ(TextTables(), expected);
    load("A");
    load(englishLanguage);
    EXPECT_EQ(TextTables(), english);
}

TEST_F(Language, AMissingFileIsToldOnce) {
    expectEnglishAfter("German", "File not found");
}

TEST_F(Language, AMissingFileIsToldInEnglish) {
    writeLanguage("A.lng", "[STRINGS]\n23=a\n");
    load("A");
    expectEnglishAfter("German", "File not found");
}

TEST_F(Language, EnglishInAnotherCaseIsALanguageLikeOthers) {
    expectEnglishAfter("english (default)", "File not found");
}

TEST_F(Language, NamesThatLeaveTheFolderFindNothing) {
    writeFile(m_folder.filePath(QStringLiteral("x.lng")), "[STRINGS]\n1=x\n");
    for (const char* name : {"../x", "../program/x", "", "*", "?"})
        expectEnglishAfter(name, "File not found");
}

TEST_F(Language, ALongNameAndItsLineBreaksAreToldOnOneLine) {
    const std::string breaks(3000, '\n');
    EXPECT_EQ(load(breaks), englishLanguage);
    const std::string name(4000, 'x');
    EXPECT_EQ(load(name), englishLanguage);
    const QString toldBreaks = QString(60, QChar(0x240A)) + QChar(0x2026);
    const QString toldName = QString(60, u'x') + QChar(0x2026);
    EXPECT_EQ(m_messages.take(), told(toldBreaks.toUtf8().constData(), "File not found") +
                                     told(toldName.toUtf8().constData(), "File not found"));
}

TEST_F(Language, AFolderThatMayBeEnteredButNotListedHasItsFiles) {
    writeLanguage("German.lng", "[STRINGS]\n1=x\n");
    const QString folder = programPath(QString());
    const auto enter = QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;
    ASSERT_TRUE(QFile::setPermissions(folder, enter));
    ASSERT_TRUE(QFile::setPermissions(m_folder.path(), enter));
    {
        const UsualRights usual;
        EXPECT_EQ(load("German"), "German");
        EXPECT_EQ(StringTexts(1), "x");
    }
    const auto all = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    ASSERT_TRUE(QFile::setPermissions(m_folder.path(), all));
    ASSERT_TRUE(QFile::setPermissions(folder, all));
}

TEST_F(Language, FilesInOtherCaseAreListedAndFound) {
    writeLanguage("RUSSIAN.LNG", "[STRINGS]\n1=x\n");
    EXPECT_EQ(LanguageList(),
              (QStringList{QStringLiteral("English (Default)"), QStringLiteral("Russian")}));
    EXPECT_EQ(load("Russian"), "Russian");
    EXPECT_EQ(StringTexts(1), "x");
    EXPECT_EQ(load("rUSSIAN"), "rUSSIAN");
    EXPECT_EQ(StringTexts(1), "x");
}

TEST_F(Language, OfFilesThatDifferInCaseTheExactOneIsTaken) {
    writeLanguage("RUSSIAN.LNG", "[STRINGS]\n1=large\n");
    writeLanguage("Russian.lng", "[STRINGS]\n1=exact\n");
    writeLanguage("russian.lng", "[STRINGS]\n1=small\n");
    EXPECT_EQ(LanguageList().count(QStringLiteral("Russian")), 1) << "one name, one entry";
    load("Russian");
    EXPECT_EQ(StringTexts(1), "exact");
    load("russian");
    EXPECT_EQ(StringTexts(1), "small");
}

TEST_F(Language, TheListIsEnglishAndThenTheFilesByName) {
    for (const char* file : {"beta.lng", "Alpha.LNG", "gAMMA.Lng", "other.txt", "lng", "x.lng.bak"})
        writeLanguage(file, "");
    EXPECT_EQ(LanguageList(),
              (QStringList{QStringLiteral("English (Default)"), QStringLiteral("Alpha"),
                           QStringLiteral("Beta"), QStringLiteral("Gamma")}));
}

TEST_F(Language, ListedNamesBeginWithALargeLetterInEveryScript) {
    writeLanguage("русский.lng", "");
    writeLanguage("ÉLÈVE.lng", "");
    EXPECT_TRUE(LanguageList().contains(QString::fromUtf8("Русский")));
    EXPECT_TRUE(LanguageList().contains(QString::fromUtf8("Élève")));
    EXPECT_EQ(load("Русский"), "Русский");
}

// Where letters change their number in the other case, or have none, or depend
// on the language of the one who asks.
TEST_F(Language, EveryListedNameOpens) {
    const struct {
        const char* file;
        const char* listed;
    } rows[] = {{"TÜRKİYE", "Türkiye"}, {"DİL", "Dil"},         {"ßeta", "ßeta"},
                {"ﬁn", "ﬁn"},           {"ISIK", "Isik"},       {"ışık", "Işık"},
                {"ΛΌΓΟΣ", "Λόγοσ"},     {"ŉdebele", "ŉdebele"}, {"𐐨𐐀", "𐐀𐐨"},
                {"עברית", "עברית"},     {"STRAẞE", "Straße"}};
    for (const auto& row : rows)
        writeLanguage((std::string(row.file) + ".lng").c_str(),
                      "[STRINGS]\n1=" + QByteArray(row.file) + "\n");
    QLocale::setDefault(QLocale(QLocale::Turkish));
    const QStringList listed = LanguageList();
    EXPECT_EQ(listed.size(), 1 + static_cast<int>(std::size(rows)));
    for (const auto& row : rows) {
        EXPECT_TRUE(listed.contains(QString::fromUtf8(row.listed))) << row.listed;
        EXPECT_EQ(load(row.listed), row.listed);
        EXPECT_EQ(StringTexts(1), row.file);
    }
    QLocale::setDefault(QLocale::c());
}

TEST_F(Language, FilesThatWouldShareANameAreListedOnce) {
    writeLanguage("DİL.lng", "[STRINGS]\n1=large\n");
    writeLanguage("dil.lng", "[STRINGS]\n1=small\n");
    EXPECT_EQ(LanguageList(),
              (QStringList{QStringLiteral("English (Default)"), QStringLiteral("Dil")}));
    load("Dil");
    EXPECT_EQ(StringTexts(1), "large") << "the first by name";
    writeLanguage("Dil.lng", "[STRINGS]\n1=exact\n");
    load("Dil");
    EXPECT_EQ(StringTexts(1), "exact");
    load("dil");
    EXPECT_EQ(StringTexts(1), "small");
}

TEST_F(Language, WhatIsNoFileIsNotListedAndNotFound) {
    ASSERT_TRUE(QDir().mkpath(programPath(QStringLiteral("Folder.lng"))));
    ASSERT_TRUE(QFile::link(programPath(QStringLiteral("nowhere")),
                            programPath(QStringLiteral("Link.lng"))));
    EXPECT_EQ(LanguageList(), QStringList{QStringLiteral("English (Default)")});
    expectEnglishAfter("Folder", "File not found");
    expectEnglishAfter("Link", "File not found");
}

TEST_F(Language, LinksToFilesAreListedAndFound) {
    writeFile(m_folder.filePath(QStringLiteral("elsewhere")), "[STRINGS]\n1=x\n");
    ASSERT_TRUE(QFile::link(m_folder.filePath(QStringLiteral("elsewhere")),
                            programPath(QStringLiteral("Link.lng"))));
    EXPECT_TRUE(LanguageList().contains(QStringLiteral("Link")));
    load("Link");
    EXPECT_EQ(StringTexts(1), "x");
}

TEST_F(Language, AFileThatIsTooLargeIsTold) {
    writeLanguage("Large.lng", QByteArray("[STRINGS]\n1=x\n").leftJustified(2 << 20, '\n'));
    EXPECT_TRUE(LanguageList().contains(QStringLiteral("Large")));
    expectEnglishAfter("Large", "The file is too large for a language file.");
}

TEST_F(Language, EmptyAndBinaryFilesAreEnglish) {
    writeLanguage("Empty.lng", "");
    writeLanguage("Binary.lng", QByteArray(5000, '\xFF') + QByteArray(5000, '\0'));
    for (const char* name : {"Empty", "Binary"}) {
        EXPECT_EQ(load(name), name);
        EXPECT_EQ(TextTables(), english);
    }
}

TEST_F(Language, FilesAreUtf8WithAndWithoutAMark) {
    writeLanguage("A.lng", "[STRINGS]\n1=\xD0\xAF \xE2\x80\x94 \xC3\xA4\n");
    writeLanguage("B.lng", "\xEF\xBB\xBF[STRINGS]\r\n1=\xD0\xAF \xE2\x80\x94 \xC3\xA4\r\n");
    for (const char* name : {"A", "B"}) {
        load(name);
        EXPECT_EQ(StringTexts(1), "Я — ä") << name;
    }
}

TEST_F(Language, OtherFilesAreInTheUsersCodePage) {
    writeLanguage("A.lng", "[JGMONTHS]\n1=\xDF\xED\xE2\xE0\xF0\xFC\n[STRINGS]\n1=x \x97 y\n");
    QLocale::setDefault(QLocale(QLocale::Russian));
    load("A");
    QLocale::setDefault(QLocale::c());
    EXPECT_EQ(MonthNames(Gregorian, 1), "Январь");
    EXPECT_EQ(StringTexts(1), "x — y");
}

TEST_F(Language, ABlankTextIsEmpty) {
    writeLanguage("A.lng", "[LABELS]\n4=\" \"\n6=   \n1=\n2=\"\"\n");
    load("A");
    TextTables expected = english;
    expected.labelTexts(4).clear();
    expected.labelTexts(6).clear();
    EXPECT_EQ(TextTables(), expected) << "labels 1 and 2 have no entry";
}

TEST_F(Language, BlanksAtATextsEndAreCut) {
    writeLanguage("A.lng", "[LABELS]\n1=\" a b  \"\n2=\"c \"\n");
    load("A");
    EXPECT_EQ(LabelTexts(1), " a b");
    EXPECT_EQ(LabelTexts(2), "c");
}

TEST_F(Language, LongTextsAreCutAt254Bytes) {
    writeLanguage("A.lng", "[LABELS]\n1=" + QByteArray("\xD0\xAF").repeated(200) +
                               "\n2=" + QByteArray(300, 'x') + "\n");
    load("A");
    EXPECT_EQ(LabelTexts(1).size(), 254U);
    EXPECT_EQ(LabelTexts(2), std::string(254, 'x'));
}

TEST_F(Language, NamesAreThoseOfALeapYearInALeapYear) {
    writeLanguage("A.lng", "[JMONTHS]\n6=Adarre\n7=b\n12=c\n13=d\n");
    startToday(); // 10 Kislev 5787
    const auto names = [] {
        return std::vector{MonthNames(Jewish, 5), MonthNames(Jewish, 6), MonthNames(Jewish, 7),
                           MonthNames(Jewish, 8), MonthNames(Jewish, 13)};
    };
    const std::vector<std::string> translated{"Shevat", "Adarre I", "Adarre II", "b", "c"};
    const std::vector<std::string> builtIn{"Shevat", "Adar I", "Adar II", "Nisan", "Elul"};
    const StateSnapshot before;
    for (int round = 0; round < 2; ++round) {
        load("A");
        EXPECT_EQ(names(), translated);
        load(englishLanguage);
        EXPECT_EQ(names(), builtIn);
        load("Missing");
        EXPECT_EQ(names(), builtIn);
    }
    EXPECT_EQ(StateSnapshot(), before);
    m_messages.take();
}

TEST_F(Language, EntriesThatAreAbsentReadAsTheStandard) {
    const LngFile file(QByteArray("[S]\n1=x\n2=\n"));
    EXPECT_EQ(ReadLngString(file, "S", 1, "standard"), "x");
    EXPECT_EQ(ReadLngString(file, "S", 2, "standard"), "standard");
    EXPECT_EQ(ReadLngString(file, "S", 3, "standard"), "standard");
    EXPECT_EQ(ReadLngString(file, "T", 1, ""), "");
}

} // namespace
