// SPDX-License-Identifier: MIT
#include "printing/numbersonpage.h"

namespace {

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

} // namespace
