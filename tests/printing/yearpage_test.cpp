// SPDX-License-Identifier: MIT
#include "printing/printing_test.h"

#include <algorithm>
#include <map>

namespace {

constexpr int blocksInBand = 3;

/// A number in a cell of the page: the band of months and the row of the weekday,
/// the block in the band and the week in the block, from where lines begin.
struct Cell {
    int band;
    int weekday;
    int block;
    int week;
    auto operator<=>(const Cell& other) const = default;
};

using Cells = std::map<Cell, int>;

std::ostream& operator<<(std::ostream& out, const Cell& cell) {
    return out << "band " << cell.band << ", row " << cell.weekday << ", block " << cell.block
               << ", week " << cell.week;
}

constexpr double same = 0.3; // points

/// The first of each group of values that are the same.
std::vector<double> differentOf(std::vector<double> values) {
    std::ranges::sort(values);
    std::vector<double> different;
    for (std::size_t at = 0; at < values.size(); ++at) {
        if (at == 0 || values[at] - values[at - 1] > same)
            different.push_back(values[at]);
    }
    return different;
}

/// The position of a value among those that differ from it.
int rankOf(double value, const std::vector<double>& different) {
    const auto above = std::ranges::upper_bound(different, value + same);
    return static_cast<int>(above - different.begin()) - 1;
}

/// The numbers of a year's page that have letters of one size, in their cells.
class NumbersOnPage {
public:
    NumbersOnPage(const std::vector<Word>& words, double width, bool rightToLeft)
        : m_width(width), m_rightToLeft(rightToLeft) {
        std::map<int, std::vector<Word>> bySize;
        for (const Word& word : words) {
            if (QRegularExpression(QStringLiteral("^[0-9]{1,2}$")).match(word.text).hasMatch())
                bySize[qRound(word.room.height() * 10)].push_back(word);
        }
        for (const auto& [size, group] : bySize)
            m_groups.push_back(group);
        std::ranges::sort(m_groups, std::greater(), &std::vector<Word>::size);
    }

    /// The two sizes of which there are most: of the days, and the small ones.
    Cells Days() const { return numbersOf(DayWords()); }
    Cells Small() const { return numbersOf(SmallWords()); }
    std::map<Cell, Word> DayWords() const {
        return inCells(std::max(m_groups[0], m_groups[1], isSmaller));
    }
    std::map<Cell, Word> SmallWords() const {
        return inCells(std::min(m_groups[0], m_groups[1], isSmaller));
    }

private:
    static bool isSmaller(const std::vector<Word>& one, const std::vector<Word>& other) {
        return one.front().room.height() < other.front().room.height();
    }

    // Figures end at the same place of their cells, wherever lines begin.
    double placeOf(const Word& word) const {
        return m_rightToLeft ? m_width - word.room.right() : word.room.right();
    }

    int blockOf(const Word& word) const {
        constexpr double margin = 40;
        return static_cast<int>((placeOf(word) - margin) / (m_width - 2 * margin) * blocksInBand);
    }

    static Cells numbersOf(const std::map<Cell, Word>& words) {
        Cells numbers;
        for (const auto& [cell, word] : words)
            numbers[cell] = word.text.toInt();
        return numbers;
    }

    std::map<Cell, Word> inCells(const std::vector<Word>& words) const {
        std::vector<double> rows;
        std::vector<double> columns[blocksInBand];
        for (const Word& word : words) {
            rows.push_back(word.room.top());
            columns[blockOf(word)].push_back(placeOf(word));
        }
        rows = differentOf(rows);
        for (std::vector<double>& places : columns)
            places = differentOf(places);
        std::map<Cell, Word> cells;
        for (const Word& word : words) {
            const int row = rankOf(word.room.top(), rows);
            const int block = blockOf(word);
            const Cell cell{row / 7, row % 7, block, rankOf(placeOf(word), columns[block])};
            EXPECT_FALSE(cells.contains(cell)) << cell;
            cells[cell] = word;
        }
        return cells;
    }

