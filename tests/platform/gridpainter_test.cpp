// SPDX-License-Identifier: MIT
// How a grid shows the focus, its current cell and that it is disabled.
#include "platform/color.h"
#include "platform/flexgrid.h"
#include "platform/twips.h"
#include "support/contrast.h"
#include "support/platform_test.h"

#include <QLineEdit>

namespace {

constexpr int cellSide = 20; // pixels
constexpr int pale = 0xFFFFC0;
constexpr int navy = 0x800000;
constexpr int red = 0x0000FF;
constexpr int white = 0xFFFFFF;

class GridLook : public PlatformTest {
protected:
    GridLook()
        : grid(new MSFlexGrid(QStringLiteral("grid"), 3, 3, &window)),
          other(new QLineEdit(&window)) {
        for (int place = 0; place < 3; ++place) {
            grid->SetColWidth(place, ToTwips(cellSide));
            grid->SetRowHeight(place, ToTwips(cellSide));
        }
        grid->SetSize(ToTwips(3 * cellSide + 2), ToTwips(3 * cellSide + 2));
        grid->SetBackColor(pale);
        grid->SetAllCellColors(pale, navy);
        grid->SetSelectedColor(red);
        other->move(100, 0);
        QPalette colors = window.palette();
        colors.setColor(QPalette::Highlight, QColor(0, 120, 215));
        window.setPalette(colors);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    void mark(int row, int column) {
        grid->SetRow(row);
        grid->SetCol(column);
        grid->SetCellBackColor(red);
        grid->SetCellForeColor(white);
    }

    QImage picture() { return grid->grab().toImage(); }

    /// The upper left pixel of a cell, on which an outline stands.
    static QColor corner(const QImage& image, int row, int column) {
        return image.pixelColor(1 + column * cellSide, 1 + row * cellSide);
    }

    QWidget window;
    MSFlexGrid* grid;
    QLineEdit* other;
};

TEST_F(GridLook, TheFrameOfTheGridWithTheFocusIsHighlighted) {
    other->setFocus();
    const QColor before = picture().pixelColor(0, 30);
    grid->setFocus();
    EXPECT_EQ(picture().pixelColor(0, 30), QColor(0, 120, 215));
    EXPECT_EQ(picture().pixelColor(30, 3 * cellSide + 1), QColor(0, 120, 215));
    other->setFocus();
    EXPECT_EQ(picture().pixelColor(0, 30), before);
    EXPECT_NE(before, QColor(0, 120, 215));
}

TEST_F(GridLook, TheCurrentCellIsOutlinedFromTheFirstMomentOnTheMarkToo) {
    mark(1, 1);
    other->setFocus();
    EXPECT_EQ(corner(picture(), 1, 1), ToColor(red));
    grid->setFocus(Qt::TabFocusReason);
    const QImage marked = picture();
    EXPECT_GE(contrast(corner(marked, 1, 1), ToColor(red)), enoughContrast);
    EXPECT_EQ(corner(marked, 0, 0), ToColor(pale));
    QTest::keyClick(grid, Qt::Key_Down);
    const QImage moved = picture();
    EXPECT_EQ(corner(moved, 1, 1), ToColor(red));
    EXPECT_GE(contrast(corner(moved, 2, 1), ToColor(pale)), enoughContrast);
    other->setFocus();
    EXPECT_EQ(corner(picture(), 2, 1), ToColor(pale));
}

/// The darkest pixel within a cell.
QColor darkest(const QImage& image, int row, int column) {
    QColor found(Qt::white);
    for (int y = 2; y < cellSide - 1; ++y) {
        for (int x = 2; x < cellSide - 1; ++x) {
            const QColor pixel =
                image.pixelColor(1 + column * cellSide + x, 1 + row * cellSide + y);
            if (luminance(pixel) < luminance(found))
                found = pixel;
        }
    }
    return found;
}

TEST_F(GridLook, TextsOfADisabledGridFadeToHalfAndTheGroundStays) {
    grid->SetFontPixelSize(15);
    grid->SetTextMatrix(0, 0, QStringLiteral("\u2588")); // a full block
    EXPECT_EQ(darkest(picture(), 0, 0), ToColor(navy));
    grid->setEnabled(false);
    const QImage faded = picture();
    const QColor ink = darkest(faded, 0, 0);
    EXPECT_NEAR(ink.red(), (0 + 192) / 2, 2);
    EXPECT_NEAR(ink.green(), (0 + 255) / 2, 2);
    EXPECT_NEAR(ink.blue(), (128 + 255) / 2, 2);
    EXPECT_EQ(corner(faded, 2, 2), ToColor(pale));
}

} // namespace
