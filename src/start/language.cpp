// SPDX-License-Identifier: MIT
#include "start/language.h"

#include "platform/message.h"
#include "platform/numbers.h"
#include "platform/profile.h"
#include "platform/program.h"
#include "platform/text.h"
#include "shared/settings.h"
#include "shared/texts.h"
#include "start/english.h"

#include <QDir>

namespace {

constexpr int bufferSize = 255; // bytes of an entry, a final NUL included

QString suffix() {
    return QStringLiteral(".lng");
}

QStringList languageFiles() {
    return QDir(ProgramFolder())
        .entryList({u'*' + suffix()}, QDir::Files, QDir::Name | QDir::IgnoreCase);
}

// The file of a language: the one of exactly this name, else one that differs in
// case only. Empty when there is none.
QString languageFile(const QString& name) {
    QString wanted = name + suffix();
    const QStringList files = languageFiles();
    if (files.contains(wanted))
        return wanted;
    for (const QString& file : files) {
        if (file.compare(wanted, Qt::CaseInsensitive) == 0)
            return file;
    }
    return {};
}

template <int size>
void readTable(const ProfileFile& file, const char* section, Table<std::string, size>& table) {
    for (int i = 1; i <= size; ++i)
        table(i) = ReadLngString(file, section, i, table(i));
}

void readMonths(const ProfileFile& file, const char* section, int c) {
    for (int month = 1; month <= 12; ++month)
        MonthNames(c, month) = ReadLngString(file, section, month, MonthNames(c, month));
}

void readTexts(const ProfileFile& file) {
    readTable(file, "CALENDARS", CalendarNames);
    readMonths(file, "JGMONTHS", Julian);
    for (int month = 1; month <= 12; ++month)
        MonthNames(Gregorian, month) = MonthNames(Julian, month);
    readMonths(file, "JMONTHS", Jewish);
    AdarName = MonthNames(Jewish, 6);
    readMonths(file, "MMONTHS", Moslem);
    readTable(file, "WEEKDAYS", WeekDayNames);
    readTable(file, "WEEKDAYSABBR", WeekDayAbbrs);
    readTable(file, "LABELS", LabelTexts);
    readTable(file, "STRINGS", StringTexts);
}

void tellAndFallBack(const QString& path, const QString& what, std::string& name) {
    MsgBox(WithEmptyLine(path, what));
    name = englishLanguage;
}

} // namespace

void LoadLanguage(std::string& name) {
    SetEnglishTexts();
    if (name == englishLanguage)
        return;
    const QString asked = ProgramFile(Text(name) + suffix());
    const QString found = languageFile(Text(name));
    if (found.isEmpty()) {
        tellAndFallBack(asked, Text(StringTexts(FileNotFoundText)), name);
        return;
    }
    const ProfileFile file(ProgramFile(found));
    switch (file.ReadStatus()) {
    case ProfileFile::Status::Read:
        readTexts(file);
        break;
    case ProfileFile::Status::Unreadable:
        tellAndFallBack(asked, QStringLiteral("The file cannot be read."), name);
        break;
    case ProfileFile::Status::TooLarge:
        tellAndFallBack(asked, QStringLiteral("The file is too large for a language file."), name);
        break;
    }
}

std::string ReadLngString(const ProfileFile& file, const char* section, int key,
                          const std::string& standard) {
    const QByteArray bytes = file.GetPrivateProfileString(section, Str(key).toUtf8(), bufferSize);
    if (bytes.isEmpty())
        return standard;
    QString text = file.Decode(bytes);
    while (text.endsWith(u' '))
        text.chop(1);
    return text.toStdString();
}

QStringList LanguageList() {
    QStringList languages{Text(englishLanguage)};
    for (const QString& file : languageFiles()) {
        const QString name = file.chopped(suffix().size());
        languages.append(name.left(1).toUpper() + name.mid(1).toLower());
    }
    return languages;
}
