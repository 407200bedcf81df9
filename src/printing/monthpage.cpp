// SPDX-License-Identifier: MIT
#include "calc/calc.h"
#include "calc/state.h"
#include "changecals/moonage.h"
#include "platform/numbers.h"
#include "platform/text.h"
#include "printing/paperdays.h"
#include "printing/print.h"
#include "printing/sheet.h"
#include "shared/texts.h"

#include <QStringList>
#include <algorithm>

namespace {

using Printing::PaperDate;
using Printing::PaperDay;

// Sizes where all columns fit; where they do not, letters and gaps are smaller.
constexpr double letterSize = 8.5;
constexpr double headSize = 7;
constexpr double headLine = 8.2;  // of two
constexpr double gapInColumn = 4; // between figures and words
constexpr double leastGap = 9;    // between columns
constexpr double belowHead = 6;
constexpr double headHeight = 2 * headLine + belowHead;
constexpr double lineInRow = 0.66; // of its height, where the letters stand
constexpr double ruleThickness = 0.8;

// The longest month fills the page; weeks stand a part of a row apart.
constexpr int mostRows = 31;
constexpr int mostWeekGaps = 5;
constexpr double weekGap = 0.35;

/// A column: in every row a number, the last figures above each other, or words,
/// or words behind a number. The words are left out where no row has any.
struct Column {
    QStringList head;
    QStringList figures;
    QStringList words;
};

struct MonthOnPaper {
    QString title;
    QString subtitle;
    std::vector<Column> columns;
    qsizetype chosenRow;
    std::vector<bool> opensWeek; ///< of each row
};

/// Where a column stands. Figures with words behind them begin the column, figures
/// alone end it.
struct Place {
    double left;
    double width;
    double figuresLeft;
    double figuresWidth;
    double wordsLeft;
};

struct Measures {
    double scale; ///< of letters and of the gaps within columns
    std::vector<Place> places;
    double rowHeight;
};

double widest(const QStringList& texts, double size) {
    double width = 0;
    for (const QString& text : texts)
        width = std::max(width, Sheet::WidthOf(text, {size, true}));
    return width;
}

// In two lines where it has words enough, divided where that makes it narrowest, but
// not between brackets.
QStringList headOf(const QString& text) {
    const QStringList words = text.split(u' ');
    QStringList head{text};
    for (qsizetype above = 1; above < words.size() && !words[above - 1].startsWith(u'('); ++above) {
        const QStringList lines{words.first(above).join(u' '), words.sliced(above).join(u' ')};
        if (widest(lines, headSize) < widest(head, headSize))
            head = lines;
    }
    return head;
}

QString inFigures(int number) {
    return number == 0 ? QString() : QString::number(number);
}

Column weekdayColumn(const std::vector<PaperDay>& days) {
    Column column{headOf(Text(StringTexts(WeekDayText))), {}, {}};
    for (const PaperDay& day : days)
        column.words.append(Text(WeekDayNames(day.weekday)));
    return column;
}

Column dateColumn(const std::vector<PaperDay>& days, int c) {
    Column column{headOf(Text(CalendarNames(c))), {}, {}};
    for (const PaperDay& day : days) {
        const PaperDate& date = day.dates(c);
        column.figures.append(inFigures(date.day));
        column.words.append(date.day == 0 ? QString()
                                          : date.monthName + u' ' + QString::number(date.year));
    }
    return column;
}

// Of the name that says what the number and the number of days in the year are, the
// first half.
Column dayOfYearColumn(const std::vector<PaperDay>& days, int c) {
    Column column{headOf(Text(StringTexts(DayOfYearText)).section(u'/', 0, 0)), {}, {}};
    for (const PaperDay& day : days)
        column.figures.append(QString::number(day.dates(c).dayOfYear));
    return column;
}

Column julianDayColumn(const std::vector<PaperDay>& days) {
    Column column{headOf(Text(StringTexts(JulianDayText))), {}, {}};
    for (const PaperDay& day : days)
        column.figures.append(QString::number(day.julianDay));
    return column;
}

// The sign of the moon's quarter that falls on a day, by its age at noon; none on the
// days between.
QString signOfQuarter(double moonAge) {
    // The lit part is white as the paper is; the waxing moon is lit at the right.
    constexpr QChar signs[] = {u'\u25cf', u'\u25d0', u'\u25cb', u'\u25d1', u'\u25cf'};
    constexpr double quarter = ChangeCals::lunation / 4.0;
    for (int number = 0; number <= 4; ++number) {
        const double after = moonAge - number * quarter;
        if (after >= -0.5 && after < 0.5)
            return signs[number];
    }
    return {};
}

Column moonColumn(const std::vector<PaperDay>& days) {
    Column column{headOf(Text(StringTexts(MoonAgeText))), {}, {}};
    for (const PaperDay& day : days) {
        column.figures.append(FormatOneDecimal(day.moonAge));
        column.words.append(signOfQuarter(day.moonAge));
    }
    return column;
}

MonthOnPaper monthOf(int c) {
    const std::vector<int> calendars = Printing::CalendarsFrom(c);
    const int first = CurJD - CurDate(c, Day) + 1;
    const auto days = Printing::DaysBetween(first, first + MonthDays(c, CurDate(c, Month)) - 1);
    MonthOnPaper month{Printing::Titled(c, Printing::MonthsTouched(days, c)),
                       Printing::Joined(Printing::InOthers(
                           calendars, [&](int other) { return MonthsTouched(days, other); })),
                       {weekdayColumn(days)},
                       CurDate(c, Day) - 1,
                       {}};
    for (const int calendar : calendars)
        month.columns.push_back(dateColumn(days, calendar));
    month.columns.push_back(dayOfYearColumn(days, c));
    month.columns.push_back(julianDayColumn(days));
    month.columns.push_back(moonColumn(days));
    for (const PaperDay& day : days)
        month.opensWeek.push_back(day.weekday == Calc::WeekStart(c));
    return month;
}

bool isOfFigures(const Column& column) {
    return column.words.isEmpty();
}

// At the left edge of the page, in letters of the usual size.
Place placeOf(const Column& column) {
    const double figures = widest(column.figures, letterSize);
    const double words = widest(column.words, letterSize);
    const double gap = figures > 0 && words > 0 ? gapInColumn : 0;
    const double width = std::max(figures + gap + words, widest(column.head, headSize));
    const double figuresLeft = isOfFigures(column) ? width - figures : 0;
    return {0, width, figuresLeft, figures, figures + gap};
}

double totalWidth(const std::vector<Place>& places) {
    double width = 0;
    for (const Place& place : places)
        width += place.width;
    return width;
}

// The columns share the width of the page.
Measures measuresOf(const MonthOnPaper& month, const Sheet& sheet, double top) {
    std::vector<Place> places;
    places.reserve(month.columns.size());
    for (const Column& column : month.columns)
        places.push_back(placeOf(column));
    const auto gaps = static_cast<double>(places.size() - 1);
    const double scale = std::min(1.0, (sheet.Width() - gaps * leastGap) / totalWidth(places));
    const double gap = (sheet.Width() - totalWidth(places) * scale) / gaps;
    double left = 0;
    for (Place& place : places) {
        place = {left, place.width * scale, left + place.figuresLeft * scale,
                 place.figuresWidth * scale, left + place.wordsLeft * scale};
        left += place.width + gap;
    }
    return {scale, places, (sheet.Height() - top) / (mostRows + mostWeekGaps * weekGap)};
}

void writeHeads(const Sheet& sheet, const MonthOnPaper& month, const Measures& measures,
                double bottom) {
    for (std::size_t at = 0; at < month.columns.size(); ++at) {
        const Column& column = month.columns[at];
        const Place& place = measures.places[at];
        double top = bottom - static_cast<double>(column.head.size()) * headLine;
        for (const QString& line : column.head) {
            sheet.Write({place.left, top, place.width, headLine}, line, {headSize * measures.scale},
                        isOfFigures(column) ? Qt::AlignRight : Qt::AlignLeft);
            top += headLine;
        }
    }
}

void writeRow(const Sheet& sheet, const MonthOnPaper& month, const Measures& measures, double top,
              qsizetype row) {
    const Sheet::Letters letters{letterSize * measures.scale, row == month.chosenRow};
    const double height = measures.rowHeight * lineInRow;
    for (std::size_t at = 0; at < month.columns.size(); ++at) {
        const Column& column = month.columns[at];
        const Place& place = measures.places[at];
        sheet.WriteFigures({place.figuresLeft, top, place.figuresWidth, height},
                           column.figures.value(row), letters);
        sheet.Write({place.wordsLeft, top, place.left + place.width - place.wordsLeft, height},
                    column.words.value(row), letters);
    }
}

void writeMonth(const Sheet& sheet, const MonthOnPaper& month) {
    double top = sheet.WriteHeading(month.title, month.subtitle) + headHeight;
    const Measures measures = measuresOf(month, sheet, top);
    writeHeads(sheet, month, measures, top - belowHead);
    sheet.DrawRule(0, sheet.Width(), top, ruleThickness);
    for (std::size_t row = 0; row < month.opensWeek.size(); ++row) {
        if (row != 0 && month.opensWeek[row])
            top += weekGap * measures.rowHeight;
        writeRow(sheet, month, measures, top, static_cast<qsizetype>(row));
        top += measures.rowHeight;
    }
    sheet.DrawRule(0, sheet.Width(), top, ruleThickness);
}

} // namespace

Printing::Page Printing::MonthPage(int c) {
    const MonthOnPaper month = monthOf(c);
    return {month.title, [month](const Sheet& sheet) { writeMonth(sheet, month); }};
}
