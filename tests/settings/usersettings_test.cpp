// SPDX-License-Identifier: MIT
#include "settings/usersettings.h"

#include "platform/settingsfile.h"
#include "support/judgement.h"
#include "support/messageshown.h"
#include "support/platform_test.h"
#include "support/tables.h"

#include <QDir>
#include <iterator>
#include <optional>
#include <utility>

namespace {

class UserSettings : public PlatformTest, protected BoundsWatch {
protected:
    UserSettings() { resetSettings(); }

    /// Each in a folder of its own, as the store keeps what it has read.
    void store(const QByteArray& lines) {
        const QString folder = m_folder.filePath(QStringLiteral("config%1").arg(++m_stores));
        m_path = folder + QStringLiteral("/Orvalen Years Calendar/settings.ini");
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder));
        writeFile(m_path, lines);
    }

    /// Reads the settings with these four calendars stored.
    Table<int, 4> orderOf(const std::array<int, 4>& stored) {
        QByteArray lines("[Startup]\n");
        for (int pane = 1; pane <= paneCount; ++pane)
            lines += "Calendar" + QByteArray::number(pane) + '=' +
                     QByteArray::number(stored[static_cast<std::size_t>(pane - 1)]) + '\n';
        store(lines);
        EXPECT_TRUE(ReadSettings());
        EXPECT_EQ(readFile(m_path), lines) << "nothing is written back";
        return CalendarOrder;
    }

    QStringList toldOf(const char* entry) const {
        return {QStringLiteral("The stored setting is not a number from -32768 to 32767:\r\n") +
                QString::fromUtf8(entry) + QStringLiteral("\r\n\r\n") +
                QDir::toNativeSeparators(m_path)};
    }

    QString m_path;
    int m_stores = 0;
};

void fillWithOtherValues() {
    CalendarOrder = {4, 3, 2, 1};
    FirstWeekDay = {1, 2, 3, 4};
    for (int window = 1; window <= mainWindowCount; ++window)
        FormTop(window) = FormLeft(window) = 1;
    MoslemType = StartupWindow = 9;
    ShowTips = 0;
    LanguageName = "Other";
}

std::vector<Setting> numberSettings() {
    std::vector<Setting> rows = Settings();
    std::erase_if(rows, [](const Setting& row) { return row.key == u"Language"; });
    return rows;
}

TEST_F(UserSettings, AbsentOnesHaveTheirStandardValues) {
    fillWithOtherValues();
    EXPECT_TRUE(ReadSettings());
    EXPECT_EQ(CalendarOrder, (Table<int, 4>{Julian, Gregorian, Jewish, Moslem}));
    EXPECT_EQ(FirstWeekDay, (Table<int, 4>{Sunday, Sunday, Sunday, Sunday}));
    for (int window = 1; window <= mainWindowCount; ++window) {
        EXPECT_EQ(FormTop(window), noPosition);
        EXPECT_EQ(FormLeft(window), noPosition);
    }
    EXPECT_EQ(MoslemType, 1);
    EXPECT_EQ(StartupWindow, 0);
    EXPECT_EQ(ShowTips, 1);
    EXPECT_EQ(LanguageName, "English (Default)");
    EXPECT_FALSE(QFileInfo::exists(settingsPath()));
}

TEST_F(UserSettings, EveryKeyIsReadIntoItsTable) {
    store(
        "[Startup]\nCalendar1=4\nCalendar2=3\nCalendar3=2\nCalendar4=1\nLanguage=German\n"
        "Window=3\nShowTips=0\n"
        "[Julian]\nFirstWeekDay=1\nTop=11\nLeft=12\n[Gregorian]\nFirstWeekDay=2\nTop=21\nLeft=22\n"
        "[Jewish]\nFirstWeekDay=3\nTop=31\nLeft=32\n"
        "[Moslem]\nFirstWeekDay=4\nTop=41\nLeft=42\nType=2\n"
        "[Monthly]\nTop=51\nLeft=52\n[Moon]\nTop=61\nLeft=62\n");
    EXPECT_TRUE(ReadSettings());
    EXPECT_EQ(CalendarOrder, (Table<int, 4>{4, 3, 2, 1}));
    EXPECT_EQ(FirstWeekDay, (Table<int, 4>{1, 2, 3, 4}));
    EXPECT_EQ(FormTop, (Table<int, 6>{11, 21, 31, 41, 51, 61}));
    EXPECT_EQ(FormLeft, (Table<int, 6>{12, 22, 32, 42, 52, 62}));
    EXPECT_EQ(MoslemType, 2);
    EXPECT_EQ(StartupWindow, 3);
    EXPECT_EQ(ShowTips, 0);
    EXPECT_EQ(LanguageName, "German");
}

