// SPDX-License-Identifier: MIT
#pragma once

class QTableView;

/// Shows equal texts that stand side by side in a row of a table as one cell;
/// blank cells stand alone. All of the table is repainted.
void MergeEqualTexts(QTableView& table, int row);
