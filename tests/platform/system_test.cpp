// SPDX-License-Identifier: MIT
#include "platform/system.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

bool writtenToDisk(QFileDevice& file) {
    return file.open(QIODevice::WriteOnly) && file.write("x") == 1 && BringToDisk(file);
}

TEST(Disk, AFileIsBroughtThere) {
    QTemporaryFile file;
    ASSERT_TRUE(file.open() && file.write("x") == 1);
    EXPECT_TRUE(BringToDisk(file));
    EXPECT_EQ(QFileInfo(file.fileName()).size(), 1);
}

TEST(Disk, WhatIsNoFileOrHasNoRoomIsToldFromIt) {
    for (const char* name : {"/dev/null", "/dev/full"}) {
        QFile file{QLatin1String(name)};
        EXPECT_FALSE(writtenToDisk(file)) << name;
    }
}

TEST(ForTheUserAlone, LastsNoLongerThanItself) {
    const mode_t former = umask(S_IWGRP);
    { const ForTheUserAlone alone; }
    EXPECT_EQ(umask(former), mode_t{S_IWGRP});
}

// The characters of the bytes 0x80..0xFF as the Unicode Consortium's mapping
// tables have them; where those have none below 0xA0, the controls of these numbers.
// clang-format off
constexpr char16_t cyrillic[] =
    u"\u0402\u0403\u201A\u0453\u201E\u2026\u2020\u2021\u20AC\u2030\u0409\u2039"
    u"\u040A\u040C\u040B\u040F\u0452\u2018\u2019\u201C\u201D\u2022\u2013\u2014"
    u"\x0098\u2122\u0459\u203A\u045A\u045C\u045B\u045F\u00A0\u040E\u045E\u0408"
    u"\u00A4\u0490\u00A6\u00A7\u0401\u00A9\u0404\u00AB\u00AC\u00AD\u00AE\u0407"
    u"\u00B0\u00B1\u0406\u0456\u0491\u00B5\u00B6\u00B7\u0451\u2116\u0454\u00BB"
    u"\u0458\u0405\u0455\u0457\u0410\u0411\u0412\u0413\u0414\u0415\u0416\u0417"
    u"\u0418\u0419\u041A\u041B\u041C\u041D\u041E\u041F\u0420\u0421\u0422\u0423"
    u"\u0424\u0425\u0426\u0427\u0428\u0429\u042A\u042B\u042C\u042D\u042E\u042F"
    u"\u0430\u0431\u0432\u0433\u0434\u0435\u0436\u0437\u0438\u0439\u043A\u043B"
    u"\u043C\u043D\u043E\u043F\u0440\u0441\u0442\u0443\u0444\u0445\u0446\u0447"
    u"\u0448\u0449\u044A\u044B\u044C\u044D\u044E\u044F";
constexpr char16_t western[] =
    u"\u20AC\x0081\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039"
    u"\u0152\x008D\u017D\x008F\x0090\u2018\u2019\u201C\u201D\u2022\u2013\u2014"
    u"\u02DC\u2122\u0161\u203A\u0153\x009D\u017E\u0178\u00A0\u00A1\u00A2\u00A3"
    u"\u00A4\u00A5\u00A6\u00A7\u00A8\u00A9\u00AA\u00AB\u00AC\u00AD\u00AE\u00AF"
    u"\u00B0\u00B1\u00B2\u00B3\u00B4\u00B5\u00B6\u00B7\u00B8\u00B9\u00BA\u00BB"
    u"\u00BC\u00BD\u00BE\u00BF\u00C0\u00C1\u00C2\u00C3\u00C4\u00C5\u00C6\u00C7"
    u"\u00C8\u00C9\u00CA\u00CB\u00CC\u00CD\u00CE\u00CF\u00D0\u00D1\u00D2\u00D3"
    u"\u00D4\u00D5\u00D6\u00D7\u00D8\u00D9\u00DA\u00DB\u00DC\u00DD\u00DE\u00DF"
    u"\u00E0\u00E1\u00E2\u00E3\u00E4\u00E5\u00E6\u00E7\u00E8\u00E9\u00EA\u00EB"
    u"\u00EC\u00ED\u00EE\u00EF\u00F0\u00F1\u00F2\u00F3\u00F4\u00F5\u00F6\u00F7"
    u"\u00F8\u00F9\u00FA\u00FB\u00FC\u00FD\u00FE\u00FF";
