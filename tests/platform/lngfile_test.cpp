// SPDX-License-Identifier: MIT
#include "platform/lngfile.h"

#include "support/platform_test.h"
#include "support/usualrights.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr int bufferSize = LngFile::bufferSize;

class LngFiles : public PlatformTest {};

QByteArray read(const QByteArray& bytes, const QByteArray& section = "S",
                const QByteArray& key = " 1") {
    return LngFile(bytes).GetPrivateProfileString(section, key, bufferSize);
}

struct ValueRow {
    const char* line;
    const char* value;
};

void expectValues(std::initializer_list<ValueRow> rows) {
    for (const ValueRow& row : rows)
        EXPECT_EQ(read(QByteArray("[S]\n") + row.line + "\n"), QByteArray(row.value)) << row.line;
}

TEST_F(LngFiles, NamesAreMatchedWithoutRegardToCase) {
    for (const char* header : {"[LABELS]", "[labels]", "[Labels]"}) {
        for (const char* key : {"KEY", "key", "Key"})
            EXPECT_EQ(read(QByteArray(header) + "\n" + key + "=x\n", "LaBeLs", "kEy"), "x")
                << header << key;
    }
}

TEST_F(LngFiles, BlanksAndTabsAroundEverythingAreIgnored) {
    EXPECT_EQ(read(" \t[ \tS\t ] \t\n\t 1 \t=\t x y \t\n"), "x y");
    EXPECT_EQ(read("[S]\n1=x\n", " S ", " 1"), "x");
    EXPECT_EQ(read("[S]\n 1=x\n", "S", "1"), "x");
}

TEST_F(LngFiles, AMatchingPairOfQuotesIsTakenOff) {
    expectValues({{"1=\"x\"", "x"},
                  {"1='x'", "x"},
                  {"1=  \"x\"  ", "x"},
                  {"1=\"  x  \"", "  x  "},
                  {"1='\"x\"'", "\"x\""},
                  {"1=\"\"x\"\"", "\"x\""},
                  {"1=\"it's\"", "it's"}});
}

TEST_F(LngFiles, OtherQuotesAreKept) {
    expectValues({{"1=\"x", "\"x"},
                  {"1=x\"", "x\""},
                  {"1=\"x'", "\"x'"},
                  {"1=a \"b\" c", "a \"b\" c"},
                  {"1=\"", "\""},
                  {"1='", "'"},
                  {"1=it's", "it's"}});
}

TEST_F(LngFiles, AValueOfBlanksIsABlank) {
    expectValues({{"1=   ", " "}, {"1= ", " "}, {"1=\t", " "}, {"1=\" \"", " "}});
    EXPECT_EQ(read("[S]\r\n1=  \r\n"), " ");
}

TEST_F(LngFiles, NothingAfterTheEqualsSignIsNothing) {
    expectValues({{"1=", ""}, {"1=\"\"", ""}, {"1=''", ""}, {"1", ""}, {"2=x", ""}});
    EXPECT_EQ(read("[S]\r\n1=\r\n"), "");
    EXPECT_EQ(read("[S]\n1="), "");
}

TEST_F(LngFiles, SemicolonsOpenACommentAtTheLinesStartOnly) {
    expectValues({{";1=x", ""}, {"  ;1=x", ""}, {"1=x ; y", "x ; y"}, {"1=;", ";"}});
    EXPECT_EQ(read(";[S]\n1=x\n"), "");
    EXPECT_EQ(read("[S]\n;1=a\n1=b\n"), "b");
}

TEST_F(LngFiles, EqualsSignsStandInsideValues) {
    expectValues({{"1=a=b", "a=b"}, {"1==", "="}, {"1= = ", "="}});
}

TEST_F(LngFiles, EveryLineEndIsTaken) {
    for (const char* end : {"\n", "\r\n"}) {
        const QByteArray lines = QByteArray("[S]") + end + "1=x" + end + "2=y";
        EXPECT_EQ(read(lines, "S", "1"), "x");
        EXPECT_EQ(read(lines, "S", "2"), "y") << "the last line has no end";
    }
}

TEST_F(LngFiles, OnlyTheFirstOfSectionsOfOneNameIsSearched) {
    const QByteArray lines("[S]\n2=a\n[T]\n1=t\n[s]\n1=b\n2=c\n");
    EXPECT_EQ(read(lines, "S", "1"), "");
    EXPECT_EQ(read(lines, "S", "2"), "a");
    EXPECT_EQ(read(lines, "T", "1"), "t");
}

TEST_F(LngFiles, TheFirstOfEqualKeysIsTaken) {
    EXPECT_EQ(read("[S]\n1=a\n1=b\n"), "a");
    EXPECT_EQ(read("[S]\n1=\n1=b\n"), "");
}

TEST_F(LngFiles, EntriesBeforeAnySectionAreIgnored) {
    EXPECT_EQ(read("1=x\n[S]\n2=y\n"), "");
    EXPECT_EQ(read("1=x\n", ""), "");
}

