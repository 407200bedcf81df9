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
    /// The rooms of a text's words, from the top.
    std::vector<QRectF> roomsOf(const QString& text) const { return roomsOf(text, words()); }

    static std::vector<QRectF> roomsOf(const QString& text, const std::vector<Word>& words) {
        std::vector<QRectF> rooms;
        for (const Word& word : words) {
            if (word.text == text)
                rooms.push_back(word.room);
        }
        EXPECT_FALSE(rooms.empty()) << text.toStdString();
        return rooms.empty() ? std::vector<QRectF>(1) : rooms;
    }

    /// The first room of a text, from the left, in the line of another word.
    static QRectF roomInLineOf(const QRectF& other, const char* text,
                               const std::vector<Word>& words) {
        for (const QRectF& room : roomsOf(QLatin1String(text), words)) {
            if (std::abs(LineOf(room) - LineOf(other)) < 1)
                return room;
        }
        ADD_FAILURE() << text;
        return {0, 0, 1, 1};
    }
};

TEST_F(MonthPage, HasTitleSpansAndHeads) {
    print(Printing::MonthPage(Gregorian));
    const QStringList found = lines();
    EXPECT_EQ(found[0], QStringLiteral("Gregorian calendar November 2026"));
    EXPECT_EQ(found[1], QStringLiteral("October – November 2026 · Heshvan – Kislev 5787 · "
                                       "Jumada I – Jumada II 1448"));
    EXPECT_EQ(found[2],
              QStringLiteral("Week Gregorian Julian Jewish Moslem Year day Julian Moon age"));
    EXPECT_EQ(found[3], QStringLiteral("day calendar calendar calendar calendar number Day (in "
                                       "days)"));
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
    CalendarOrder = {Julian, Gregorian, Jewish, 77};
    print(Printing::MonthPage(Gregorian));
    EXPECT_TRUE(lines().contains(QStringLiteral("Friday 20 November 2026 7 November 2026 10 Kislev "
                                                "5787 10 Jumada II 1448 324 2461365 10.6")));
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
        const auto found = words();
        std::vector<double> rows;
        for (int day = 2461346; day <= 2461375; ++day)
            rows.push_back(roomsOf(QString::number(day), found)[0].bottom());
        const double row =
            rows[2] - rows[1] < rows[3] - rows[2] ? rows[2] - rows[1] : rows[3] - rows[2];
        for (std::size_t at = 1; at < rows.size(); ++at) {
            const bool opens = Reckoning::WeekdayOf(2461346 + static_cast<int>(at)) == first;
            EXPECT_NEAR(rows[at] - rows[at - 1], opens ? row * 1.35 : row, 0.02) << at;
        }
    }
}

TEST_F(MonthPage, HasARuleBelowItsTitleItsHeadsAndItsLastRow) {
    print(Printing::MonthPage(Gregorian));
    const auto edges = rules();
    ASSERT_EQ(edges.size(), 3U);
    EXPECT_NEAR(edges[0], 80.6, 0.6);
    EXPECT_NEAR(edges[1], 117.0, 0.6);
    EXPECT_NEAR(edges[2], 773.4, 0.6); // 30 rows of 31, 4 gaps of 5
    EXPECT_NEAR(LineOf(roomsOf(QStringLiteral("2461346"))[0]), 131.2, 0.5);
    EXPECT_LT(LineOf(roomsOf(QStringLiteral("2461375"))[0]), edges[2]);
}

// In a language from right to left the columns stand in that order.
TEST_F(MonthPage, RunsAsItsLanguageDoes) {
    const auto leftOf = [this](const char* text) { return roomsOf(QLatin1String(text))[0].left(); };
    print(Printing::MonthPage(Gregorian));
    EXPECT_LT(leftOf("305"), leftOf("2461346"));
    EXPECT_LT(leftOf("2461346"), leftOf("21.2"));
    for (const QString& language : {hebrew, persian, QStringLiteral("Arabic")}) {
        Names(language).Choose();
        print(Printing::MonthPage(Gregorian));
        EXPECT_GT(leftOf("305"), leftOf("2461346"));
        EXPECT_GT(leftOf("2461346"), leftOf("21.2"));
    }
    CalendarNames(Gregorian) = "Gregorian"; // a name that the language lacks
    print(Printing::MonthPage(Gregorian));
    EXPECT_GT(leftOf("305"), leftOf("2461346"));
}