TEST_F(UserSettings, NumbersAreTakenAsTheyAre) {
    store("[Startup]\nWindow=-1\nShowTips=5\n[Moslem]\nType=7\nFirstWeekDay=0\n"
          "[Moon]\nTop=-32768\nLeft=32767\n");
    EXPECT_TRUE(ReadSettings());
    EXPECT_EQ(StartupWindow, -1);
    EXPECT_EQ(ShowTips, 5);
    EXPECT_EQ(MoslemType, 7);
    EXPECT_EQ(FirstWeekDay(Moslem), 0);
    EXPECT_EQ(FormTop(MoonWindowNumber), -32768);
    EXPECT_EQ(FormLeft(MoonWindowNumber), 32767);
}

TEST_F(UserSettings, CalendarOrdersThatRepeatAreReset) {
    const Table<int, 4> reset{1, 2, 3, 4};
    for (const auto& stored : {std::array{1, 1, 3, 4},
                               {1, 2, 3, 5},
                               {9, 9, 3, 4},
                               {1, 2, 2, 4},
                               {1, 2, 3, 1},
                               {4, 3, 2, 0},
                               {1, -2, 3, 4},
                               {3, 9, 1, 2}})
        EXPECT_EQ(orderOf(stored), reset) << stored[0] << stored[1] << stored[2] << stored[3];
}

TEST_F(UserSettings, TheFirstPanesCalendarIsNotChecked) {
    const std::array<int, 4> orders[] = {{9, 2, 3, 4}, {0, 2, 3, 4}, {-1, 1, 2, 3}};
    for (const auto& stored : orders)
        EXPECT_EQ(orderOf(stored)(1), stored[0]);
    EXPECT_EQ(CalendarOrder, (Table<int, 4>{-1, 1, 2, 3}));
}

TEST_F(UserSettings, OtherCalendarOrdersAreKept) {
    EXPECT_EQ(orderOf({2, 1, 4, 3}), (Table<int, 4>{2, 1, 4, 3}));
    EXPECT_EQ(orderOf({4, 3, 2, 1}), (Table<int, 4>{4, 3, 2, 1}));
}

TEST_F(UserSettings, WhatIsNoNumberIsToldAndEndsTheReading) {
    for (const char* text : {"abc", "", "40000", "1,5", "-32769", "0x1", "1 2"}) {
        store(QByteArray("[Startup]\nWindow=") + text + "\n");
        EXPECT_FALSE(ReadSettings()) << text;
        const QByteArray entry = QByteArray("[Startup] Window=") + text;
        EXPECT_EQ(m_messages.take(), toldOf(entry.constData())) << text;
    }
}

TEST_F(UserSettings, OnlyTheFirstBadNumberIsTold) {
    store("[Startup]\nCalendar2=x\nWindow=y\n[Jewish]\nFirstWeekDay=z\n");
    EXPECT_FALSE(ReadSettings());
    EXPECT_EQ(m_messages.take(), toldOf("[Startup] Calendar2=x"));
}

TEST_F(UserSettings, FractionsRound) {
    store("[Startup]\nWindow=2.5\nShowTips=0.4\n[Moslem]\nType=\" 1.5 \"\n[Moon]\nTop=1e3\n");
    EXPECT_TRUE(ReadSettings());
    EXPECT_EQ(StartupWindow, 2);
    EXPECT_EQ(ShowTips, 0);
    EXPECT_EQ(MoslemType, 2);
    EXPECT_EQ(FormTop(MoonWindowNumber), 1000);
}

