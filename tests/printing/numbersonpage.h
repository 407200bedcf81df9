// SPDX-License-Identifier: MIT
#pragma once

#include "printing/printing_test.h"

#include <algorithm>
#include <map>

inline constexpr int blocksInBand = 3;

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

inline std::ostream& operator<<(std::ostream& out, const Cell& cell) {
    return out << "band " << cell.band << ", row " << cell.weekday << ", block " << cell.block
               << ", week " << cell.week;
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
    static constexpr double same = 0.3; // points

    // The first of each group of values that are the same.
    static std::vector<double> differentOf(std::vector<double> values) {
        std::ranges::sort(values);
        std::vector<double> different;
        for (std::size_t at = 0; at < values.size(); ++at) {
            if (at == 0 || values[at] - values[at - 1] > same)
                different.push_back(values[at]);
        }
        return different;
    }

    // The position of a value among those that differ from it.
    static int rankOf(double value, const std::vector<double>& different) {
        const auto above = std::ranges::upper_bound(different, value + same);
        return static_cast<int>(above - different.begin()) - 1;
    }

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
