// SPDX-License-Identifier: MIT
#pragma once

#include "changecals/windows.h"

#include <QString>
#include <functional>

class QPageLayout;
class QPainter;
class QPrinter;
class Sheet;

namespace Printing {

/// A page that is ready: nothing that is chosen later changes it.
struct Page {
    QString title; ///< also the name of its file
    std::function<void(const Sheet& sheet)> write;
};

/// The year of the chosen day in calendar c, a block for each month, with the day
/// of another calendar under every day.
Page YearPage(int c);

/// The month of the chosen day in calendar c, a row for each day: its date in every
/// calendar, its number in the year, its Julian Day and the moon.
Page MonthPage(int c);

/// A page in the language now chosen, from right to left where that is written so.
/// `painter` begins at the upper left corner of the paper itself.
void Paint(const Page& page, QPainter& painter, const QPageLayout& layout);

/// Shows the desktop's print dialog and prints what is chosen there; beeps instead
/// where calendar c, which need not be one, cannot show the chosen day.
void Print(Paper paper, int c);

/// Prints on a printer or into its file, which is whole or as it was before. What
/// fails is told.
void PrintPage(const Page& page, QPrinter& printer);

} // namespace Printing
