// SPDX-License-Identifier: MIT
// What the user guide says of days, weeks and the moon, held against the program.
#include "calc/range.h"
#include "changecals/changecals.h"
#include "changecals/moonage.h"
#include "moon/moonpicture.h"
#include "platform/numbers.h"
#include "platform/text.h"
#include "settings/settingstable.h"
#include "support/widget_test.h"

#include <QFile>
#include <QImage>
#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <vector>

namespace {

using Row = std::vector<QString>;

struct GuideTable {
    Row titles;
    std::vector<Row> rows;
};

Row cellsOf(const QString& line) {
    Row cells;
    const QStringList parts = line.split(u'|');
    for (qsizetype i = 1; i + 1 < parts.size(); ++i)
        cells.push_back(parts[i].trimmed());
    return cells;
}

QString guide() {
    QFile file(QStringLiteral(DOCS_DIR "/user-guide.md"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return QString::fromUtf8(file.readAll());
}

std::vector<GuideTable> guideTables() {
    std::vector<GuideTable> tables;
    bool inTable = false;
    for (const QString& line : guide().split(u'\n')) {
        const bool isRow = line.startsWith(u'|');
        if (isRow && !inTable)
            tables.push_back({cellsOf(line), {}});
        else if (isRow && !line.startsWith(QStringLiteral("|--")))
            tables.back().rows.push_back(cellsOf(line));
        inTable = isRow;
    }
    return tables;
}

std::vector<GuideTable> tablesWith(const QString& firstTitle) {
    std::vector<GuideTable> tables = guideTables();
    std::erase_if(tables, [&](const GuideTable& table) { return table.titles[0] != firstTitle; });
    EXPECT_FALSE(tables.empty()) << firstTitle.toStdString();
    return tables;
}

QString date(int c) {
    return QStringLiteral("%1 %2 %3")
        .arg(CurDate(c, Day))
        .arg(Text(MonthNames(c, CurDate(c, Month))))
        .arg(CurDate(c, Year));
}

void setMoslemType(int type) {
    MoslemType = type;
    Calc::SetMoslemType();
    Calc::JDToMoslem();
}

QString moslemDate(int type) {
    setMoslemType(type);
    return date(Moslem);
}

QString weekFrom(int weekday) {
    FirstWeekDay(Gregorian) = weekday;
    Calc::SetWeeks(Gregorian);
    return QStringLiteral("%1/%2")
        .arg(CurDate(Gregorian, WeekNumber))
        .arg(YearDays(Gregorian, WeeksInYear));
}

/// As the list of the monthly window has it.
QString moonAge() {
    return FormatOneDecimal(MoonAge).remove(QStringLiteral(".0"));
}

/// What the program says of the chosen day, by the titles of the guide's columns.
const std::map<QString, std::function<QString()>> columns{
    {QStringLiteral("Weekday"), [] { return Text(WeekDayNames(WeekDayNo)); }},
    {QStringLiteral("Julian"), [] { return date(Julian); }},
    {QStringLiteral("Gregorian"), [] { return date(Gregorian); }},
    {QStringLiteral("Jewish"), [] { return date(Jewish); }},
    {QStringLiteral("Moslem, from 15 July 622"), [] { return moslemDate(1); }},
    {QStringLiteral("Moslem, from 16 July 622"), [] { return moslemDate(2); }},
    {QStringLiteral("Week from Monday"), [] { return weekFrom(Monday); }},
    {QStringLiteral("Week from Sunday"), [] { return weekFrom(Sunday); }},
    {QStringLiteral("Moon's age"), moonAge}};

/// Where the guide tells of the sky and of books, which the program does not know.
const QString sky = QStringLiteral("in the sky");
const QString book = QStringLiteral("in a book");

class Guide : public WidgetTest {
protected:
    Guide() { startToday(); }

    static void choose(const QString& day) {
        CurJD = day.toInt();
        ChangeCals::ChangeJD();
    }
};

void expectRow(const Row& titles, const Row& row) {
    ASSERT_EQ(row.size(), titles.size()) << row[0].toStdString();
    for (std::size_t i = 1; i < row.size(); ++i) {
        if (titles[i] == sky || titles[i] == book)
            continue;
        const auto column = columns.find(titles[i]);
        ASSERT_NE(column, columns.end()) << titles[i].toStdString();
        EXPECT_EQ(column->second().toStdString(), row[i].toStdString())
            << titles[0].toStdString() << ' ' << row[0].toStdString();
    }
}

TEST_F(Guide, TellsEveryDayAsTheProgramDoes) {
    for (const GuideTable& table : tablesWith(QStringLiteral("Julian Day"))) {
        for (const Row& row : table.rows) {
            choose(row[0]);
            expectRow(table.titles, row);
        }
    }
}

TEST_F(Guide, HasAnExampleUnderEveryHeadingOfItsChaptersOnCalendars) {
    const QString chapters = guide().section(QStringLiteral("\n## Which calendars these are\n"), 1);
    EXPECT_TRUE(chapters.contains(QStringLiteral("\n## Dates in books\n")));
    const QStringList sections = chapters.split(QStringLiteral("\n### ")).mid(1);
    EXPECT_FALSE(sections.isEmpty());
    for (const QString& section : sections)
        EXPECT_TRUE(section.contains(QStringLiteral("\n| Julian Day |"))) << section.toStdString();
}

/// The calendar that a row of the table of ranges speaks of.
int calendarOf(const QString& name) {
    for (int c = Julian; c <= Moslem; ++c) {
        const QString full = Text(CalendarNames(c));
        if (full.startsWith(name.section(u',', 0, 0)))
            return c;
    }
    ADD_FAILURE() << name.toStdString();
    return Julian;
}

TEST_F(Guide, TellsTheRangesOfTheCalendars) {
    const GuideTable table = tablesWith(QStringLiteral("calendar")).at(0);
    EXPECT_GE(table.rows.size(), static_cast<std::size_t>(calendarCount));
    for (const Row& row : table.rows) {
        const int c = calendarOf(row[0]);
        setMoslemType(row[0].endsWith(QStringLiteral("16 July 622")) ? 2 : 1);
        const QStringList days = row[3].split(QStringLiteral(" to "));
        EXPECT_EQ(days[0].toInt(), MinJD(c)) << row[0].toStdString();
        EXPECT_EQ(days[1].toInt(), MaxJD(c)) << row[0].toStdString();
        choose(days[0]);
        EXPECT_EQ(date(c).toStdString(), row[1].toStdString());
        choose(days[1]);
        EXPECT_EQ(date(c).toStdString(), row[2].toStdString());
    }
}

/// The names that stand in a cell between backquotes.
QStringList namesIn(const QString& cell) {
    QStringList names;
    const QStringList parts = cell.split(u'`');
    for (qsizetype i = 1; i < parts.size(); i += 2)
        names.append(parts[i]);
    return names;
}

/// The standards of all settings by section and key, as the guide tells them: a
/// row has one for all of its keys, or one for each.
std::map<QString, QString> toldStandards() {
    std::map<QString, QString> standards;
    const GuideTable table = tablesWith(QStringLiteral("section")).at(0);
    for (const Row& row : table.rows) {
        const QStringList keys = namesIn(row[1]);
        const QStringList told = QString(row[3]).remove(u'`').split(QStringLiteral(", "));
        for (const QString& section : namesIn(row[0])) {
            for (qsizetype i = 0; i < keys.size(); ++i)
                standards[section + u'/' + keys[i]] = told[std::min(i, told.size() - 1)];
        }
    }
    return standards;
}

TEST_F(Guide, TellsEverySettingWithItsStandard) {
    std::map<QString, QString> told = toldStandards();
    for (const Setting& setting : Settings()) {
        const QString name = setting.section + u'/' + setting.key;
        const bool isText = std::holds_alternative<std::string*>(setting.value);
        const QString standard = isText ? told[name] : told[name].section(u' ', 0, 0);
        EXPECT_EQ(standard.toStdString(), setting.whenAbsent.toStdString()) << name.toStdString();
        told.erase(name);
    }
    for (const auto& [name, standard] : told)
        ADD_FAILURE() << name.toStdString() << " is no setting";
}

/// Pixels of the disc that no shadow covers.
int litPixels(float age) {
    MoonPicture picture(QStringLiteral("Picture1"), nullptr);
    picture.resize(280, 280);
    picture.SetPicture({}); // the plain disc
    picture.SetShadow(ShadowOf(age, picture.Width(), picture.Height()));
    const QImage image = picture.grab().toImage();
    int lit = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            lit += qGray(image.pixel(x, y)) > 128 ? 1 : 0;
    }
    return lit;
}

TEST_F(Guide, TellsHowMuchOfTheMoonIsLitInThePicture) {
    const int disc = litPixels(ChangeCals::lunation / 2);
    const GuideTable table = tablesWith(QStringLiteral("Moon's age")).at(0);
    ASSERT_EQ(table.titles[1], QStringLiteral("in the picture"));
    for (const Row& row : table.rows) {
        const double lit = static_cast<double>(litPixels(row[0].toFloat())) / disc;
        EXPECT_NEAR(lit, row[1].toDouble(), 0.01) << row[0].toStdString();
    }
}

// Half the cosine of the way round: what a sphere lit from far away shows.
TEST_F(Guide, TellsHowMuchOfTheMoonIsLitInTheSky) {
    const GuideTable table = tablesWith(QStringLiteral("Moon's age")).at(0);
    ASSERT_EQ(table.titles[2], sky);
    for (const Row& row : table.rows) {
        const double turn = row[0].toDouble() / 29.530588;
        const double lit = (1 - std::cos(2 * M_PI * turn)) / 2;
        EXPECT_NEAR(lit, row[2].toDouble(), 0.005) << row[0].toStdString();
    }
}

} // namespace