    double m_width;
    bool m_rightToLeft;
    std::vector<std::vector<Word>> m_groups;
};

/// What the page of a year should say, by its own reckoning.
class YearJudge {
public:
    explicit YearJudge(const PageCase& page)
        : m_page(page),
          m_rules(page.moslemType),
          m_other(page.calendar == Julian ? Gregorian : Julian) {}

    int Months() const { return m_rules.MonthsIn(m_page.calendar, m_page.year); }

    /// The days of the year, and those of the first other calendar.
    Cells Days() const { return cells(m_page.calendar); }
    Cells Small() const { return cells(m_other); }

    /// What stands above a month's days.
    QString Title(int month) const {
        const Names names(m_page.language);
        QStringList parts{names.Month(m_page.calendar, month, Months())};
        for (int c = 1; c <= calendarCount; ++c) {
            if (c != m_page.calendar)
                parts.append(touched(c, month, names));
        }
        return parts.join(u' ').simplified();
    }

private:
    int firstDay(int month) const {
        return m_rules.DayOf(m_page.calendar, {1, month, m_page.year});
    }

    int daysIn(int month) const { return m_rules.DaysInMonth(m_page.calendar, m_page.year, month); }

    Cells cells(int c) const {
        Cells cells;
        for (int month = 1; month <= Months(); ++month) {
            const int first = firstDay(month);
            const int blanks = (Reckoning::WeekdayOf(first) - m_page.firstWeekDay + 7) % 7;
            for (int day = 0; day < daysIn(month); ++day) {
                const Cell cell{(month - 1) / blocksInBand, (blanks + day) % 7,
                                (month - 1) % blocksInBand, (blanks + day) / 7};
                if (m_rules.Shows(c, first + day))
                    cells[cell] = m_rules.DateOf(c, first + day).day;
            }
        }
        return cells;
    }

    QString touched(int c, int month, const Names& names) const {
        int first = firstDay(month);
        int last = first + daysIn(month) - 1;
        while (first <= last && !m_rules.Shows(c, first))
            ++first;
        while (first <= last && !m_rules.Shows(c, last))
            --last;
        if (first > last)
            return {};
        const auto nameOf = [&](const Reckoning::Date& date) {
            return names.Month(c, date.month, m_rules.MonthsIn(c, date.year));
        };
        const Reckoning::Date from = m_rules.DateOf(c, first);
        const Reckoning::Date to = m_rules.DateOf(c, last);
        const QString end = QStringLiteral("%1 %2").arg(nameOf(to)).arg(to.year);
        if (from.year != to.year)
            return QStringLiteral("%1 %2 – %3").arg(nameOf(from)).arg(from.year).arg(end);
        return from.month == to.month ? end : QStringLiteral("%1 – %2").arg(nameOf(from), end);
    }

    PageCase m_page;
    Reckoning m_rules;
    int m_other;
};

class YearPages : public PrintingTest, public testing::WithParamInterface<PageCase> {
protected:
    static bool isRightToLeft() { return Names(GetParam().language).Calendar(1).isRightToLeft(); }

    static double paperWidth() {
        return QPageSize(GetParam().paper).size(QPageSize::Point).width();
    }

