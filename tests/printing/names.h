// SPDX-License-Identifier: MIT
// The names that pages in a language should show, taken from its file.
#pragma once

#include "calc/calc.h"
#include "shared/english.h"
#include "shared/texts.h"

#include <QFile>
#include <QMap>
#include <QString>
#include <gtest/gtest.h>

class Names {
public:
    explicit Names(const QString& language) : m_english(language == QStringLiteral("English")) {
        if (m_english)
            readEnglish();
        else
            readFile(QStringLiteral(LANGUAGES_DIR "/%1.lng").arg(language));
    }

    QString Calendar(int c) const { return at("CALENDARS", c); }
    QString Weekday(int weekday) const { return at("WEEKDAYS", weekday); }
    QString WeekdayAbbr(int weekday) const { return at("WEEKDAYSABBR", weekday); }
    QString String(int text) const { return at("STRINGS", text); }

    /// Of a year of 12 or 13 months.
    QString Month(int c, int month, int months) const {
        if (c == Julian || c == Gregorian)
            return at("JGMONTHS", month);
        if (c == Moslem)
            return at("MMONTHS", month);
        if (months == 12 || month < 6)
            return at("JMONTHS", month);
        if (month <= 7)
            return at("JMONTHS", 6) + (month == 6 ? QStringLiteral(" I") : QStringLiteral(" II"));
        return at("JMONTHS", month - 1);
    }

    /// Makes it the program's language.
    void Choose() const {
        SetEnglishTexts();
        for (int c = 1; c <= calendarCount; ++c) {
            CalendarNames(c) = Calendar(c).toStdString();
            for (int month = 1; month <= 12; ++month)
                MonthNames(c, month) = Month(c, month, 12).toStdString();
        }
        AdarName = MonthNames(Jewish, 6);
        for (int weekday = 1; weekday <= 7; ++weekday) {
            WeekDayNames(weekday) = Weekday(weekday).toStdString();
            WeekDayAbbrs(weekday) = WeekdayAbbr(weekday).toStdString();
        }
        for (const int text : {DayOfYearText, WeekDayText, MoonAgeText, JulianDayText})
            StringTexts(text) = String(text).toStdString();
        Calc::ArrangeJewishNames();
    }

private:
    QString at(const char* section, int number) const {
        const QString key = QStringLiteral("%1/%2").arg(QLatin1String(section)).arg(number);
        EXPECT_TRUE(m_texts.contains(key)) << key.toStdString();
        return m_texts.value(key);
    }

    void put(const QString& section, const QStringList& texts) {
        for (int number = 1; number <= texts.size(); ++number)
            m_texts[QStringLiteral("%1/%2").arg(section).arg(number)] = texts[number - 1];
    }

    void putWords(const char* section, const char* words) {
        put(QLatin1String(section), QString::fromUtf8(words).split(u','));
    }

    void readEnglish() {
        putWords("CALENDARS", "Julian calendar,Gregorian calendar,Jewish calendar,Moslem calendar");
        putWords("JGMONTHS", "January,February,March,April,May,June,July,August,September,"
                             "October,November,December");
        putWords("JMONTHS", "Tishri,Heshvan,Kislev,Tevet,Shevat,Adar,Nisan,Iyar,Sivan,Tammuz,Av,"
                            "Elul");
        putWords("MMONTHS", "Muharram,Safar,Rabi I,Rabi II,Jumada I,Jumada II,Rajab,Sha‘ban,"
                            "Ramadan,Shawwal,Dhuґl-Qa‘dah,Dhuґl-Hijjah");
        putWords("WEEKDAYS", "Monday,Tuesday,Wednesday,Thursday,Friday,Saturday,Sunday");
        putWords("WEEKDAYSABBR", "Mo,Tu,We,Th,Fr,Sa,Su");
        put(QStringLiteral("STRINGS"),
            {{},
             {},
             {},
             {},
             QStringLiteral("Year day number/Number of days in the year"),
             {},
             QStringLiteral("Week day"),
             QStringLiteral("Moon age (in days)"),
             QStringLiteral("Julian Day")});
    }

    void readFile(const QString& path) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
        QString section;
        for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n')) {
            const QString text = line.trimmed();
            if (text.startsWith(u'['))
                section = text.mid(1, text.size() - 2);
            else if (text.contains(u'='))
                m_texts[section + u'/' + text.section(u'=', 0, 0)] = text.section(u'=', 1);
        }
    }

    bool m_english;
    QMap<QString, QString> m_texts;
};