// Read from the right: the month, its numeral, the year.
TEST_F(MonthPage, HasYearsBehindNumeralsOfOtherLetters) {
    for (const QString& language : {hebrew, persian}) {
        choose({Jewish, 5787, 7, language});
        print(Printing::MonthPage(Jewish));
        const auto found = words();
        const QRectF numeral = roomsOf(QStringLiteral("II"), found)[0];
        const QRectF year = roomsOf(QStringLiteral("5787"), found)[0];
        EXPECT_NEAR(numeral.center().y(), year.center().y(), 1); // both in the title
        EXPECT_LT(year.right(), numeral.left());
    }
}

// A name that a language lacks stands where its own do.
TEST_F(MonthPage, HasNamesOfOtherLettersInTheirColumn) {
    Names(hebrew).Choose();
    MonthNames(Julian, 10) = "X";
    print(Printing::MonthPage(Gregorian));
    const auto found = words();
    auto names = roomsOf(QStringLiteral("X"), found);
    ASSERT_EQ(names.size(), 1U + 13);
    EXPECT_NEAR(names[0].right(), 555, 0.1); // where the line below the title begins
    names.erase(names.begin());
    for (const QRectF& name : names) {
        const auto isDay = [&name](const Word& word) {
            return word.room.left() > name.right() && word.room.left() < name.right() + 6 &&
                   std::abs(word.room.bottom() - name.bottom()) < 1;
        };
        EXPECT_TRUE(std::ranges::any_of(found, isDay));
    }
}

// Figures of a column end above each other, in either direction.
TEST_F(MonthPage, HasItsFiguresAboveEachOther) {
    for (const QString& language : {english, hebrew}) {
        Names(language).Choose();
        print(Printing::MonthPage(Gregorian));
        const auto found = words();
        EXPECT_NEAR(roomsOf(QStringLiteral("0.6"), found)[0].right(),
                    roomsOf(QStringLiteral("20.6"), found)[0].right(), 0.05);
    }
}

// A head is above what it names: where its column's lines begin, or end if it is of
// figures alone. The chosen day, in bold, is the widest.
TEST_F(MonthPage, HasItsHeadsAboveTheirColumns) {
    Names(german).Choose();
    print(Printing::MonthPage(Gregorian));
    const auto found = words();
    const auto room = [&found](const char* text) { return roomsOf(QLatin1String(text), found)[0]; };
    EXPECT_NEAR(room("Wochentag").left(), room("Freitag").left(), 0.05);
    EXPECT_NEAR(room("Wochentag").bottom(), room("(in").bottom(), 0.05);
    EXPECT_NEAR(room("Jahr").right(), room("305").right(), 0.05);
    EXPECT_NEAR(room("des").right(), room("305").right(), 0.05);
    EXPECT_NEAR(room("Tag").right(), room("2461346").right(), 0.05);
    EXPECT_NEAR(room("Mondalter").left(), room("10.6").left(), 0.05);
    EXPECT_NEAR(room("(in").left(), room("10.6").left(), 0.05);
    EXPECT_NEAR(room("(in").bottom() - room("Mondalter").bottom(), 8.2, 0.05);
    EXPECT_NEAR(room("(in").height() / room("2461346").height(), 7 / 8.5, 0.03);
}

TEST_F(MonthPage, DividesNoHeadBetweenBrackets) {
    StringTexts(MoonAgeText) = "Moon (days since the last new one)";
    StringTexts(DayOfYearText) = "One two three four/five";
    print(Printing::MonthPage(Gregorian));
    EXPECT_TRUE(lines()[2].endsWith(QStringLiteral("One two Julian Moon")));
    EXPECT_TRUE(
        lines()[3].endsWith(QStringLiteral("three four Day (days since the last new one)")));
}

