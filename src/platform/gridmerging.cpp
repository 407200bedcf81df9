// SPDX-License-Identifier: MIT
#include "platform/gridmerging.h"

#include <QTableView>

namespace {

QString textAt(const QTableView& table, int row, int column) {
    return table.model()->index(row, column).data().toString();
}

// The number of cells from `column` on that show the same text.
int equalTexts(const QTableView& table, int row, int column) {
    const QString text = textAt(table, row, column);
    int end = column + 1;
    while (!text.isEmpty() && textAt(table, row, end) == text)
        ++end;
    return end - column;
}

} // namespace

void MergeEqualTexts(QTableView& table, int row) {
    const int columns = table.model()->columnCount();
    for (int column = 0; column < columns; ++column) {
        if (table.columnSpan(row, column) > 1)
            table.setSpan(row, column, 1, 1);
    }
    for (int column = 0, span = 1; column < columns; column += span) {
        span = equalTexts(table, row, column);
        if (span > 1)
            table.setSpan(row, column, 1, span);
    }
}
