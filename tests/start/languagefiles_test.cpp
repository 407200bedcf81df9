// SPDX-License-Identifier: MIT
// The language files that come with the program: whatever lies in languages/.
#include "platform/lngfile.h"
#include "shared/english.h"
#include "support/state.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <algorithm>
#include <cctype>
#include <map>
#include <set>
#include <tuple>
#include <vector>

namespace {

struct Entry {
    QString section;
    int key;

    bool operator==(const Entry& other) const = default;
    bool operator<(const Entry& other) const {
        return std::tie(section, key) < std::tie(other.section, other.key);
    }

    friend std::ostream& operator<<(std::ostream& out, const Entry& entry) {
        return out << entry.section.toStdString() << ' ' << entry.key;
    }
};

using Texts = std::map<Entry, QString>;

QStringList languages() {
    return QDir(QStringLiteral(LANGUAGES_DIR))
        .entryList({QStringLiteral("*.lng")}, QDir::Files, QDir::Name)
        .replaceInStrings(QStringLiteral(".lng"), QString());
}

std::vector<std::string> languageNames() {
    std::vector<std::string> names;
    for (const QString& language : languages())
        names.push_back(language.toStdString());
    return names;
}

QByteArray bytesOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

QJsonObject dataOf(const QString& name) {
    const QByteArray bytes = bytesOf(QStringLiteral(TEST_DATA_DIR "/") + name);
    QJsonObject data = QJsonDocument::fromJson(bytes).object();
    EXPECT_FALSE(data.isEmpty()) << name.toStdString();
    return data;
}

QJsonObject cldrNames() {
    return dataOf(QStringLiteral("cldr-names.json"));
}

/// Texts that are as they are on purpose, where a rule asks for others.
QJsonObject deliberateTexts() {
    return dataOf(QStringLiteral("deliberate-texts.json"));
}

/// Every entry of a file, read without the program's reader; entries that stand
/// twice fail.
Texts textsOf(const QByteArray& bytes) {
    Texts texts;
    QString section;
    for (const QString& line : QString::fromUtf8(bytes).split(u'\n')) {
        if (line.startsWith(u'['))
            section = line.chopped(1).mid(1);
        if (line.isEmpty() || line.startsWith(u';') || line.startsWith(u'['))
            continue;
        const auto equals = line.indexOf(u'=');
        const int key = line.left(equals).toInt();
        EXPECT_TRUE(texts.insert({{section, key}, line.mid(equals + 1)}).second)
            << line.toStdString();
    }
    return texts;
}

template <int size>
void addTable(Texts& texts, const QString& section, const Table<std::string, size>& table) {
    for (int i = 1; i <= size; ++i)
        texts[{section, i}] = QString::fromStdString(table(i));
}

// A calendar's months end at the first that has no name.
void addMonths(Texts& texts, const QString& section, int calendar) {
    for (int month = 1; month <= weekdayRow && !MonthNames(calendar, month).empty(); ++month)
        texts[{section, month}] = QString::fromStdString(MonthNames(calendar, month));
}

Texts englishTexts() {
    SetEnglishTexts();
    Texts texts;
    addTable(texts, QStringLiteral("CALENDARS"), CalendarNames);
    addMonths(texts, QStringLiteral("JGMONTHS"), Gregorian);
    addMonths(texts, QStringLiteral("JMONTHS"), Jewish);
    addMonths(texts, QStringLiteral("MMONTHS"), Moslem);
    addTable(texts, QStringLiteral("WEEKDAYS"), WeekDayNames);
    addTable(texts, QStringLiteral("WEEKDAYSABBR"), WeekDayAbbrs);
    addTable(texts, QStringLiteral("LABELS"), LabelTexts);
    addTable(texts, QStringLiteral("STRINGS"), StringTexts);
    texts[{QStringLiteral("SPEECH"), 1}] = QString::fromStdString(SelectedWord);
    return texts;
}

/// Every entry of `from` is among `texts`; what is not is named.
void expectEntries(const Texts& texts, const Texts& from) {
    for (const auto& [entry, text] : from)
        EXPECT_EQ(texts.count(entry), 1U) << entry;
}

/// The numbers of a text in their order, with a blank between them.
std::string numbersIn(const QString& text) {
    QStringList numbers;
    for (const auto& number : QRegularExpression(QStringLiteral("[0-9]+")).globalMatch(text))
        numbers.append(number.captured());
    return numbers.join(u' ').toStdString();
}

/// The name under which a language is tested: letters and digits of English.
std::string nameOfTests(std::string language) {
    std::replace_if(
        language.begin(), language.end(), [](unsigned char c) { return std::isalnum(c) == 0; },
        '_');
    return language;
}

QString at(const Texts& texts, const QString& section, int key) {
    const auto found = texts.find({section, key});
    return found == texts.end() ? QString() : found->second;
}

class LanguageFiles : public StateTest, public testing::WithParamInterface<std::string> {
protected:
    QByteArray bytes() const {
        return bytesOf(QStringLiteral(LANGUAGES_DIR "/%1.lng").arg(m_language));
    }
    Texts texts() const { return textsOf(bytes()); }