TEST_F(UserSettings, LanguageNamesAreAnyText) {
    store("[Startup]\nLanguage=\"Русский, новый\"\n");
    EXPECT_TRUE(ReadSettings());
    EXPECT_EQ(LanguageName, "Русский, новый");
}

TEST_F(UserSettings, ALongTextIsToldShortened) {
    store("[Startup]\nWindow=" + QByteArray(4000, '9') + "\n");
    EXPECT_FALSE(ReadSettings());
    const QByteArray entry = "[Startup] Window=" + QByteArray(60, '9');
    QStringList expected = toldOf(entry.constData());
    expected.front().replace(QString(60, u'9'), QString(60, u'9') + QChar(0x2026));
    EXPECT_EQ(m_messages.take(), expected);
}

TEST_F(UserSettings, WhatIsToldStandsOnOneLineAndIsWhole) {
    store("[Startup]\nWindow=a" + QByteArray("\\n").repeated(59) + "\n");
    EXPECT_FALSE(ReadSettings());
    const QByteArray lines = "[Startup] Window=a" + QByteArray("\u240A").repeated(59);
    EXPECT_EQ(m_messages.take(),
              QStringList{QString::fromUtf8("The stored setting is not a number from -32768 to "
                                            "32767:\r\n" +
                                            lines + "\r\n\r\n" + m_path.toUtf8())});
    store("[Startup]\nWindow=1\\x0z\n");
    EXPECT_FALSE(ReadSettings());
    EXPECT_EQ(m_messages.take(), toldOf("[Startup] Window=1"
                                        "\u2400z"));
}

TEST_F(UserSettings, AnUnclosedQuoteEndsWithItsLine) {
    store("[Startup]\nWindow=\"2\nShowTips=0\n");
    EXPECT_TRUE(ReadSettings());
    EXPECT_EQ(StartupWindow, 2);
    EXPECT_EQ(ShowTips, 0);
}

TEST_F(UserSettings, AFolderInTheFilesPlaceIsToldAndTheStandardValuesHold) {
    fillWithOtherValues();
    ASSERT_TRUE(QDir().mkpath(settingsPath()));
    EXPECT_TRUE(ReadSettings());
    EXPECT_EQ(m_messages.take(),
              QStringList{QDir::toNativeSeparators(settingsPath()) +
                          QStringLiteral("\r\n\r\nThe settings cannot be read.")});
    EXPECT_EQ(StartupWindow, 0);
    EXPECT_EQ(LanguageName, "English (Default)");
}

TEST_F(UserSettings, EachGroupIsSavedInItsOrder) {
    fillWithOtherValues();
    store("");
    EXPECT_TRUE(LoadSettings());
    SaveSettings(SettingGroup::Options);
    EXPECT_EQ(readFile(m_path), "[Moslem]\nType=9\nFirstWeekDay=4\n\n[Julian]\nFirstWeekDay=1\n\n"
                                "[Gregorian]\nFirstWeekDay=2\n\n[Jewish]\nFirstWeekDay=3\n\n"
                                "[Startup]\nLanguage=Other\nWindow=9\nShowTips=0\n");
    store("");
    EXPECT_TRUE(LoadSettings());
    SaveSettings(SettingGroup::PaneCalendars);
    EXPECT_EQ(readFile(m_path), "[Startup]\nCalendar1=4\nCalendar2=3\nCalendar3=2\nCalendar4=1\n");
    store("");
    EXPECT_TRUE(LoadSettings());
    SaveSettings(SettingGroup::Positions);
    EXPECT_EQ(readFile(m_path), "[Julian]\nTop=1\nLeft=1\n\n[Gregorian]\nTop=1\nLeft=1\n\n"
                                "[Jewish]\nTop=1\nLeft=1\n\n[Moslem]\nTop=1\nLeft=1\n\n"
                                "[Monthly]\nTop=1\nLeft=1\n\n[Moon]\nTop=1\nLeft=1\n");
}