TEST_F(LngFiles, SectionsEndAtTheNextHeader) {
    EXPECT_EQ(read("[S]\n2=y\n[T]\n1=x\n"), "");
    EXPECT_EQ(read("[S]\n2=y\n[]\n1=x\n"), "");
    EXPECT_EQ(read("[T]\n1=x\n"), "");
}

TEST_F(LngFiles, AHeaderWithoutItsBracketIsNone) {
    EXPECT_EQ(read("[S\n1=x\n"), "");
    EXPECT_EQ(read("[S]\n[T\n1=x\n"), "x");
    EXPECT_EQ(read("S]\n1=x\n"), "");
}

TEST_F(LngFiles, AHeaderEndsAtItsFirstBracket) {
    EXPECT_EQ(read("[S] tail\n1=x\n"), "x");
    EXPECT_EQ(read("[S]]\n1=x\n"), "x");
}

TEST_F(LngFiles, AByteOrderMarkIsSkipped) {
    EXPECT_EQ(read("\xEF\xBB\xBF[S]\n1=x\n"), "x");
    const LngFile file(QByteArray("\xEF\xBB\xBF[S]\n1=\xC3\xA4\n"));
    EXPECT_EQ(file.Decode("\xC3\xA4"), QString::fromUtf8("ä"));
}

TEST_F(LngFiles, AMarkOfUtf16IsBelieved) {
    using namespace std::string_literals;
    const std::string little("\xFF\xFE[\0S\0]\0\n\0001\0=\0\x2F\x04\x14 x\0"s);
    const std::string big("\xFE\xFF\0[\0S\0]\0\r\0\n\0001\0=\x04\x2F\x20\x14\0x"s);
    for (const std::string& bytes : {little, big}) {
        const LngFile file(QByteArray::fromStdString(bytes));
        EXPECT_EQ(file.Decode(file.GetPrivateProfileString("S", "1", bufferSize)),
                  QString::fromUtf8("Я—x"));
    }
}

TEST_F(LngFiles, HalfACharacterOfUtf16DoesNoHarm) {
    using namespace std::string_literals;
    const std::string bytes("\xFF\xFE[\0S\0]\0\n\0001\0=\0x\0\x00\xD8y"s);
    EXPECT_TRUE(read(QByteArray::fromStdString(bytes)).startsWith('x'));
    EXPECT_EQ(read("\xFF\xFE"), "");
}

TEST_F(LngFiles, ANulEndsAValue) {
    using namespace std::string_literals;
    EXPECT_EQ(read(QByteArray::fromStdString("[S]\n1=ab\0cd\n"s)), "ab");
    EXPECT_EQ(read(QByteArray::fromStdString("[S]\n1=\0cd\n"s)), "");
    EXPECT_EQ(read(QByteArray::fromStdString("[S]\n1=ab  \0cd\n2=y\n"s)), "ab");
    EXPECT_EQ(read(QByteArray::fromStdString("[S]\n1=\"a\0b\"\n"s)), "\"a");
    EXPECT_EQ(read(QByteArray::fromStdString("[S]\n1=a\0b\n2=y\n"s), "S", "2"), "y");
}

TEST_F(LngFiles, ValuesAreCutAt254Bytes) {
    for (const int size : {253, 254})
        EXPECT_EQ(read("[S]\n1=" + QByteArray(size, 'x') + "\n").size(), size);
    for (const int size : {255, 10000})
        EXPECT_EQ(read("[S]\n1=" + QByteArray(size, 'x') + "\n"), QByteArray(254, 'x'));
}

TEST_F(LngFiles, NoCharacterIsCut) {
    const struct {
        const char* character;
        int before;
        int kept;
    } rows[] = {{"\xD0\xAF", 253, 253},         {"\xD0\xAF", 252, 254},
                {"\xE2\x80\x94", 252, 252},     {"\xE2\x80\x94", 253, 253},
                {"\xE2\x80\x94", 251, 254},     {"\xF0\x9F\x8C\x99", 251, 251},
                {"\xF0\x9F\x8C\x99", 253, 253}, {"\xF0\x9F\x8C\x99", 250, 254}};
    for (const auto& row : rows) {
        const QByteArray value = QByteArray(row.before, 'x') + row.character + "tail";
        EXPECT_EQ(read("[S]\n1=" + value + "\n"), value.left(row.kept)) << row.before;
    }
}

TEST_F(LngFiles, AFileThatIsNoUtf8IsCutAtExactly254Bytes) {
    const QByteArray value = QByteArray(253, 'x') + "\xD0\xAF";
    EXPECT_EQ(read("[S]\n1=" + value + "\n2=\xC0\n"), value.left(254));
    EXPECT_EQ(read("[S]\n1=" + QByteArray(300, '\xBF') + "\n"), QByteArray(254, '\xBF'));
}

