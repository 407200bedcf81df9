// SPDX-License-Identifier: MIT
#include "start/language.h"

#include "calc/calc.h"
#include "platform/lngfile.h"
#include "platform/message.h"
#include "platform/program.h"
#include "platform/text.h"
#include "shared/english.h"
#include "shared/texts.h"

#include <QDir>
#include <QFileInfo>
#include <QMap>

namespace {

QString suffix() {
    return QStringLiteral(".lng");
}

// The one large letter whose small form is two, i and a dot: the i alone is taken.
constexpr QChar largeDottedI(u'\u0130');

// The files by the names under which they are listed. Of several that would share
// a name the one that is written like it stands for it, else the first.
QMap<QString, QString> listedFiles() {
    QMap<QString, QString> files;
    for (const QString& file :
         QDir(ProgramFolder()).entryList({u'*' + suffix()}, QDir::Files, QDir::Name)) {
        const QString name = file.chopped(suffix().size());
        const QString listed = ListedName(name);
        if (name == listed || !files.contains(listed))
            files.insert(listed, file);
    }
    return files;
}

// The file of a language: the one of exactly this name, else the one that is
// listed under it. Empty when there is none.
QString languageFile(const QString& name) {
    const QString exact = name + suffix();
    const bool isInFolder = QFileInfo(exact).fileName() == exact;
    return isInFolder && QFileInfo(ProgramFile(exact)).isFile()
               ? exact
               : listedFiles().value(ListedName(name));
}

template <int size>
void readTable(const LngFile& file, const char* section, Table<std::string, size>& table) {
    for (int i = 1; i <= size; ++i)
        table(i) = ReadLngString(file, section, i, table(i));
}

void readMonths(const LngFile& file, const char* section, int c) {
    for (int month = 1; month <= 12; ++month)
        MonthNames(c, month) = ReadLngString(file, section, month, MonthNames(c, month));
}

void readTexts(const LngFile& file) {
    readTable(file, "CALENDARS", CalendarNames);
    readMonths(file, "JGMONTHS", Julian);
    readMonths(file, "JGMONTHS", Gregorian);
    readMonths(file, "JMONTHS", Jewish);
    AdarName = MonthNames(Jewish, 6);
    readMonths(file, "MMONTHS", Moslem);
    readTable(file, "WEEKDAYS", WeekDayNames);
    readTable(file, "WEEKDAYSABBR", WeekDayAbbrs);
    readTable(file, "LABELS", LabelTexts);
    readTable(file, "STRINGS", StringTexts);
    SelectedWord = ReadLngString(file, "SPEECH", 1, SelectedWord);
}

// Replaces the English texts by those of a language's file.
void readLanguage(std::string& name) {
    QString failure = Text(StringTexts(FileNotFoundText));
    const QString found = languageFile(Text(name));
    if (!found.isEmpty()) {
        const LngFile file(ProgramFile(found));
        if (file.ReadStatus() == LngFile::Status::Read)
            return readTexts(file);
        failure = file.ReadStatus() == LngFile::Status::TooLarge
                      ? QStringLiteral("The file is too large for a language file.")
                      : QStringLiteral("The file cannot be read.");
    }
    MsgBox(WithEmptyLine(ProgramFile(Told(Text(name)) + suffix()), failure));
    name = englishLanguage;
}

} // namespace

void LoadLanguage(std::string& name) {
    SetEnglishTexts();
    if (name != englishLanguage)
        readLanguage(name);
    Calc::ArrangeJewishNames();
}

std::string ReadLngString(const LngFile& file, const char* section, int key,
                          const std::string& whenAbsent) {
    const QByteArray bytes =
        file.GetPrivateProfileString(section, QByteArray::number(key), LngFile::bufferSize);
    if (bytes.isEmpty())
        return whenAbsent;
    QString text = file.Decode(bytes);
    while (text.endsWith(u' '))
        text.chop(1);
    return text.toStdString();
}

// By no language's own rules, so that a name is the same wherever it is read.
QString ListedName(QString name) {
    std::u32string letters = name.replace(largeDottedI, u'i').toLower().toStdU32String();
    if (!letters.empty())
        letters.front() = QChar::toUpper(letters.front());
    return QString::fromStdU32String(letters);
}

QStringList LanguageList() {
    return QStringList(Text(englishLanguage)) + listedFiles().keys();
}
