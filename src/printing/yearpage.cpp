// SPDX-License-Identifier: MIT
#include "calc/calc.h"
#include "calc/state.h"
#include "platform/text.h"
#include "printing/paperdays.h"
#include "printing/print.h"
#include "printing/sheet.h"
#include "shared/texts.h"

#include <QStringList>

namespace {

using Printing::PaperDay;

constexpr int blocksInBand = 3;
constexpr int weeksInBlock = 6;
constexpr double gapBeside = 16;
constexpr double gapBelow = 11;

constexpr Sheet::Letters nameLetters{10.5, true};
constexpr double nameHeight = 9;
constexpr Sheet::Letters lineLetters{6};
constexpr double lineHeight = 8;
constexpr double aboveBlockRule = 4;
constexpr double belowBlockRule = 3;
constexpr double blockTitleHeight =
    nameHeight + (calendarCount - 1) * lineHeight + aboveBlockRule + belowBlockRule;
constexpr Sheet::Letters weekdayLetters{6};
constexpr double weekdayWidth = 17;

// Of a row's height, which is less where thirteen months have to fit: where day and
// small figures stand. They are nearer to each other than to the next row's.
constexpr double dayBottom = 0.45;
constexpr double smallBottom = 0.79;
constexpr double dayLetters = 0.52;
constexpr double smallLetters = 0.33;

struct MonthBlock {
    QString name;
    QStringList lines; ///< the months of each other calendar
    int leadingBlanks;
    std::vector<PaperDay> days;
};

struct YearOnPaper {
    QString title;
    QString subtitle;
    int calendar;
    int other; ///< the calendar of the small figures
    QStringList weekdays;
    std::vector<MonthBlock> months;
};

/// What the page leaves for a block.
struct BlockMeasures {
    double width;
    double rowHeight;

    double Height() const { return blockTitleHeight + daysInWeek * rowHeight; }
};

MonthBlock blockOf(const std::vector<int>& calendars, std::span<const PaperDay> yearDays,
                   int month) {
    const int c = calendars.front();
    const auto before = static_cast<std::size_t>(Calc::DayOfYear(c, month, 0));
    const auto days = yearDays.subspan(before, static_cast<std::size_t>(MonthDays(c, month)));
    return {Text(MonthNames(c, month)),
            Printing::InOthers(calendars,
                               [days](int other) { return Printing::MonthsTouched(days, other); }),
            Calc::LeadingBlanks(c, month),
            {days.begin(), days.end()}};
}

YearOnPaper yearOf(int c) {
    const std::vector<int> calendars = Printing::CalendarsFrom(c);
    const auto days = Printing::DaysBetween(YearJD(c, FirstDay), YearJD(c, LastDay));
    const auto yearsIn = [&days](int other) {
        const QString years = Printing::YearsTouched(days, other);
        return years.isEmpty() ? years : Printing::Titled(other, years);
    };
    YearOnPaper year{Printing::Titled(c, QString::number(CurDate(c, Year))),
                     Printing::Joined(Printing::InOthers(calendars, yearsIn)),
                     c,
                     calendars[1],
                     {},
                     {}};
    for (int row = 0; row < daysInWeek; ++row)
        year.weekdays.append(Text(WeekDayAbbrs(Calc::WeekdayOfRow(c, row))));
    for (int month = 1; month <= Calc::MonthsInYear(c); ++month)
        year.months.push_back(blockOf(calendars, days, month));
    return year;
}

BlockMeasures measuresOf(const YearOnPaper& year, const Sheet& sheet, double top) {
    const auto bands = (static_cast<int>(year.months.size()) + blocksInBand - 1) / blocksInBand;
    const double height = (sheet.Height() - top + gapBelow) / bands - gapBelow;
    return {(sheet.Width() + gapBeside) / blocksInBand - gapBeside,
            (height - blockTitleHeight) / daysInWeek};
}

void writeTitle(const Sheet& sheet, QPointF corner, const BlockMeasures& measures,
                const MonthBlock& month) {
    sheet.Write({corner, QSizeF(measures.width, nameHeight)}, month.name, nameLetters);
    double top = corner.y() + nameHeight;
    for (const QString& line : month.lines) {
        sheet.Write({corner.x(), top, measures.width, lineHeight}, line, lineLetters);
        top += lineHeight;
    }
    sheet.DrawRule(corner.x(), corner.x() + measures.width,
                   corner.y() + blockTitleHeight - belowBlockRule, 0.4);
}

// In the middle of the cell, the figures of all days above each other.
void writeDay(const Sheet& sheet, const QRectF& cell, const YearOnPaper& year,
              const PaperDay& day) {
    const double height = cell.height();
    const double width = Sheet::WidthOf(QStringLiteral("00"), {height * dayLetters});
    const double left = cell.center().x() - width / 2;
    sheet.WriteFigures({left, cell.top(), width, height * dayBottom},
                       QString::number(day.dates(year.calendar).day), {height * dayLetters});
    const int other = day.dates(year.other).day;
    if (other != 0)
        sheet.WriteFigures({left, cell.top(), width, height * smallBottom}, QString::number(other),
                           {height * smallLetters, other == 1});
}

void writeBlock(const Sheet& sheet, QPointF corner, const BlockMeasures& measures,
                const YearOnPaper& year, const MonthBlock& month) {
    writeTitle(sheet, corner, measures, month);
    const double top = corner.y() + blockTitleHeight;
    for (int row = 0; row < daysInWeek; ++row)
        sheet.Write({corner.x(), top + row * measures.rowHeight, weekdayWidth,
                     measures.rowHeight * dayBottom},
                    year.weekdays[row], weekdayLetters);
    const double width = (measures.width - weekdayWidth) / weeksInBlock;
    int place = month.leadingBlanks;
    for (const PaperDay& day : month.days) {
        const int week = place / daysInWeek;
        const int row = place % daysInWeek;
        writeDay(sheet,
                 {corner.x() + weekdayWidth + week * width, top + row * measures.rowHeight, width,
                  measures.rowHeight},
                 year, day);
        ++place;
    }
}

void writeYear(const Sheet& sheet, const YearOnPaper& year) {
    const double top = sheet.WriteHeading(year.title, year.subtitle);
    const BlockMeasures measures = measuresOf(year, sheet, top);
    int place = 0;
    for (const MonthBlock& month : year.months) {
        const int band = place / blocksInBand;
        const QPointF corner(place % blocksInBand * (measures.width + gapBeside),
                             top + band * (measures.Height() + gapBelow));
        writeBlock(sheet, corner, measures, year, month);
        ++place;
    }
}

} // namespace

Printing::Page Printing::YearPage(int c) {
    const YearOnPaper year = yearOf(c);
    return {year.title, [year](const Sheet& sheet) { writeYear(sheet, year); }};
}