    /// CLDR's names for a section, none where CLDR is no judge of it.
    QJsonArray cldr(const QString& section) const {
        return m_cldr[m_language].toObject()[section].toArray();
    }

    /// The text that an entry has on purpose, empty where the rules hold.
    QString deliberate(const QString& section, int key) const {
        return m_deliberate[section].toObject()[QString::number(key)].toString();
    }

    /// Whether the language writes a section's names with another first letter
    /// than CLDR.
    bool hasFirstLetters(const char* size, const QString& section) const {
        return m_deliberate[QLatin1String(size)].toArray().contains(section);
    }

    /// A name as the file should have it, by CLDR.
    QString expectedName(const QString& section, int key) const {
        QString name = cldr(section)[key - 1].toString();
        if (hasFirstLetters("with a large first letter", section))
            return name.left(1).toUpper() + name.mid(1);
        if (hasFirstLetters("with a small first letter", section))
            return name.left(1).toLower() + name.mid(1);
        return name;
    }

private:
    const QString m_language = QString::fromStdString(GetParam());
    const QJsonObject m_cldr = cldrNames();
    const QJsonObject m_deliberate = deliberateTexts()[m_language].toObject();
};

TEST(LanguageFolder, EveryLanguageHasItsNamesFromCldr) {
    for (const QString& language : languages())
        EXPECT_TRUE(cldrNames().contains(language)) << language.toStdString();
    for (const QString& language : cldrNames().keys())
        EXPECT_TRUE(languages().contains(language)) << language.toStdString();
}

TEST(LanguageFolder, LanguagesOfSeveralWordsAreTestedToo) {
    EXPECT_EQ(nameOfTests("German"), "German");
    EXPECT_EQ(nameOfTests("Brazilian portuguese"), "Brazilian_portuguese");
    EXPECT_EQ(nameOfTests("Serbo-croatian"), "Serbo_croatian");
}

TEST(LanguageFolder, NothingIsDeliberateInALanguageThatIsNotThere) {
    for (const QString& language : deliberateTexts().keys())
        EXPECT_TRUE(languages().contains(language)) << language.toStdString();
}

TEST_P(LanguageFiles, HoldEveryEntryAndNoOther) {
    expectEntries(texts(), englishTexts());
    expectEntries(englishTexts(), texts());
}

TEST_P(LanguageFiles, AreUtf8WithoutAMarkAndWithSimpleLineEnds) {
    EXPECT_EQ(QString::fromUtf8(bytes()).toUtf8(), bytes());
    EXPECT_FALSE(bytes().contains('\r') || bytes().contains('\0'));
    EXPECT_LE(bytes().size(), LngFile::largestSize);
    EXPECT_TRUE(bytes().startsWith("; SPDX-License-Identifier: MIT\n"));
}

TEST_P(LanguageFiles, TheReaderTakesEveryTextWhole) {
    const LngFile file(bytes());
    for (const auto& [entry, text] : texts()) {
        const QByteArray value = file.GetPrivateProfileString(entry.section.toUtf8(),
                                                              QByteArray::number(entry.key), 255);
        EXPECT_EQ(file.Decode(value).toStdString(), text.toStdString()) << entry;
        EXPECT_FALSE(value.isEmpty() || text.trimmed() != text) << entry;
    }
}

// A weekday may well begin with the same letters as in English.
TEST_P(LanguageFiles, LeaveNothingInEnglish) {
    const Texts own = texts();
    for (const auto& [entry, english] : englishTexts()) {
        const auto& [section, key] = entry;
        const QString text = at(own, section, key);
        const bool beginsItsName =
            section == QLatin1String("WEEKDAYSABBR") &&
            at(own, QStringLiteral("WEEKDAYS"), key).startsWith(text, Qt::CaseInsensitive);
        const bool mayBeTheSame = !cldr(section).isEmpty() || beginsItsName;
        EXPECT_TRUE(mayBeTheSame || text != english || text == deliberate(section, key)) << entry;
    }
}

// A line may end behind a common hyphen, and a number would lose its word.
TEST_P(LanguageFiles, JoinNumbersToWordsByAHyphenThatDoesNotBreak) {
    const QRegularExpression breaking(QStringLiteral("[0-9][-\u2010][^0-9]"));
    for (const auto& [entry, text] : texts())
        EXPECT_FALSE(text.contains(breaking)) << entry;
}

// What is spoken is cut out of them.
TEST_P(LanguageFiles, KeepTheSignsBetweenWhatIsSpokenAndWhatIsNot) {
    const Texts own = texts();
    const auto string = [&own](int key) { return at(own, QStringLiteral("STRINGS"), key); };
    EXPECT_EQ(string(MonthText).count(QStringLiteral(". ")), 1);
    for (const int key : {DayOfYearText, WeekOfYearText})
        EXPECT_EQ(string(key).count(u'/'), 1) << key;
    for (const int key : {MonthGridText, YearGridText, MoonPictureText})
        EXPECT_EQ(string(key).count(QStringLiteral(" (")), 1) << key;
}

TEST_P(LanguageFiles, WeekdaysAreShortenedToTwoCharacters) {
    std::set<QString> different;
    for (const auto& [entry, text] : texts()) {
        if (entry.section != QLatin1String("WEEKDAYSABBR"))
            continue;
        EXPECT_LE(text.toUcs4().size(), 2) << entry;
        different.insert(text);
    }
    EXPECT_EQ(different.size(), daysInWeek);
}

TEST_P(LanguageFiles, NameTheLeapYearsOfTheirVariant) {
    const Texts own = texts();
    const auto label = [&own](int key) { return at(own, QStringLiteral("LABELS"), key); };
    const auto with16 = [&label](int key) {
        return label(key).replace(QStringLiteral("15"), QStringLiteral("16"));
    };
    EXPECT_EQ(numbersIn(label(MoslemLeapYears1Label)), "2 5 7 10 13 15 18 21 24 26 29");
    EXPECT_EQ(with16(MoslemLeapYears1Label).toStdString(),
              label(MoslemLeapYears2Label).toStdString());
    EXPECT_EQ(numbersIn(label(MoslemEra1Label)), "15 622");
    EXPECT_EQ(with16(MoslemEra1Label).toStdString(), label(MoslemEra2Label).toStdString());
}

TEST_P(LanguageFiles, NamesOfMonthsAndWeekdaysAreThoseOfCldr) {
    std::map<QString, qsizetype> named;
    for (const auto& [entry, text] : texts()) {
        const auto& [section, key] = entry;
        if (cldr(section).isEmpty())
            continue;
        ++named[section];
        const std::string name = expectedName(section, key).toStdString();
        const std::string own = deliberate(section, key).toStdString();
        EXPECT_EQ(text.toStdString(), own.empty() ? name : own) << entry;
        EXPECT_NE(own, name) << entry << " is not deliberate";
    }
    for (const char* section : {"JGMONTHS", "JMONTHS", "MMONTHS", "WEEKDAYS"})
        EXPECT_EQ(named[QLatin1String(section)], cldr(QLatin1String(section)).size()) << section;
}

INSTANTIATE_TEST_SUITE_P(Shipped, LanguageFiles, testing::ValuesIn(languageNames()),
                         [](const auto& language) { return nameOfTests(language.param); });

} // namespace
