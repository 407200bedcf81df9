// SPDX-License-Identifier: MIT
// Texts that are too wide for their cell: they are narrowed, shortened only where
// that is not enough, and stay inside.
#include "platform/color.h"
#include "platform/flexgrid.h"
#include "platform/twips.h"
#include "support/ink.h"
#include "support/platform_accessible.h"
#include "support/platform_test.h"

#include <QAccessible>

namespace {

constexpr int columnWidth = 40; // pixels
constexpr int rowHeight = 24;
constexpr int ground = 0xFFFFC0;
constexpr int ink = 0x800000;

class WideTexts : public PlatformTest {
protected:
    WideTexts() : grid(QStringLiteral("grid"), 3, 3, nullptr) {
        for (int place = 0; place < 3; ++place) {
            grid.SetColWidth(place, ToTwips(columnWidth));
            grid.SetRowHeight(place, ToTwips(rowHeight));
        }
        grid.SetSize(ToTwips(3 * columnWidth + 2), ToTwips(3 * rowHeight + 2));
        grid.SetFontPixelSize(14);
        grid.SetBackColor(ground);
        grid.SetAllCellColors(ground, ink);
    }

    /// What is drawn in the grid without its frame when the middle cell shows this.
    QRect inkOf(const QString& text, bool bold = false) {
        grid.SetTextMatrix(1, 1, text);
        grid.SetRow(1);
        grid.SetCol(1);
        grid.SetCellFontBold(bold);
        return inkIn(QRect(0, 0, 3 * columnWidth, 3 * rowHeight));
    }

    QRect inkIn(const QRect& part) {
        const QImage image = grid.viewport()->grab().toImage();
        QRect found;
        for (int y = part.top(); y <= part.bottom(); ++y) {
            for (int x = part.left(); x <= part.right(); ++x) {
                if (image.pixelColor(x, y) != ToColor(ground))
                    found |= QRect(x, y, 1, 1);
            }
        }
        return found;
    }

    MSFlexGrid grid;
    const QRect middle{columnWidth, rowHeight, columnWidth, rowHeight};
};

TEST_F(WideTexts, AreNarrowedUntilTheyFitWhetherBoldOrNot) {
    const QString wide = QStringLiteral("MMMMMM");
    ASSERT_GT(QFontMetrics(grid.font()).horizontalAdvance(wide), columnWidth);
    for (const bool bold : {false, true}) {
        const QRect drawn = inkOf(wide, bold);
        EXPECT_TRUE(middle.contains(drawn)) << bold;
        EXPECT_GT(drawn.width(), columnWidth / 2) << "of all its letters";
        EXPECT_NEAR(drawn.left() - middle.left(), middle.right() - drawn.right(), 2) << "centred";
        EXPECT_LT(drawn.height(), inkOf(QStringLiteral("M"), bold).height()) << bold;
    }
}

TEST_F(WideTexts, NumbersThatFitKeepTheirSize) {
    const int height = inkOf(QStringLiteral("1")).height();
    EXPECT_EQ(inkOf(QStringLiteral("11")).height(), height);
    EXPECT_LT(inkOf(QStringLiteral("11111111")).height(), height);
}

TEST_F(WideTexts, OfAnyLengthStayInTheirCellWithAllOfTheirLettersToAssistiveTools) {
    const QString latin = QStringLiteral("(12)  ") + QString(60, u'W');
    const QString hebrew = QStringLiteral("(12)  \u2068") + QString(60, u'\u05DE') + u'\u2069';
    const QString stacked = u'W' + QString(30, u'\u0301');
    for (const QString& text : {latin, hebrew, stacked}) {
        const QRect drawn = inkOf(text, true);
        EXPECT_TRUE(middle.contains(drawn)) << text.toStdString();
        EXPECT_FALSE(drawn.isEmpty());
        EXPECT_EQ(accessibleCell(grid, 1, 1)->text(QAccessible::Name), text);
    }
}

TEST_F(WideTexts, ThatAreShortenedEndInDots) {
    const QRect drawn = inkOf(QString(60, u'W'));
    const QRect end = inkIn(drawn.adjusted(drawn.width() - 3, 0, 0, 0));
    EXPECT_GT(end.top(), drawn.center().y());
}

TEST_F(WideTexts, HaveTheRoomOfAllCellsThatAreMerged) {
    grid.SetMergeRow(1);
    grid.SetTextMatrix(1, 2, QString(60, u'W'));
    EXPECT_GT(inkOf(QString(60, u'W')).width(), columnWidth);
}

TEST_F(WideTexts, ThatLookLikeRichTextAreShownAsTheyStand) {
    EXPECT_FALSE(inkOf(QStringLiteral("<b></b>")).isEmpty());
}

// A digit begins in the middle of its cell.
TEST_F(WideTexts, OfLettersLargerThanTheirCellFillItToItsRims) {
    constexpr int low = 10;
    constexpr int narrow = 30;
    for (int row = 0; row < 3; ++row)
        grid.SetRowHeight(row, ToTwips(low));
    grid.SetColWidth(2, ToTwips(narrow));
    grid.SetFontPixelSize(40);
    grid.SetTextMatrix(2, 2, QStringLiteral("8"));
    const QRect drawn = inkIn(QRect(0, 0, 3 * columnWidth, 3 * rowHeight));
    EXPECT_EQ(drawn.top(), 2 * low);
    EXPECT_EQ(drawn.bottom(), 3 * low - 1);
    EXPECT_EQ(drawn.right(), 2 * columnWidth + narrow - 1);
}

TEST_F(WideTexts, InTheFirstColumnHaveAPixelLessOnTheirLeftAndBeginAtAWholeOne) {
    QImage texts[2];
    for (const int wider : {0, 1}) {
        const int width = columnWidth + wider;
        grid.SetColWidth(0, ToTwips(width + 1));
        grid.SetColWidth(1, ToTwips(width));
        grid.SetColWidth(2, ToTwips(columnWidth / 2));
        grid.SetTextMatrix(1, 0, QStringLiteral("HH"));
        grid.SetTextMatrix(1, 1, QStringLiteral("HH"));
        const QImage image = grid.viewport()->grab().toImage();
        const QImage first = image.copy(1, rowHeight, width, rowHeight);
        EXPECT_EQ(first, image.copy(width + 1, rowHeight, width, rowHeight)) << width;
        texts[wider] = first.copy(InkOf(first));
    }
    EXPECT_EQ(texts[0], texts[1]) << "not between two pixels";
}

} // namespace