constexpr char16_t hebrew[] =
    u"\u20AC\x0081\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\x008A\u2039"
    u"\x008C\x008D\x008E\x008F\x0090\u2018\u2019\u201C\u201D\u2022\u2013\u2014"
    u"\u02DC\u2122\x009A\u203A\x009C\x009D\x009E\x009F\u00A0\u00A1\u00A2\u00A3"
    u"\u20AA\u00A5\u00A6\u00A7\u00A8\u00A9\u00D7\u00AB\u00AC\u00AD\u00AE\u00AF"
    u"\u00B0\u00B1\u00B2\u00B3\u00B4\u00B5\u00B6\u00B7\u00B8\u00B9\u00F7\u00BB"
    u"\u00BC\u00BD\u00BE\u00BF\u05B0\u05B1\u05B2\u05B3\u05B4\u05B5\u05B6\u05B7"
    u"\u05B8\u05B9\uFFFD\u05BB\u05BC\u05BD\u05BE\u05BF\u05C0\u05C1\u05C2\u05C3"
    u"\u05F0\u05F1\u05F2\u05F3\u05F4\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD"
    u"\u05D0\u05D1\u05D2\u05D3\u05D4\u05D5\u05D6\u05D7\u05D8\u05D9\u05DA\u05DB"
    u"\u05DC\u05DD\u05DE\u05DF\u05E0\u05E1\u05E2\u05E3\u05E4\u05E5\u05E6\u05E7"
    u"\u05E8\u05E9\u05EA\uFFFD\uFFFD\u200E\u200F\uFFFD";
constexpr char16_t arabic[] =
    u"\u20AC\u067E\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0679\u2039"
    u"\u0152\u0686\u0698\u0688\u06AF\u2018\u2019\u201C\u201D\u2022\u2013\u2014"
    u"\u06A9\u2122\u0691\u203A\u0153\u200C\u200D\u06BA\u00A0\u060C\u00A2\u00A3"
    u"\u00A4\u00A5\u00A6\u00A7\u00A8\u00A9\u06BE\u00AB\u00AC\u00AD\u00AE\u00AF"
    u"\u00B0\u00B1\u00B2\u00B3\u00B4\u00B5\u00B6\u00B7\u00B8\u00B9\u061B\u00BB"
    u"\u00BC\u00BD\u00BE\u061F\u06C1\u0621\u0622\u0623\u0624\u0625\u0626\u0627"
    u"\u0628\u0629\u062A\u062B\u062C\u062D\u062E\u062F\u0630\u0631\u0632\u0633"
    u"\u0634\u0635\u0636\u00D7\u0637\u0638\u0639\u063A\u0640\u0641\u0642\u0643"
    u"\u00E0\u0644\u00E2\u0645\u0646\u0647\u0648\u00E7\u00E8\u00E9\u00EA\u00EB"
    u"\u0649\u064A\u00EE\u00EF\u064B\u064C\u064D\u064E\u00F4\u064F\u0650\u00F7"
    u"\u0651\u00F9\u0652\u00FB\u00FC\u200E\u200F\u06D2";
// clang-format on

TEST(CodePage, EveryByteIsOneCharacter) {
    const struct {
        int codePage;
        const char16_t* characters;
    } rows[] = {{1251, cyrillic}, {1252, western}, {1255, hebrew}, {1256, arabic}};
    for (const auto& row : rows) {
        for (int byte = 0; byte < 0x100; ++byte) {
            const QString text = FromCodePage(QByteArray(1, static_cast<char>(byte)), row.codePage);
            ASSERT_EQ(text.size(), 1) << row.codePage << " byte " << byte;
            EXPECT_EQ(text.at(0).unicode(), byte < 0x80 ? byte : row.characters[byte - 0x80])
                << row.codePage << " byte " << byte;
        }
    }
}

