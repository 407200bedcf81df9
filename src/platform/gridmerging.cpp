// SPDX-License-Identifier: MIT
#include "platform/gridmerging.h"

#include <QTableView>

namespace {

int columnsOf(const QTableView& table) {
    return table.model()->columnCount();
}

QString textAt(const QTableView& table, int row, int column) {
    return table.model()->index(row, column).data().toString();
}

// The number of cells from `column` on that show the same text.
int equalTexts(const QTableView& table, int row, int column) {
    const QString text = textAt(table, row, column);
    int end = column + 1;
    while (!text.isEmpty() && end < columnsOf(table) && textAt(table, row, end) == text)
        ++end;
    return end - column;
}

bool isMerged(const QTableView& table, int row) {
    int column = 0;
    while (column < columnsOf(table) &&
           table.columnSpan(row, column) == equalTexts(table, row, column))
        column += equalTexts(table, row, column);
    return column == columnsOf(table);
}

} // namespace

void MergeEqualTexts(QTableView& table, int row) {
    if (isMerged(table, row))
        return;
    for (int column = 0, span = 1; column < columnsOf(table); column += span) {
        span = table.columnSpan(row, column);
        if (span > 1)
            table.setSpan(row, column, 1, 1);
    }
    for (int column = 0, span = 1; column < columnsOf(table); column += span) {
        span = equalTexts(table, row, column);
        if (span > 1)
            table.setSpan(row, column, 1, span);
    }
}