TEST_F(MonthPage, DividesAHeadAsEarlyAsItMay) {
    StringTexts(JulianDayText) = "nn n nn"; // as narrow either way
    print(Printing::MonthPage(Gregorian));
    EXPECT_TRUE(lines()[2].endsWith(QStringLiteral("Year day nn Moon age")));
    EXPECT_TRUE(lines()[3].endsWith(QStringLiteral("number n nn (in days)")));
}

TEST_F(MonthPage, HasRulesOfOneThicknessFromEdgeToEdge) {
    print(Printing::MonthPage(Gregorian));
    const QImage page = picture(360);
    for (const int y : {405, 587, 3869}) { // below the title, the heads and the last row
        EXPECT_NEAR(thicknessAt(page, 2750, y), 4, 1) << y;
        expectRule(page, y, 200, 2775);
    }
}

TEST_F(MonthPage, HasTheChosenDayInLettersAsLargeAsTheOthers) {
    print(Printing::MonthPage(Gregorian));
    const auto found = words();
    const auto monthBeside = [&found](const char* julianDay) {
        return roomInLineOf(roomsOf(QLatin1String(julianDay), found)[0], "November", found);
    };
    EXPECT_NEAR(monthBeside("2461365").height() / monthBeside("2461346").height(), 1, 0.02);
}

// The widest row is the chosen one, in bold.
TEST_F(MonthPage, HasFourPointsBetweenFiguresAndWordsAndNoneBesideFiguresAlone) {
    print(Printing::MonthPage(Gregorian));
    const auto found = words();
    const auto room = [&found](const char* text) { return roomsOf(QLatin1String(text), found)[0]; };
    const QRectF chosen = room("2461365");
    const auto inRow = [&](const char* text) { return roomInLineOf(chosen, text, found); };
    const double scale =
        room("2461346").height() / 8.5 / (room("Heshvan").height() / 8); // of the rows
    EXPECT_NEAR(inRow("November").left() - inRow("20").right(), 4 * scale, 0.2);
    const double before = chosen.left() - inRow("324").right();
    const double behind = inRow("10.6").left() - chosen.right();
    EXPECT_NEAR(before, behind, 0.2);
}

TEST_F(MonthPage, KeepsItsColumnsNinePointsApartWhereTheyAreTooWide) {
    MonthNames(Gregorian, 11) = std::string(40, 'n');
    print(Printing::MonthPage(Gregorian));
    const auto found = words();
    const auto room = [&found](const char* text) { return roomsOf(QLatin1String(text), found)[0]; };
    EXPECT_LT(room("2461346").height(), room("Heshvan").height()) << "letters are smaller";
    EXPECT_NEAR(room("2461365").left() - room("324").right(), 9, 0.25);
}

// In rows of 8.5 points beside the subtitle's 8, no larger. A column has room for the sign
// of every quarter of the moon in bold: each is that of the chosen day once.
TEST_F(MonthPage, FillsItsWidthInLettersOfTheirSizeWhereAllColumnsFit) {
    for (int c = 1; c <= calendarCount; ++c) {
        CalendarNames(c) = "C";
        for (int month = 1; month <= 12; ++month)
            MonthNames(c, month) = "N";
    }
    for (int weekday = 1; weekday <= 7; ++weekday)
        WeekDayNames(weekday) = "D";
    for (const int text : {DayOfYearText, WeekDayText, MoonAgeText, JulianDayText})
        StringTexts(text) = "T";
    double right = 0;
    for (const int day : {2461347, 2461354, 2461362, 2461369}) {
        goToDay(day);
        print(Printing::MonthPage(Gregorian));
        const auto found = words();
        for (const Word& word : found)
            right = std::max(right, word.room.right());
        const double row = roomsOf(QStringLiteral("2461346"), found)[0].height();
        EXPECT_NEAR(row / roomsOf(QStringLiteral("·"), found)[0].height(), 8.5 / 8, 0.01);
    }
    EXPECT_NEAR(right, 555, 0.3);
}

TEST_F(MonthPage, HasItsHeadsAboveTheRule) {
    print(Printing::MonthPage(Gregorian));
    EXPECT_NEAR(LineOf(roomsOf(QStringLiteral("(in"))[0]), 111.4, 0.6); // 6 points above it
}

} // namespace
