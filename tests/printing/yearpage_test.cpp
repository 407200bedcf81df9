// SPDX-License-Identifier: MIT
#include "printing/numbersonpage.h"

namespace {

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

TEST_F(YearPage, SaysNothingOfACalendarThatShowsNoneOfItsDays) {
    choose({Gregorian, 1});
    print(Printing::YearPage(Gregorian));
    EXPECT_EQ(lines()[1], QStringLiteral("Julian calendar 1 – 2 · Jewish calendar 3761 – 3762"));
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
    const double expected[] = {80.6, 131.8, 311.3, 490.8, 670.3}; // their upper edges
    const auto found = rules();
    ASSERT_EQ(found.size(), 5U);
    for (std::size_t at = 0; at < 5; ++at)
        EXPECT_NEAR(found[at], expected[at], 0.6) << at;
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
    EXPECT_NEAR(LineOf(uppermost("August")) - LineOf(uppermost("Tishri")), 8, 0.5);
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

// From 40 to 555 points, and of the first two blocks 161 points each, 16 apart.
TEST_F(YearPage, HasRulesOfTheirThicknessFromEdgeToEdge) {
    print(Printing::YearPage(Gregorian));
    const QImage page = picture(360);
    EXPECT_NEAR(thicknessAt(page, 2750, 405), 4, 1); // 0.8 points
    EXPECT_NEAR(thicknessAt(page, 2750, 660), 2, 1); // 0.4 points
    expectRule(page, 405, 200, 2775);
    expectRule(page, 660, 200, 1005);
    expectRule(page, 660, 1085, 1890);
    EXPECT_TRUE(isDark(page, 2750, 403)) << "0.4 points above its middle";
    EXPECT_FALSE(isDark(page, 2750, 407)) << "0.4 points below it";
}

TEST_F(YearPage, HasItsTitle16PointsBelowTheMargin) {
    CalendarNames(Julian) = "HHH"; // letters without descenders
    print(Printing::YearPage(Julian));
    const QImage page = picture(360);
    int lowest = 0;
    for (int y = 200; y < 300; ++y) {
        for (int x = 200; x < 600; ++x)
            lowest = isDark(page, x, y) ? y : lowest;
    }
    EXPECT_NEAR(lowest, 56 * 5 - 1, 2); // figures reach a little lower
}

// A row has 18.36 points, the first of the page begins at 135.
TEST_F(YearPage, HasItsDaysAtTheirHeights) {
    print(Printing::YearPage(Gregorian)); // 2026, weeks from Sunday
    const NumbersOnPage numbers(words(), 595, false);
    const auto days = numbers.DayWords();
    const auto small = numbers.SmallWords();
    EXPECT_EQ(days.at({0, 0, 0, 2}).text, QStringLiteral("11"));
    EXPECT_NEAR(LineOf(days.at({0, 0, 0, 2}).room), 143.26, 0.5);
    EXPECT_NEAR(LineOf(small.at({0, 0, 0, 2}).room), 149.5, 0.5);
    EXPECT_NEAR(LineOf(days.at({0, 6, 0, 2}).room), 253.4, 0.5);
    EXPECT_NEAR(LineOf(days.at({3, 0, 0, 2}).room), 681.76, 0.5);
    EXPECT_NEAR(days.at({0, 0, 0, 2}).room.height() / small.at({0, 0, 0, 2}).room.height(),
                0.52 / 0.33, 0.02);
}

} // namespace