TEST(CodePage, BytesTogetherAreWhatTheyAreAlone) {
    QByteArray all;
    for (int byte = 0x80; byte < 0x100; ++byte)
        all.append(static_cast<char>(byte));
    EXPECT_EQ(FromCodePage(all, 1251), QString::fromUtf16(cyrillic));
    EXPECT_EQ(FromCodePage(all, 1252), QString::fromUtf16(western));
    EXPECT_EQ(FromCodePage(all, 1255), QString::fromUtf16(hebrew));
    EXPECT_EQ(FromCodePage(all, 1256), QString::fromUtf16(arabic));
}

TEST(CodePage, WordsOfEveryCodePage) {
    const struct {
        int codePage;
        const char* bytes;
        const char* text;
    } rows[] = {{1250, "\xA3\xF3\x64\x9F", "Łódź"},
                {1251, "\xCF\xEE\xED\xB3", "Поні"},
                {1252,
                 "\xDC"
                 "ber \x80 \x97",
                 "Über € —"},
                {1253, "\xC7\xEC\xDD\xF1\xE1", "Ημέρα"},
                {1254, "\xDDyi \xFE", "İyi ş"},
                {1255, "\xF9\xD1\xC8\xE1", "\u05E9\u05C1\u05B8\u05D1"},
                {1256, "\xE3\xCD\xD1\xE3", "محرم"}};
    for (const auto& row : rows)
        EXPECT_EQ(FromCodePage(row.bytes, row.codePage), QString::fromUtf8(row.text)) << row.text;
}

TEST(CodePage, PointsOfHebrewLettersStayCharactersOfTheirOwn) {
    const QString text = FromCodePage("\xF9\xD1\xC8\xE1", 1255);
    const char16_t characters[] = {0x05E9, 0x05C1, 0x05B8, 0x05D1};
    ASSERT_EQ(text.size(), 4);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(text.at(i).unicode(), characters[i]) << i;
}

TEST(CodePage, AnUnknownCodePageIsTheSystems) {
    EXPECT_EQ(FromCodePage("ab \xC3\xA4", 99999), QString::fromUtf8("ab ä"));
    EXPECT_EQ(FromCodePage("", 1251), QString());
}

/// A variable of the environment, which is as before when it goes.
class Variable {
public:
    explicit Variable(const char* name) : m_name(name), m_former(qgetenv(name)) {}
    ~Variable() { Set(m_former); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

    /// A null text is none.
    void Set(const QByteArray& value) const {
        if (value.isNull())
            qunsetenv(m_name);
        else
            qputenv(m_name, value);
    }

private:
    const char* m_name;
    QByteArray m_former;
};

TEST(WindowSystem, IsTheOneThatKnowsPlacesWhereWaylandOffersBothAndNobodyHasChosen) {
    const Variable wayland("WAYLAND_DISPLAY");
    const Variable session("XDG_SESSION_TYPE");
    const Variable display("DISPLAY");
    const Variable chosen("QT_QPA_PLATFORM");
    const struct {
        const char* wayland;
        const char* session;
        const char* display;
        const char* before;
        const char* after;
    } rows[] = {{"wayland-0", nullptr, ":0", nullptr, "xcb;wayland"},
                {nullptr, "wayland", ":0", nullptr, "xcb;wayland"},
                {nullptr, "x11", ":0", nullptr, nullptr},
                {nullptr, nullptr, ":0", nullptr, nullptr},
                {"wayland-0", "wayland", nullptr, nullptr, nullptr},
                {"wayland-0", "wayland", ":0", "wayland", "wayland"}};
    for (const auto& row : rows) {
        wayland.Set(row.wayland);
        session.Set(row.session);
        display.Set(row.display);
        chosen.Set(row.before);
        ChooseWindowSystem();
        EXPECT_EQ(qgetenv("QT_QPA_PLATFORM"), QByteArray(row.after)) << &row - rows;
    }
}

} // namespace
