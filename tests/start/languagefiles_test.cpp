// SPDX-License-Identifier: MIT
// The language files that come with the program.
#include "platform/profile.h"
#include "start/english.h"
#include "support/state.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <map>
#include <set>

namespace {

const QStringList languages{
    QStringLiteral("Arabic"),  QStringLiteral("French"),     QStringLiteral("German"),
    QStringLiteral("Hebrew"),  QStringLiteral("Indonesian"), QStringLiteral("Italian"),
    QStringLiteral("Persian"), QStringLiteral("Polish"),     QStringLiteral("Russian"),
    QStringLiteral("Spanish"), QStringLiteral("Turkish"),    QStringLiteral("Ukrainian")};

const std::map<QString, int> sectionSizes{
    {QStringLiteral("CALENDARS"), 5}, {QStringLiteral("JGMONTHS"), 12},
    {QStringLiteral("JMONTHS"), 12},  {QStringLiteral("MMONTHS"), 12},
    {QStringLiteral("WEEKDAYS"), 7},  {QStringLiteral("WEEKDAYSABBR"), 7},
    {QStringLiteral("LABELS"), 12},   {QStringLiteral("STRINGS"), 25}};

/// Texts by section and key.
using Texts = std::map<std::pair<QString, int>, QString>;

QByteArray bytesOf(const QString& language) {
    QFile file(QStringLiteral(LANGUAGES_DIR "/") + language + QStringLiteral(".lng"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << language.toStdString();
    return file.readAll();
}

/// Every entry of a file, read without the program's reader; entries that stand
/// twice fail.
Texts textsOf(const QString& language) {
    Texts texts;
    QString section;
    for (const QString& line : QString::fromUtf8(bytesOf(language)).split(u'\n')) {
        if (line.startsWith(u'['))
            section = line.chopped(1).mid(1);
        if (line.isEmpty() || line.startsWith(u';') || line.startsWith(u'['))
            continue;
        const auto equals = line.indexOf(u'=');
        const int key = line.left(equals).toInt();
        EXPECT_TRUE(texts.insert({{section, key}, line.mid(equals + 1)}).second)
            << language.toStdString() << ": " << line.toStdString();
    }
    return texts;
}

template <int size>
void addTable(Texts& texts, const QString& section, const Table<std::string, size>& table) {
    for (int i = 1; i <= size; ++i)
        texts[{section, i}] = QString::fromStdString(table(i));
}

Texts englishTexts() {
    SetEnglishTexts();
    Texts texts;
    for (int month = 1; month <= 12; ++month) {
        texts[{QStringLiteral("JGMONTHS"), month}] =
            QString::fromStdString(MonthNames(Gregorian, month));
        texts[{QStringLiteral("JMONTHS"), month}] =
            QString::fromStdString(MonthNames(Jewish, month));
        texts[{QStringLiteral("MMONTHS"), month}] =
            QString::fromStdString(MonthNames(Moslem, month));
    }
    addTable(texts, QStringLiteral("CALENDARS"), CalendarNames);
    addTable(texts, QStringLiteral("WEEKDAYS"), WeekDayNames);
    addTable(texts, QStringLiteral("WEEKDAYSABBR"), WeekDayAbbrs);
    addTable(texts, QStringLiteral("LABELS"), LabelTexts);
    addTable(texts, QStringLiteral("STRINGS"), StringTexts);
    return texts;
}

class LanguageFiles : public StateTest {};

TEST_F(LanguageFiles, AllOfThemAreThere) {
    const QStringList found = QDir(QStringLiteral(LANGUAGES_DIR))
                                  .entryList({QStringLiteral("*.lng")}, QDir::Files, QDir::Name)
                                  .replaceInStrings(QStringLiteral(".lng"), QString());
    EXPECT_EQ(found, languages);
}

TEST_F(LanguageFiles, HoldEveryEntryAndNoOther) {
    for (const QString& language : languages) {
        Texts texts = textsOf(language);
        for (const auto& [section, size] : sectionSizes) {
            for (int key = 1; key <= size; ++key)
                EXPECT_EQ(texts.erase({section, key}), 1U)
                    << language.toStdString() << section.toStdString() << key;
        }
        for (const auto& [entry, text] : texts)
            ADD_FAILURE() << language.toStdString() << ": unknown " << entry.first.toStdString()
                          << ' ' << entry.second;
    }
}

TEST_F(LanguageFiles, AreUtf8WithoutAMarkAndWithSimpleLineEnds) {
    for (const QString& language : languages) {
        const QByteArray bytes = bytesOf(language);
        EXPECT_EQ(QString::fromUtf8(bytes).toUtf8(), bytes) << language.toStdString();
        EXPECT_FALSE(bytes.contains('\r') || bytes.contains('\0')) << language.toStdString();
        EXPECT_LE(bytes.size(), ProfileFile::largestSize) << language.toStdString();
        EXPECT_TRUE(bytes.startsWith("; SPDX-License-Identifier: MIT\n")) << language.toStdString();
    }
}

TEST_F(LanguageFiles, TheReaderTakesEveryTextWhole) {
    for (const QString& language : languages) {
        const ProfileFile file = ProfileFile::FromBytes(bytesOf(language));
        for (const auto& [entry, text] : textsOf(language)) {
            const QByteArray value = file.GetPrivateProfileString(
                entry.first.toUtf8(), QByteArray::number(entry.second), 255);
            EXPECT_EQ(file.Decode(value), text)
                << language.toStdString() << entry.first.toStdString() << entry.second;
            EXPECT_FALSE(value.isEmpty() || text.trimmed() != text)
                << language.toStdString() << entry.first.toStdString() << entry.second;
        }
    }
}

// Names of months that the languages share with English, and the weekdays'
// letters that happen to be equal.
const std::map<QString, std::set<std::string>> equalToEnglish{
    {QStringLiteral("French"),
     {"Kislev", "Adar", "Iyar", "Sivan", "Av", "Safar", "Rajab", "Ramadan", "Sa"}},
    {QStringLiteral("German"),
     {"April", "August", "September", "November", "Adar", "Nisan", "Elul", "Muharram", "Safar",
      "Ramadan", "Mo", "Fr", "Sa"}},
    {QStringLiteral("Indonesian"),
     {"April", "September", "November", "Adar", "Nisan", "Iyar", "Elul", "Safar", "Rajab",
      "Ramadan"}},
    {QStringLiteral("Italian"),
     {"Tishri",    "Heshvan", "Kislev",  "Tevet",   "Shevat",   "Adar",  "Nisan",
      "Iyar",      "Sivan",   "Av",      "Elul",    "Muharram", "Safar", "Jumada I",
      "Jumada II", "Rajab",   "Sha‘ban", "Ramadan", "Shawwal",  "Sa"}},
    {QStringLiteral("Polish"),
     {"Adar", "Nisan", "Elul", "Muharram", "Safar", "Rabi I", "Rabi II", "Ramadan"}},
    {QStringLiteral("Spanish"),
     {"Kislev", "Tevet", "Shevat", "Adar", "Iyar", "Av", "Elul", "Muharram", "Safar", "Shawwal"}},
    {QStringLiteral("Turkish"), {"Kislev", "Tevet", "Adar", "Nisan", "Sivan", "Av", "Elul"}}};

TEST_F(LanguageFiles, LeaveNothingInEnglish) {
    const Texts english = englishTexts();
    for (const QString& language : languages) {
        std::set<std::string> equal;
        for (const auto& [entry, text] : textsOf(language)) {
            const auto same = english.find(entry);
            if (same != english.end() && same->second == text)
                equal.insert(text.toStdString());
        }
        const auto expected = equalToEnglish.find(language);
        EXPECT_EQ(equal,
                  expected != equalToEnglish.end() ? expected->second : std::set<std::string>())
            << language.toStdString();
    }
}

TEST_F(LanguageFiles, WeekdaysAreShortenedToTwoCharacters) {
    for (const QString& language : languages) {
        std::set<QString> different;
        Texts texts = textsOf(language);
        for (int weekday = 1; weekday <= 7; ++weekday) {
            const QString text = texts[{QStringLiteral("WEEKDAYSABBR"), weekday}];
            EXPECT_LE(text.toUcs4().size(), 2) << language.toStdString() << weekday;
            different.insert(text);
        }
        EXPECT_EQ(different.size(), 7U) << language.toStdString();
    }
}

TEST_F(LanguageFiles, NameTheLeapYearsOfTheirVariant) {
    for (const QString& language : languages) {
        Texts texts = textsOf(language);
        const QString first = texts[{QStringLiteral("LABELS"), MoslemLeapYears1Label}];
        const QString second = texts[{QStringLiteral("LABELS"), MoslemLeapYears2Label}];
        EXPECT_EQ(first.count(QStringLiteral("15")), 1) << language.toStdString();
        EXPECT_EQ(QString(first).replace(QStringLiteral("15"), QStringLiteral("16")), second)
            << language.toStdString();
        const QString firstEra = texts[{QStringLiteral("LABELS"), MoslemEra1Label}];
        const QString secondEra = texts[{QStringLiteral("LABELS"), MoslemEra2Label}];
        EXPECT_EQ(QString(firstEra).replace(QStringLiteral("15"), QStringLiteral("16")), secondEra)
            << language.toStdString();
        EXPECT_NE(firstEra, secondEra) << language.toStdString();
    }
}

/// Where the program's language differs from CLDR on purpose.
struct Difference {
    const char* language;
    const char* section;
    int key;
    const char* text;
};

// Numbered months in place of long names that no grid has room for; the sign in
// Sha‘ban as everywhere in the program; one way of transliterating per language.
constexpr Difference differences[] = {
    {"French", "MMONTHS", 3, "Rabia I"},        {"French", "MMONTHS", 4, "Rabia II"},
    {"French", "MMONTHS", 5, "Joumada I"},      {"French", "MMONTHS", 6, "Joumada II"},
    {"French", "MMONTHS", 11, "Dhou al-qi‘da"}, {"German", "JMONTHS", 4, "Tewet"},
    {"German", "JMONTHS", 5, "Schewat"},        {"German", "MMONTHS", 3, "Rabi‘ I"},
    {"German", "MMONTHS", 4, "Rabi‘ II"},       {"German", "MMONTHS", 8, "Scha‘ban"},
    {"German", "MMONTHS", 10, "Schawwal"},      {"German", "MMONTHS", 11, "Dhu l-Qa‘da"},
    {"Hebrew", "MMONTHS", 3, "רביע א׳"},        {"Hebrew", "MMONTHS", 4, "רביע ב׳"},
    {"Hebrew", "MMONTHS", 5, "ג׳ומאדא א׳"},     {"Hebrew", "MMONTHS", 6, "ג׳ומאדא ב׳"},
    {"Indonesian", "JMONTHS", 1, "Tisyri"},     {"Indonesian", "JMONTHS", 2, "Hesywan"},
    {"Indonesian", "JMONTHS", 3, "Kislew"},     {"Indonesian", "JMONTHS", 4, "Tebet"},
    {"Indonesian", "JMONTHS", 5, "Syebat"},     {"Indonesian", "JMONTHS", 9, "Siwan"},
    {"Indonesian", "JMONTHS", 10, "Tamus"},     {"Indonesian", "JMONTHS", 11, "Ab"},
    {"Italian", "MMONTHS", 3, "Rabi‘ I"},       {"Italian", "MMONTHS", 4, "Rabi‘ II"},
    {"Italian", "MMONTHS", 8, "Sha‘ban"},       {"Italian", "MMONTHS", 11, "Dhu l-Qa‘da"},
    {"Italian", "MMONTHS", 12, "Dhu l-Hijja"},  {"Persian", "JMONTHS", 6, "آذار"},
    {"Polish", "MMONTHS", 3, "Rabi I"},         {"Polish", "MMONTHS", 4, "Rabi II"},
    {"Russian", "MMONTHS", 3, "Раби I"},        {"Russian", "MMONTHS", 4, "Раби II"},
    {"Russian", "MMONTHS", 5, "Джумада I"},     {"Russian", "MMONTHS", 6, "Джумада II"},
    {"Spanish", "JMONTHS", 1, "Tishrei"},       {"Spanish", "JMONTHS", 2, "Jeshván"},
    {"Spanish", "JMONTHS", 7, "Nisán"},         {"Spanish", "JMONTHS", 9, "Siván"},
    {"Spanish", "MMONTHS", 3, "Rabí I"},        {"Spanish", "MMONTHS", 4, "Rabí II"},
    {"Spanish", "MMONTHS", 5, "Yumada I"},      {"Spanish", "MMONTHS", 6, "Yumada II"},
    {"Spanish", "MMONTHS", 7, "Rayab"},         {"Spanish", "MMONTHS", 8, "Shaabán"},
    {"Spanish", "MMONTHS", 11, "Du l-qaada"},   {"Spanish", "MMONTHS", 12, "Du l-hiyya"},
    {"Ukrainian", "JMONTHS", 1, "Тішрей"},      {"Ukrainian", "JMONTHS", 2, "Хешван"},
    {"Ukrainian", "JMONTHS", 3, "Кіслев"},      {"Ukrainian", "JMONTHS", 4, "Тевет"},
    {"Ukrainian", "JMONTHS", 8, "Іяр"},         {"Ukrainian", "JMONTHS", 11, "Ав"},
    {"Ukrainian", "MMONTHS", 10, "Шавваль"},    {"Ukrainian", "WEEKDAYS", 5, "П’ятниця"}};

/// The differing text of an entry, empty when it is to be as in CLDR.
QString differenceOf(const QString& language, const QString& section, int key) {
    for (const Difference& row : differences) {
        if (language == QLatin1String(row.language) && section == QLatin1String(row.section) &&
            key == row.key)
            return QString::fromUtf8(row.text);
    }
    return {};
}

QJsonObject cldrNames() {
    QFile file(QStringLiteral(TEST_DATA_DIR "/cldr-names.json"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return QJsonDocument::fromJson(file.readAll()).object();
}

TEST_F(LanguageFiles, NamesOfMonthsAndWeekdaysAreThoseOfCldr) {
    const std::pair<QString, QString> tables[] = {
        {QStringLiteral("JGMONTHS"), QStringLiteral("gregorian")},
        {QStringLiteral("JMONTHS"), QStringLiteral("jewish_common")},
        {QStringLiteral("MMONTHS"), QStringLiteral("moslem")},
        {QStringLiteral("WEEKDAYS"), QStringLiteral("weekdays")}};
    const QJsonObject cldr = cldrNames();
    for (const QString& language : languages) {
        Texts texts = textsOf(language);
        for (const auto& [section, table] : tables) {
            const QJsonArray names = cldr[language].toObject()[table].toArray();
            ASSERT_EQ(names.size(), sectionSizes.at(section)) << language.toStdString();
            for (int key = 1; key <= names.size(); ++key) {
                const QString text = texts[{section, key}];
                const QString name = names[key - 1].toString();
                const QString difference = differenceOf(language, section, key);
                EXPECT_EQ(text.toLower(), (difference.isEmpty() ? name : difference).toLower())
                    << language.toStdString() << ": " << text.toStdString();
                EXPECT_NE(difference.toLower(), name.toLower())
                    << language.toStdString() << ": " << text.toStdString() << " is no difference";
            }
        }
    }
}

} // namespace
