// SPDX-License-Identifier: MIT
#include "printing/printing_test.h"

#include <algorithm>
#include <cmath>

namespace {

/// What the page of a month should say, by its own reckoning.
class MonthJudge {
public:
    explicit MonthJudge(const PageCase& page)
        : m_page(page),
          m_rules(page.moslemType),
          m_names(page.language),
          m_first(m_rules.DayOf(page.calendar, {1, page.month, page.year})) {}

    int Days() const { return m_rules.DaysInMonth(m_page.calendar, m_page.year, m_page.month); }

    QString Row(int row) const {
        const int day = m_first + row;
        QStringList cells{m_names.Weekday(Reckoning::WeekdayOf(day))};
        cells.append(date(m_page.calendar, day));
        for (int c = 1; c <= calendarCount; ++c) {
            if (c != m_page.calendar && m_rules.Shows(c, day))
                cells.append(date(c, day));
        }
        const int newYear = m_rules.NewYear(m_page.calendar, m_page.year);
        cells.append({QString::number(day - newYear + 1), QString::number(day), moon(day)});
        return cells.join(u' ').simplified();
    }

private:
    QString date(int c, int day) const {
        const Reckoning::Date date = m_rules.DateOf(c, day);
        return QStringLiteral("%1 %2 %3")
            .arg(QString::number(date.day),
                 m_names.Month(c, date.month, m_rules.MonthsIn(c, date.year)),
                 QString::number(date.year));
    }

    // Quarters of a lunation after a new moon at noon of Julian Day 1720993, each on
    // the day whose noon is nearest.
    static QString moon(int day) {
        const double age = Reckoning::MoonAge(day);
        QString text = QString::number(std::round(age * 10) / 10, 'f', 1);
        const double quarters = age / Reckoning::lunation * 4;
        const double nearest = std::round(quarters);
        if (std::abs(quarters - nearest) * Reckoning::lunation / 4 <= 0.5)
            text += QStringLiteral(" ") + QStringLiteral("●◐○◑●").at(static_cast<int>(nearest));
        return text;
    }

