// SPDX-License-Identifier: MIT
#pragma once

class QTableView;

/// Shows equal texts that stand side by side in a row of a table as one cell;
/// blank cells stand alone. A row that is merged already is left as it is.
void MergeEqualTexts(QTableView& table, int row);