// The number that each is read as; nothing where it is refused.
TEST_F(UserSettings, EveryNumberWithstandsHostileTexts) {
    const std::pair<QByteArray, std::optional<int>> texts[] = {
        {"", {}},         {"abc", {}},        {"32768", {}},  {"-32769", {}},
        {"1e9", {}},      {"nan", {}},        {"inf", {}},    {"0x10", {}},
        {"1,5", {}},      {"1 2", {}},        {"--1", {}},    {"\xFF\xFE", {}},
        {"\"\"", {}},     {"@Invalid()", {}}, {"%n%s%d", {}}, {QByteArray(5000, '9'), {}},
        {"32767", 32767}, {"-32768", -32768}, {" \"7\" ", 7}, {"2.5", 2}};
    for (const Setting& row : numberSettings()) {
        for (const auto& [text, number] : texts) {
            int& value = *std::get<int*>(row.value);
            value = 77;
            store('[' + row.section.toUtf8() + "]\n" + row.key.toUtf8() + '=' + text + '\n');
            EXPECT_EQ(ReadSettings(), number.has_value()) << row.key.toStdString() << text.data();
            EXPECT_EQ(m_messages.take().size(), number ? 0 : 1) << text.data();
            const bool isOrder = row.key.startsWith(QStringLiteral("Calendar")); // checked besides
            EXPECT_TRUE(isOrder || value == number.value_or(77))
                << row.key.toStdString() << text.data();
        }
    }
    recordWithstood("hostile texts in place of a stored number",
                    std::ssize(numberSettings()) * std::ssize(texts));
}

TEST_F(UserSettings, AFileCutAnywhereIsReadOrToldAndCanBeSaved) {
    const QByteArray lines("[Startup]\nCalendar1=2\nCalendar2=1\nWindow=3\nLanguage=\"a, b\"\n"
                           "ShowTips=0\n\n[Moslem]\nType=2\nTop=-150\nLeft=300\n");
    for (qsizetype size = 0; size <= lines.size(); ++size) {
        store(lines.left(size));
        const bool read = ReadSettings();
        EXPECT_EQ(m_messages.take().size(), read ? 0 : 1) << size;
        SaveSettings(SettingGroup::PaneCalendars);
        EXPECT_TRUE(readFile(m_path).contains("Calendar4=")) << size;
    }
    recordWithstood("a settings file cut at each of its bytes", lines.size() + 1);
}

TEST_F(UserSettings, AnUnwritableFileIsToldOnceARun) {
    writeFile(m_folder.filePath(QStringLiteral("config")), "in the way");
    SaveSettings(SettingGroup::PaneCalendars);
    SaveSettings(SettingGroup::Positions);
    EXPECT_EQ(m_messages.take().size(), 1);
    EXPECT_TRUE(ReadSettings());
    SaveSettings(SettingGroup::Positions);
    EXPECT_EQ(m_messages.take().size(), 1) << "another run";
}

TEST_F(UserSettings, TheMoslemTypeIsReadBeforeTheStartupWindow) {
    store("[Startup]\nWindow=y\nShowTips=z\n[Moslem]\nType=x\n");
    EXPECT_FALSE(ReadSettings());
    EXPECT_EQ(m_messages.take(), toldOf("[Moslem] Type=x"));
}

TEST_F(UserSettings, ThatNothingCanBeWrittenIsNotToldAgainWhileItIsBeingTold) {
    writeFile(m_folder.filePath(QStringLiteral("config")), "in the way");
    EXPECT_TRUE(ReadSettings()); // another run
    bool again = false;
    const MessageShown saveAgain([&again](QMessageBox&) {
        if (!std::exchange(again, true))
            SaveSettings(SettingGroup::Positions);
    });
    SaveSettings(SettingGroup::PaneCalendars);
    EXPECT_TRUE(again);
    EXPECT_EQ(m_messages.take().size(), 1);
}

} // namespace