    PageCase m_page;
    Reckoning m_rules;
    Names m_names;
    int m_first;
};

// Without what cannot be seen: blanks, and what keeps letters from being joined.
QString sorted(QString text) {
    text.remove(u' ').remove(u'\u200c');
    std::sort(text.begin(), text.end());
    return text;
}

class MonthPages : public PrintingTest, public testing::WithParamInterface<PageCase> {};

TEST_P(MonthPages, SayEveryDayInEveryCalendar) {
    choose(GetParam());
    print(Printing::MonthPage(GetParam().calendar), GetParam().paper);
    const MonthJudge judge(GetParam());
    const QStringList found = lines();
    ASSERT_GE(found.size(), judge.Days());
    const QStringList rows = found.last(judge.Days());
    const bool leftToRight = !Names(GetParam().language).Calendar(Julian).isRightToLeft();
    for (int row = 0; row < judge.Days(); ++row) {
        const QString expected = judge.Row(row).normalized(QString::NormalizationForm_KC);
        // Of a line from right to left the reader breaks words apart.
        if (leftToRight)
            EXPECT_EQ(rows[row].toStdString(), expected.toStdString());
        else
            EXPECT_EQ(sorted(rows[row]).toStdString(), sorted(expected).toStdString());
    }
}

const QString german = QStringLiteral("German");
const QString hebrew = QStringLiteral("Hebrew");
const QString persian = QStringLiteral("Persian");
const QString english = QStringLiteral("English");

INSTANTIATE_TEST_SUITE_P(, MonthPages,
                         testing::Values(PageCase{Gregorian, 2026, 11},
                                         PageCase{Gregorian, 2024, 2, german, QPageSize::Letter},
                                         PageCase{Gregorian, 1, 1},
                                         PageCase{Gregorian, 3000, 12, english, QPageSize::A4, 2},
                                         PageCase{Julian, 1, 1}, PageCase{Julian, 1900, 2, hebrew},
                                         PageCase{Julian, 3000, 12}, PageCase{Jewish, 3761, 1},
                                         PageCase{Jewish, 3761, 4, german},
                                         PageCase{Jewish, 5787, 6, hebrew, QPageSize::Letter},
                                         PageCase{Jewish, 5787, 13},
                                         PageCase{Jewish, 6761, 12, persian},
                                         PageCase{Moslem, 1, 1},
                                         PageCase{Moslem, 1, 1, german, QPageSize::A4, 2},
                                         PageCase{Moslem, 1445, 12, persian, QPageSize::Letter, 2},
                                         PageCase{Moslem, 2452, 12, english, QPageSize::A4, 2}));

class MonthPage : public PrintingTest {
protected:
    /// The words of a text, from the top.
    std::vector<double> heightsOf(const QString& text) const {
        std::vector<double> heights;
        for (const Word& word : words()) {
            if (word.text == text)
                heights.push_back(word.room.bottom());
        }
        return heights;
    }
};

TEST_F(MonthPage, HasTitleSpansAndHeads) {
    print(Printing::MonthPage(Gregorian));
    const QStringList found = lines();
    EXPECT_EQ(found[0], QStringLiteral("Gregorian calendar November 2026"));
    EXPECT_EQ(found[1], QStringLiteral("October – November 2026 · Heshvan – Kislev 5787 · "
                                       "Jumada I – Jumada II 1448"));
    EXPECT_EQ(found[2], QStringLiteral("Year day Moon age"));
    EXPECT_EQ(found[3], QStringLiteral("Week day Gregorian calendar Julian calendar Jewish "
                                       "calendar Moslem calendar number Julian Day (in days)"));
    EXPECT_EQ(found.size(), 4 + 30);
}

TEST_F(MonthPage, BeginsWithTheCalendarOfThePaneAndKeepsThePanesOrder) {
    CalendarOrder = {Moslem, Jewish, Gregorian, Julian};
    print(Printing::MonthPage(Jewish));
    EXPECT_TRUE(lines().contains(QStringLiteral("Friday 10 Kislev 5787 10 Jumada II 1448 20 "
                                                "November 2026 7 November 2026 70 2461365 10.6")));
}

TEST_F(MonthPage, NamesACalendarThatNoPaneHolds) {
    CalendarOrder(1) = 77; // where Julian would be
    print(Printing::MonthPage(Gregorian));
    EXPECT_TRUE(lines().contains(QStringLiteral("Friday 20 November 2026 10 Kislev 5787 10 Jumada "
                                                "II 1448 7 November 2026 324 2461365 10.6")));
}

TEST_F(MonthPage, HasTheChosenDayAloneInBold) {
    print(Printing::MonthPage(Gregorian));
    const QString xml = QString::fromUtf8(
        output(QStringLiteral("pdftohtml"), {QStringLiteral("-xml"), QStringLiteral("-i"),
                                             QStringLiteral("-stdout"), pdfPath()}));
    static const QRegularExpression bold(QStringLiteral("<b>(.*)</b>"));
    QStringList texts;
    for (const auto& match : bold.globalMatch(xml))
        texts.append(match.captured(1).simplified());
    EXPECT_EQ(texts.join(u' '),
              QStringLiteral("Gregorian calendar November 2026 Friday 20 November 2026 7 November "
                             "2026 10 Kislev 5787 10 Jumada II 1448 324 2461365 10.6"));
}

TEST_F(MonthPage, SetsWeeksApart) {
    for (const int first : {Monday, Tuesday, Wednesday, Thursday, Friday, Saturday, Sunday}) {
        FirstWeekDay(Gregorian) = first;
        print(Printing::MonthPage(Gregorian));
        std::vector<double> rows;
        for (int day = 2461346; day <= 2461375; ++day)
            rows.push_back(heightsOf(QString::number(day)).at(0));
        const double row =
            rows[2] - rows[1] < rows[3] - rows[2] ? rows[2] - rows[1] : rows[3] - rows[2];
        for (std::size_t at = 1; at < rows.size(); ++at) {
            const bool opens = Reckoning::WeekdayOf(2461346 + static_cast<int>(at)) == first;
            EXPECT_NEAR(rows[at] - rows[at - 1], opens ? row * 1.35 : row, 0.02) << at;
        }
    }
}

// In a language from right to left the columns stand in that order.
TEST_F(MonthPage, RunsAsItsLanguageDoes) {
    const auto leftOf = [this](const QString& text) {
        const auto all = words();
        const auto found = std::ranges::find(all, text, &Word::text);
        EXPECT_NE(found, all.end());
        return found->room.left();
    };
    print(Printing::MonthPage(Gregorian));
    EXPECT_LT(leftOf(QStringLiteral("305")), leftOf(QStringLiteral("2461346")));
    EXPECT_LT(leftOf(QStringLiteral("2461346")), leftOf(QStringLiteral("21.2")));
    for (const QString& language : {hebrew, persian, QStringLiteral("Arabic")}) {
        Names(language).Choose();
        print(Printing::MonthPage(Gregorian));
        EXPECT_GT(leftOf(QStringLiteral("305")), leftOf(QStringLiteral("2461346")));
        EXPECT_GT(leftOf(QStringLiteral("2461346")), leftOf(QStringLiteral("21.2")));
    }
}

// Figures of a column end above each other, in either direction.
TEST_F(MonthPage, HasItsFiguresAboveEachOther) {
    for (const QString& language : {english, hebrew}) {
        Names(language).Choose();
        print(Printing::MonthPage(Gregorian));
        std::vector<double> ends;
        for (const Word& word : words()) {
            if (word.text == QStringLiteral("0.6") || word.text == QStringLiteral("20.6"))
                ends.push_back(word.room.right());
        }
        ASSERT_EQ(ends.size(), 2U);
        EXPECT_NEAR(ends[0], ends[1], 0.05);
    }
}

} // namespace
