// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <functional>

class QPageLayout;
class QPainter;
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

} // namespace Printing
