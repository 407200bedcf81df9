// SPDX-License-Identifier: MIT
#include "endurance/controls.h"
#include "endurance/expected.h"
#include "endurance/judge.h"
#include "endurance/layout.h"
#include "platform/commandbutton.h"
#include "platform/flexgrid.h"
#include "platform/image.h"
#include "platform/text.h"
#include "shared/texts.h"

#include <QHash>

namespace {

constexpr int redBackground = 0x0000FF; // blue, green, red
constexpr Table<int, calendarCount> backgrounds{0xFFFFFF, 0xFFFFC0, 0xC0FFFF, 0xC0FFC0};

/// Of the main windows by their numbers.
using Captions = Table<QString, mainWindowCount>;

const Captions& captionsIn(const std::string& language) {
    static const QHash<QString, Captions> all{
        {QStringLiteral("English (Default)"),
         {QStringLiteral("Julian calendar"), QStringLiteral("Gregorian calendar"),
          QStringLiteral("Jewish calendar"), QStringLiteral("Moslem calendar"),
          QStringLiteral("Monthly calendars"), QStringLiteral("Moon")}},
        {QStringLiteral("German"),
         {QStringLiteral("Julianischer Kalender"), QStringLiteral("Gregorianischer Kalender"),
          QStringLiteral("Jüdischer Kalender"), QStringLiteral("Islamischer Kalender"),
          QStringLiteral("Monatskalender"), QStringLiteral("Mond")}},
        {QStringLiteral("Hebrew"),
         {QStringLiteral("הלוח היוליאני"), QStringLiteral("הלוח הגרגוריאני"),
          QStringLiteral("הלוח העברי"), QStringLiteral("הלוח המוסלמי"),
          QStringLiteral("לוחות חודשיים"), QStringLiteral("ירח")}},
        {QStringLiteral("Russian"),
         {QStringLiteral("Юлианский календарь"), QStringLiteral("Григорианский календарь"),
          QStringLiteral("Еврейский календарь"), QStringLiteral("Мусульманский календарь"),
          QStringLiteral("Календари на месяц"), QStringLiteral("Луна")}}};
    return *all.constFind(Text(language));
}

} // namespace

void Judge::LookClosely() {
    Look();
    if (testing::Test::HasFailure())
        return;
    lookAtCaptions();
    lookAtCloseTips();
    for (int c = 1; c <= calendarCount; ++c) {
        if (m_expected.open(c) && m_expected.Shows(c))
            lookAtYearCells(c);
    }
    for (int pane = 1; pane <= paneCount; ++pane) {
        if (m_expected.open(MonthlyWindowNumber) && m_expected.Shows(m_expected.order(pane)))
            lookAtMonthCells(pane);
    }
}

void Judge::lookAtCaptions() const {
    const Captions& captions = captionsIn(m_expected.language);
    for (const MainWindowNumber number : mainWindows) {
        if (m_expected.open(number)) {
            EXPECT_EQ(ChangeCals::LoadedWindow(number)->windowTitle(), captions(number));
        }
    }
}

// They say whether a press closes a window or ends the program.
void Judge::lookAtCloseTips() {
    const int text = m_expected.OpenCalendars() < 2 ? ExitText : CloseOrExitText;
    const QString tip = m_expected.tips ? PlainTip(Text(StringTexts(text))) : QString();
    for (int number = 1; number <= MonthlyWindowNumber; ++number) {
        const bool monthly = number == MonthlyWindowNumber;
        const QString name = monthly ? QStringLiteral("Command1_5") : QStringLiteral("Command1_6");
        if (m_expected.open(number)) {
            EXPECT_EQ(m_controls.Of<CommandButton>(number, name).toolTip(), tip) << number;
        }
    }
}

void Judge::lookAtMonthCells(int pane) {
    const int c = m_expected.order(pane);
    auto& grid =
        m_controls.Of<MSFlexGrid>(MonthlyWindowNumber, QStringLiteral("MSFlexGrid1_%1").arg(pane));
    const Reckoning::Date date = m_expected.In(c).date;
    lookAtBlock(grid, c, date, {0, 1});
    lookAtColors(grid, c, Layout::InMonth(m_expected, c, date));
    auto& emblem = m_controls.Of<Image>(MonthlyWindowNumber, QStringLiteral("Image1_%1").arg(c));
    EXPECT_EQ(emblem.x(), 20 + 156 * (pane - 1)) << pane;
}

void Judge::lookAtYearCells(int c) {
    auto& grid = m_controls.Of<MSFlexGrid>(c, QStringLiteral("MSFlexGrid1"));
    const YearAndDay in = m_expected.In(c);
    for (int month = 1; month <= in.months; ++month) {
        const GridPlace corner = cornerOnSheet(c, in.months, month);
        lookAtBlock(grid, c, {1, month, in.date.year}, corner);
        const QString title = grid.TextMatrix(corner.row - 1, corner.column);
        EXPECT_TRUE(title.startsWith(QStringLiteral("(%1)  ").arg(month))) << qPrintable(title);
    }
    lookAtColors(grid, c, Layout::InYear(m_expected, c, in.date));
    const bool wide = c == Jewish && in.months == 13;
    EXPECT_EQ(grid.width(), wide ? 505 : 387) << c;
}

void Judge::lookAtBlock(MSFlexGrid& grid, int c, const Reckoning::Date& month,
                        GridPlace corner) const {
    const int blanks = m_expected.LeadingBlanks(c, month.year, month.month);
    const int days = m_expected.Rules().DaysInMonth(c, month.year, month.month);
    for (int place = 0; place < 42; ++place) {
        const int day = place - blanks + 1;
        const QString text = day >= 1 && day <= days ? QString::number(day) : QString();
        EXPECT_EQ(grid.TextMatrix(corner.row + place % 7, corner.column + place / 7), text)
            << c << ", month " << month.month << " of " << month.year;
    }
}

// Red is the marked cell alone, bold and white; the rest has the calendar's colour.
void Judge::lookAtColors(MSFlexGrid& grid, int c, GridPlace marked) const {
    const GridPlace former{grid.Row(), grid.Col()};
    for (int row = 0; row < grid.Rows(); ++row) {
        for (int column = 0; column < grid.Cols(); ++column) {
            grid.SetRow(row);
            grid.SetCol(column);
            const bool isMarked = GridPlace{row, column} == marked;
            EXPECT_EQ(grid.CellBackColor(), isMarked ? redBackground : backgrounds(c));
            EXPECT_EQ(grid.CellForeColor() == 0xFFFFFF, isMarked);
        }
    }
    grid.SetRow(former.row);
    grid.SetCol(former.column);
}