    void printYear() {
        choose(GetParam());
        print(Printing::YearPage(GetParam().calendar), GetParam().paper);
    }
};

TEST_P(YearPages, HaveEveryDayInItsCell) {
    printYear();
    const YearJudge judge(GetParam());
    const NumbersOnPage numbers(words(), paperWidth(), isRightToLeft());
    EXPECT_EQ(numbers.Days(), judge.Days());
    if (!judge.Small().empty()) {
        EXPECT_EQ(numbers.Small(), judge.Small());
    }
}

INSTANTIATE_TEST_SUITE_P(
    , YearPages,
    testing::Values(
        PageCase{Jewish, 5787}, PageCase{Jewish, 5787, 1, hebrew, QPageSize::Letter, 1, Monday},
        PageCase{Jewish, 5786, 1, german}, PageCase{Jewish, 5785}, PageCase{Jewish, 6761},
        PageCase{Jewish, 5790, 1, persian, QPageSize::A4, 2, Saturday},
        PageCase{Gregorian, 2026, 1, english, QPageSize::Letter, 1, Tuesday},
        PageCase{Gregorian, 2024, 1, german, QPageSize::A4, 2, Wednesday},
        PageCase{Gregorian, 1900, 1, persian, QPageSize::A4, 1, Thursday}, PageCase{Gregorian, 1},
        PageCase{Gregorian, 3000}, PageCase{Julian, 1900, 1, hebrew, QPageSize::A4, 1, Friday},
        PageCase{Julian, 1}, PageCase{Julian, 3000, 1, german, QPageSize::Letter},
        PageCase{Moslem, 1448}, PageCase{Moslem, 1446, 1, persian, QPageSize::Letter, 2},
        PageCase{Moslem, 1}, PageCase{Moslem, 1, 1, hebrew, QPageSize::A4, 2},
        PageCase{Moslem, 2452, 1, english, QPageSize::A4, 2}));

/// Of pages from left to right, whose words the reader does not break apart.
class TitlesOfMonths : public YearPages {
protected:
    /// The words in a band above its days and in one block, line by line, without
    /// the points between the calendars.
    static QString titleIn(std::vector<Word> words, QRectF place) {
        std::erase_if(words, [&](const Word& word) {
            return !place.contains(word.room.center()) || word.text == QStringLiteral("·");
        });
        std::ranges::sort(words, {}, [](const Word& word) {
            return std::pair(qRound(word.room.bottom()), word.room.left());
        });
        QStringList texts;
        for (const Word& word : words)
            texts.append(word.text);
        return texts.join(u' ');
    }

