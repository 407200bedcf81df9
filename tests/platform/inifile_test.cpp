// SPDX-License-Identifier: MIT
#include "platform/inifile.h"

#include <gtest/gtest.h>

namespace {

/// The first of a file's values, "none" where there is none.
QByteArray firstValue(const QByteArray& lines, const QByteArray& section, const QByteArray& key) {
    return IniFile(lines).Value(section, key, IniFile::Which::First).value_or("none");
}

TEST(IniFiles, EveryEntryIsFoundAgainBehindOneThatIsAdded) {
    IniFile file("[S]\n1=a\n[T]\n1=b\n1=c\n");
    file.Set("S", "2", "x");
    EXPECT_EQ(file.Bytes(), "[S]\n1=a\n2=x\n[T]\n1=b\n1=c\n");
    EXPECT_EQ(file.Value("T", "1", IniFile::Which::First).value_or("none"), "b");
    EXPECT_EQ(file.Value("T", "1", IniFile::Which::Last).value_or("none"), "c");
}

TEST(IniFiles, CommentsAndHeadersAreNoEntriesThoughTheyHoldEqualsSigns) {
    EXPECT_EQ(firstValue("[S]\n;1=x\n", "S", ";1"), "none");
    EXPECT_EQ(firstValue("[a=b]\n", "a=b", "[a"), "none");
    EXPECT_EQ(firstValue("[]=x\n", "", "[]"), "none");
}

TEST(IniFiles, AKeyMayBeEmpty) {
    EXPECT_EQ(firstValue("[S]\n=x\n", "S", ""), "x");
}

} // namespace
