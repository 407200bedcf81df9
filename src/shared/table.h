// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <initializer_list>

/// Told of every access outside a table, with the index that was asked for and
/// the table's extent. Unset in the program, where such an access is harmless;
/// tests set it to fail loudly.
using OutOfBoundsHandler = void (*)(int index, int extent);
inline OutOfBoundsHandler onOutOfBounds = nullptr;

/// A table of one or two dimensions whose indices begin at 1, read as it is
/// spoken of: CurDate(c, Year). Every access is checked; outside its bounds a
/// table reads as T{} and takes no values.
template <typename T, int Rows, int Columns = 1>
class Table {
public:
    static constexpr int size = Rows * Columns;

    constexpr Table() = default;

    /// The entries in order, row after row; those not given are T{}.
    constexpr Table(std::initializer_list<T> values) {
        int at = 0;
        for (const T& value : values) {
            (*this)(at / Columns + 1, at % Columns + 1) = value;
            ++at;
        }
    }

    constexpr T& operator()(int row, int column = 1) {
        if (isInside(row, column))
            return m_cells[offset(row, column)];
        reportOutside(row, column);
        return m_outside = T{};
    }

    constexpr const T& operator()(int row, int column = 1) const {
        if (isInside(row, column))
            return m_cells[offset(row, column)];
        reportOutside(row, column);
        return nothing;
    }

    constexpr bool operator==(const Table& other) const {
        return std::ranges::equal(m_cells, other.m_cells);
    }

private:
    // One comparison each: an index below 1 becomes a huge number. Inlined even where
    // nothing else is: the tests ask more often than the rest of them takes.
    [[gnu::always_inline]] static constexpr bool isInside(int row, int column) {
        return static_cast<unsigned>(row) - 1U < static_cast<unsigned>(Rows) &&
               static_cast<unsigned>(column) - 1U < static_cast<unsigned>(Columns);
    }

    // Cold, so that what follows an access is always taken for the usual way.
    [[gnu::cold]] static void reportOutside(int row, int column) {
        if (onOutOfBounds == nullptr)
            return;
        if (row < 1 || row > Rows)
            onOutOfBounds(row, Rows);
        else
            onOutOfBounds(column, Columns);
    }

    [[gnu::always_inline]] static constexpr std::size_t offset(int row, int column) {
        return static_cast<std::size_t>((row - 1) * Columns + column - 1);
    }

    static inline const T nothing{};

    T m_cells[static_cast<std::size_t>(size)]{};
    T m_outside{};
};