TEST_F(LngFiles, ValuesAreCutAfterQuotesAndBlanksAreGone) {
    const QByteArray value(254, 'x');
    EXPECT_EQ(read("[S]\n1=\"" + value + "\"\n"), value);
    EXPECT_EQ(read("[S]\n1=" + QByteArray(300, ' ') + value + "   \n"), value);
    EXPECT_EQ(read("[S]\n1=   '" + value + "y'\n"), value);
}

TEST_F(LngFiles, TheSizeAskedForHoldsAFinalNul) {
    const LngFile file(QByteArray("[S]\n1=abcdef\n"));
    EXPECT_EQ(file.GetPrivateProfileString("S", "1", 4), "abc");
    EXPECT_EQ(file.GetPrivateProfileString("S", "1", 1), "");
    EXPECT_EQ(LngFile(QByteArray("[S]\n1=\xD0\xAF\n")).GetPrivateProfileString("S", "1", 2), "")
        << "one byte of two";
}

TEST_F(LngFiles, TextsAreUtf8OrTheUsersCodePage) {
    QLocale::setDefault(QLocale(QLocale::Russian));
    const LngFile utf8(QByteArray("[S]\n1=\xD0\xAF\n"));
    EXPECT_EQ(utf8.Decode("\xD0\xAF"), QString::fromUtf8("Я"));
    const LngFile windows(QByteArray("[S]\n1=\xDF\n"));
    EXPECT_EQ(windows.Decode("\xDF"), QString::fromUtf8("Я"));
    QLocale::setDefault(QLocale::c());
    EXPECT_EQ(windows.Decode("\xDF"), QString::fromUtf8("ß"));
}

TEST_F(LngFiles, EmptyAndBinaryFilesHoldNothing) {
    for (const QByteArray& bytes : {QByteArray(), QByteArray("\xEF\xBB\xBF"), QByteArray("\n\n\r"),
                                    QByteArray(1000, '\0'), QByteArray("[]"), QByteArray("=")})
        EXPECT_EQ(read(bytes), "");
}

TEST_F(LngFiles, FilesAreReadUpToTheLargestSize) {
    const QString path = programPath(QStringLiteral("x.lng"));
    const QByteArray start("[S]\n1=x\n");
    writeFile(path, start.leftJustified(1'048'576, '\n'));
    const LngFile largest(path);
    EXPECT_EQ(largest.ReadStatus(), LngFile::Status::Read);
    EXPECT_EQ(largest.GetPrivateProfileString("S", "1", bufferSize), "x");
    writeFile(path, start.leftJustified(1'048'577, '\n'));
    const LngFile tooLarge(path);
    EXPECT_EQ(tooLarge.ReadStatus(), LngFile::Status::TooLarge);
    EXPECT_EQ(tooLarge.GetPrivateProfileString("S", "1", bufferSize), "");
}

// A search through the whole file for each entry would take a minute.
TEST_F(LngFiles, ManyEntriesOfALargeFileAreFoundAtOnce) {
    QByteArray lines("[S]\n");
    for (int i = 0; lines.size() < LngFile::largestSize - 20; ++i)
        lines += QByteArray::number(i) + "=x\n";
    const LngFile file(lines);
    QElapsedTimer watch;
    watch.start();
    for (int i = 0; i < 10000; ++i)
        ASSERT_EQ(file.GetPrivateProfileString("S", QByteArray::number(90000 + i % 10), bufferSize),
                  "x");
    EXPECT_LT(watch.elapsed(), 5000);
}

TEST_F(LngFiles, WhatIsNoFileCannotBeRead) {
    const QString folder = programPath(QStringLiteral("folder.lng"));
    const QString link = programPath(QStringLiteral("link.lng"));
    ASSERT_TRUE(QDir().mkpath(folder));
    ASSERT_TRUE(QFile::link(programPath(QStringLiteral("nowhere")), link));
    for (const QString& path : {folder, link, programPath(QStringLiteral("missing.lng"))}) {
        const LngFile file(path);
        EXPECT_EQ(file.ReadStatus(), LngFile::Status::Unreadable);
        EXPECT_EQ(file.GetPrivateProfileString("S", "1", bufferSize), "");
    }
}

TEST_F(LngFiles, LinksToFilesAreRead) {
    writeFile(programPath(QStringLiteral("x.lng")), "[S]\n1=x\n");
    const QString link = programPath(QStringLiteral("link.lng"));
    ASSERT_TRUE(QFile::link(programPath(QStringLiteral("x.lng")), link));
    EXPECT_EQ(LngFile(link).GetPrivateProfileString("S", "1", bufferSize), "x");
}

TEST_F(LngFiles, AFileThatMayNotBeReadIsUnreadable) {
    const QString path = programPath(QStringLiteral("x.lng"));
    writeFile(path, "[S]\n1=x\n");
    for (const QString& folder : {m_folder.path(), QFileInfo(path).path()})
        ASSERT_TRUE(QFile::setPermissions(folder, QFile::Permissions(0x7777)));
    ASSERT_TRUE(QFile::setPermissions(path, {}));
    const UsualRights usual;
    EXPECT_EQ(LngFile(path).ReadStatus(), LngFile::Status::Unreadable);
}

} // namespace