    /// Where the weekdays' names stand that open the blocks.
    std::vector<QPointF> corners(const std::vector<Word>& words) const {
        const QString first = Names(GetParam().language).WeekdayAbbr(GetParam().firstWeekDay);
        std::vector<QPointF> found;
        for (const Word& word : words) {
            if (word.text == first)
                found.push_back(word.room.topLeft());
        }
        return found;
    }
};

TEST_P(TitlesOfMonths, NameTheMonthsOfTheOtherCalendars) {
    printYear();
    const YearJudge judge(GetParam());
    const auto found = words();
    auto places = corners(found);
    std::ranges::sort(places, {},
                      [](QPointF place) { return std::pair(qRound(place.y()), place.x()); });
    ASSERT_EQ(places.size(), judge.Months());
    for (int month = 1; month <= judge.Months(); ++month) {
        const QPointF corner = places[static_cast<std::size_t>(month - 1)];
        const double width = (paperWidth() - 80) / blocksInBand;
        const QRectF above(corner.x() - 2, corner.y() - 44, width - 4, 44);
        EXPECT_EQ(titleIn(found, above).toStdString(), judge.Title(month).toStdString());
    }
}

INSTANTIATE_TEST_SUITE_P(, TitlesOfMonths,
                         testing::Values(PageCase{Jewish, 5787}, PageCase{Jewish, 5786, 1, german},
                                         PageCase{Jewish, 3761}, PageCase{Jewish, 6761},
                                         PageCase{Gregorian, 2026, 1, german, QPageSize::Letter},
                                         PageCase{Gregorian, 622}, PageCase{Julian, 3000},
                                         PageCase{Moslem, 2452},
                                         PageCase{Moslem, 1447, 1, english, QPageSize::A4, 2}));

class YearPage : public PrintingTest {
protected:
    /// The texts that are in bold.
    QStringList bold() const {
        const QString xml = QString::fromUtf8(
            output(QStringLiteral("pdftohtml"), {QStringLiteral("-xml"), QStringLiteral("-i"),
                                                 QStringLiteral("-stdout"), pdfPath()}));
        static const QRegularExpression pattern(QStringLiteral("<b>(.*)</b>"));
        QStringList texts;
        for (const auto& match : pattern.globalMatch(xml))
            texts.append(match.captured(1).simplified());
        return texts;
    }
};

TEST_F(YearPage, HasItsTitleAndTheYearsOfTheOthers) {
    print(Printing::YearPage(Jewish));
    const QStringList found = lines();
    EXPECT_EQ(found[0], QStringLiteral("Jewish calendar 5787"));
    EXPECT_EQ(found[1], QStringLiteral("Julian calendar 2026 – 2027 · Gregorian calendar 2026 – "
                                       "2027 · Moslem calendar 1448 – 1449"));
    EXPECT_EQ(found[2], QStringLiteral("Tishri Heshvan Kislev"));
}

// 13 first days of Julian months fall into the year 5787.
TEST_F(YearPage, HasItsNamesAndTheFirstDaysOfTheSmallMonthsInBold) {
    print(Printing::YearPage(Jewish));
    QStringList texts = bold();
    EXPECT_EQ(texts.removeAll(QStringLiteral("1")), 13);
    EXPECT_EQ(texts.join(u' '), QStringLiteral("Jewish calendar 5787 Tishri Heshvan Kislev Tevet "
                                               "Shevat Adar I Adar II Nisan Iyar Sivan Tammuz Av "
                                               "Elul"));
}

TEST_F(YearPage, HasTheSmallFiguresOfTheFirstOtherPane) {
    CalendarOrder = {Jewish, Moslem, Gregorian, Julian};
    print(Printing::YearPage(Jewish)); // 1 Tishri 5787 is 30 Rabi I 1448
    const NumbersOnPage numbers(words(), 595, false);
    EXPECT_EQ(numbers.Days().at({0, 6, 0, 0}), 1);
    EXPECT_EQ(numbers.Small().at({0, 6, 0, 0}), 30);
    EXPECT_TRUE(lines()[1].startsWith(QStringLiteral("Moslem calendar 1448 – 1449 · Gregorian")));
}

TEST_F(YearPage, NamesItsWeekdaysInEveryBlock) {
    const QString week = QStringLiteral("Mo Tu We Th Fr Sa Su Mo Tu We Th Fr Sa ");
    for (const int first : {Monday, Tuesday, Wednesday, Thursday, Friday, Saturday, Sunday}) {
        FirstWeekDay(Jewish) = first;
        print(Printing::YearPage(Jewish));
        auto all = words();
        std::erase_if(all, [&week](const Word& word) { return !week.contains(word.text + u' '); });
        std::ranges::sort(
            all, {}, [](const Word& word) { return std::pair(word.room.top(), word.room.left()); });
        ASSERT_EQ(all.size(), 13U * 7);
        QString order;
        for (std::size_t at = 0; at < 7; ++at)
            order += all[at * 3].text + u' '; // three blocks in a band
        EXPECT_EQ(order.toStdString(), week.mid(qsizetype{3} * (first - 1), 21).toStdString());
    }
}

TEST_F(YearPage, NamesEachCalendarsMonthsInALineOfTheirOwn) {
    print(Printing::YearPage(Jewish));
    const QStringList found = lines();
    EXPECT_EQ(found[3], QStringLiteral("August – September 2026 September – October 2026 October "
                                       "– November 2026"));
    EXPECT_EQ(found[4], QStringLiteral("September – October 2026 October – November 2026 November "
                                       "– December 2026"));
    EXPECT_EQ(found[5],
              QStringLiteral("Rabi I – Rabi II 1448 Jumada I 1448 Jumada II – Rajab 1448"));
}

// In a year of thirteen months, which has the smallest letters: much smaller than the
// day above, ending below its end, nearer to it than to the next day, yet to be read.
TEST_F(YearPage, HasSmallFiguresUnderTheirDays) {
    for (const auto paper : {QPageSize::A4, QPageSize::Letter}) {
        print(Printing::YearPage(Jewish), paper);
        const NumbersOnPage numbers(words(), QPageSize(paper).size(QPageSize::Point).width(),
                                    false);
        const auto days = numbers.DayWords();
        for (const auto& [cell, word] : numbers.SmallWords()) {
            const QRectF small = word.room;
            const QRectF day = days.at(cell).room;
            EXPECT_GT(small.height(), 4.5) << cell;
            EXPECT_LT(small.height(), day.height() * 0.7) << cell;
            EXPECT_NEAR(small.right(), day.right(), 0.1) << cell;
            const auto next = days.find({cell.band, cell.weekday + 1, cell.block, cell.week});
            if (next != days.end()) {
                const double middle = small.center().y();
                EXPECT_LT(middle - day.center().y(), next->second.room.center().y() - middle)
                    << cell;
            }
        }
    }
}

// Those of the blocks of a band stand beside each other.
TEST_F(YearPage, HasARuleBelowItsTitleAndBelowTheTitlesOfEachBand) {
    print(Printing::YearPage(Gregorian));
    const QImage page = picture();
    std::vector<double> rules; // in points
    int former = -2;
    for (int y = 0; y < page.height(); ++y) {
        int ink = 0;
        for (int x = 0; x < page.width(); ++x)
            ink += qGray(page.pixel(x, y)) < 128;
        if (ink <= page.width() * 3 / 4)
            continue;
        if (y != former + 1)
            rules.push_back(y * 72 / 300.0);
        former = y;
    }
    const double expected[] = {80.6, 131.8, 311.3, 490.8, 670.3}; // their upper edges
    ASSERT_EQ(rules.size(), 5U);
    for (std::size_t at = 0; at < 5; ++at)
        EXPECT_NEAR(rules[at], expected[at], 0.6) << at;
}

// The title has 18 points, the subtitle 8, a month's name 10.5, lines and weekdays 6.
TEST_F(YearPage, HasLettersOfTheirSizes) {
    print(Printing::YearPage(Jewish));
    const auto found = words();
    const auto uppermost = [&found](const char* text) {
        QRectF room;
        for (const Word& word : found) {
            if (word.text == QLatin1String(text) && (room.isNull() || word.room.top() < room.top()))
                room = word.room;
        }
        EXPECT_FALSE(room.isNull()) << text;
        return room;
    };
    const double subtitle = uppermost("Moslem").height();
    EXPECT_NEAR(uppermost("Jewish").height() / subtitle, 2.25, 0.05);
    EXPECT_NEAR(uppermost("Tishri").height() / subtitle, 1.3125, 0.05);
    EXPECT_NEAR(uppermost("August").height() / subtitle, 0.75, 0.05);
    EXPECT_NEAR(uppermost("We").height() / subtitle, 0.75, 0.05);
    const auto lineOf = [](const QRectF& room) { return room.top() + room.height() * 0.797; };
    EXPECT_NEAR(lineOf(uppermost("August")) - lineOf(uppermost("Tishri")), 8, 0.5);
}

// Three blocks of 161 points, 16 apart; of each, 17 for the weekdays' names and 24 for a week.
TEST_F(YearPage, HasItsDaysInTheMiddleOfTheirCells) {
    print(Printing::YearPage(Gregorian)); // 2026, weeks from Sunday
    const NumbersOnPage numbers(words(), 595, false);
    const auto days = numbers.DayWords();
    const struct {
        Cell cell;
        const char* day;
        double middle;
    } rows[] = {{{0, 0, 0, 2}, "11", 40 + 17 + 2.5 * 24},
                {{0, 0, 0, 4}, "25", 40 + 17 + 4.5 * 24},
                {{0, 0, 1, 3}, "22", 40 + 177 + 17 + 3.5 * 24},
                {{0, 0, 2, 3}, "22", 40 + 354 + 17 + 3.5 * 24}};
    for (const auto& row : rows) {
        const Word& word = days.at(row.cell);
        EXPECT_EQ(word.text, QLatin1String(row.day));
        EXPECT_NEAR(word.room.center().x(), row.middle, 0.15) << row.cell;
    }
}

} // namespace
