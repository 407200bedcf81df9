// SPDX-License-Identifier: MIT
// How a grid shows the focus, its current cell and that it is disabled.
#include "platform/color.h"
#include "platform/flexgrid.h"
#include "platform/twips.h"
#include "support/contrast.h"
#include "support/ink.h"
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
        other->move(100, 0);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    void mark(int row, int column) {
        grid->SetRow(row);
        grid->SetCol(column);
        grid->SetCellBackColor(red);
        grid->SetCellForeColor(white);
        grid->SetSelectedCell({row, column});
    }

    QImage picture() { return grid->grab().toImage(); }

    /// As on a screen of so many pixels for one.
    QImage picture(double scale) {
        QImage image(grid->size() * scale, QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        grid->render(&image);
        return image;
    }

    /// The upper left pixel of a cell, on which an outline stands.
    static QColor corner(const QImage& image, int row, int column) {
        return image.pixelColor(1 + column * cellSide, 1 + row * cellSide);
    }

    QWidget window;
    MSFlexGrid* grid;
    QLineEdit* other;
};

TEST_F(GridLook, ATextStandsInTheMiddleOfAHighCell) {
    constexpr int height = 60;
    grid->SetRowHeight(1, ToTwips(height));
    grid->SetSize(ToTwips(3 * cellSide + 2), ToTwips(2 * cellSide + height + 2));
    grid->SetTextMatrix(1, 1, QStringLiteral("8"));
    const QRect ink = InkOf(picture().copy(1 + cellSide, 1 + cellSide, cellSide, height));
    EXPECT_NEAR(ink.center().y(), height / 2.0, 2);
}

TEST_F(GridLook, TheFrameIsOneLineOnAllSidesAtAnyScale) {
    window.resize(200, 200);
    grid->move(1, 51);
    other->setFocus();
    for (const double scale : {1.0, 1.2, 1.25, 1.33, 1.5, 1.75}) {
        QImage image(QSize(200, 200) * scale, QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        window.render(&image);
        const QPoint middle = (QPointF(grid->geometry().center()) * scale).toPoint();
        const QPoint ways[] = {{1, 0}, {-1, 0}, {0, 1}, {0, -1}};
        for (const QPoint way : ways) {
            QPoint at = middle;
            while (image.pixelColor(at) == QColor(192, 255, 255))
                at += way;
            EXPECT_EQ(image.pixelColor(at), QColor(120, 128, 152)) << scale;
            EXPECT_NE(image.pixelColor(at + way), QColor(120, 128, 152)) << scale;
        }
    }
}

/// The middle of the frame's left and lower side.
std::vector<QColor> frameOf(const QImage& image) {
    return {image.pixelColor(0, 30), image.pixelColor(30, 3 * cellSide + 1)};
}

// In the themes that are on most desktops.
TEST_F(GridLook, TheFrameOfTheGridWithTheFocusIsToldFromTheOneWithout) {
    const struct {
        QRgb ground;
        QRgb text;
    } themes[] = {{0xffefefef, 0xff000000}, {0xfff6f5f4, 0xff2e3436}, {0xff353535, 0xffffffff},
                  {0xff31363b, 0xffeff0f1}, {0xff353535, 0xffeeeeec}, {0xff000000, 0xffffffff}};
    for (const auto& theme : themes) {
        QPalette colors(QColor(theme.ground));
        colors.setColor(QPalette::WindowText, theme.text);
        window.setPalette(colors);
        other->setFocus();
        const std::vector<QColor> without = frameOf(picture());
        grid->setFocus();
        const std::vector<QColor> with = frameOf(picture());
        for (std::size_t side = 0; side < with.size(); ++side) {
            SCOPED_TRACE(QColor(theme.ground).name().toStdString());
            EXPECT_GE(contrast(with[side], without[side]), enoughContrast);
            EXPECT_GE(contrast(with[side], QColor(theme.ground)), enoughContrast);
        }
        other->setFocus();
        EXPECT_EQ(frameOf(picture()), without);
    }
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

TEST_F(GridLook, TheOutlineOfTheMarkIsToldFromTheMarkAndFromWhatLiesAroundIt) {
    for (const int ground : {white, pale, 0xC0FFFF, 0xC0FFC0}) {
        grid->SetAllCellColors(ground, navy);
        mark(1, 1);
        grid->setFocus(Qt::TabFocusReason);
        const QImage image = picture();
        const QRect cell(1 + cellSide, 1 + cellSide, cellSide, cellSide);
        for (int along = 1; along < cellSide - 1; ++along) {
            const QPoint top(cell.left() + along, cell.top());
            const QPoint right(cell.right(), cell.top() + along);
            EXPECT_GE(contrast(image.pixelColor(top), image.pixelColor(top + QPoint(0, 1))),
                      enoughContrast);
            EXPECT_GE(contrast(image.pixelColor(top), image.pixelColor(top - QPoint(0, 1))),
                      enoughContrast);
            EXPECT_GE(contrast(image.pixelColor(right), image.pixelColor(right - QPoint(1, 0))),
                      enoughContrast);
            EXPECT_GE(contrast(image.pixelColor(right), image.pixelColor(right + QPoint(1, 0))),
                      enoughContrast);
        }
    }
}

/// The pixels between the middles of the first and the last cell that are not pale.
QRect strangersIn(const QImage& image) {
    const QRect all = image.rect();
    QRect found;
    for (int y = all.height() / 6; y < all.height() * 5 / 6; ++y)
        for (int x = all.width() / 6; x < all.width() * 5 / 6; ++x)
            if (image.pixelColor(x, y) != ToColor(pale))
                found |= QRect(x, y, 1, 1);
    return found;
}

TEST_F(GridLook, TheOutlineOfACellIsItsOutermostPixelsOnFinerScreensToo) {
    mark(1, 1);
    grid->setFocus(Qt::TabFocusReason);
    for (const double scale : {1.0, 1.25, 1.5, 2.0, 3.0}) {
        SCOPED_TRACE(scale);
        const QImage image = picture(scale);
        const QRect cell = strangersIn(image);
        EXPECT_NEAR(cell.width(), cellSide * scale, 1);
        for (int along = 0; along < cell.width(); ++along) {
            EXPECT_EQ(image.pixelColor(cell.left() + along, cell.top()), ToColor(navy));
            EXPECT_EQ(image.pixelColor(cell.left() + along, cell.bottom()), ToColor(navy));
            EXPECT_EQ(image.pixelColor(cell.left(), cell.top() + along), ToColor(navy));
            EXPECT_EQ(image.pixelColor(cell.right(), cell.top() + along), ToColor(navy));
        }
        EXPECT_EQ(image.pixelColor(cell.center()), ToColor(red));
    }
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
    grid->SetFontPixelSize(18);
    grid->SetTextMatrix(0, 0, QStringLiteral("l")); // some pixels wide
    grid->SetCellFontBold(true);
    EXPECT_EQ(darkest(picture(), 0, 0), ToColor(navy));
    mark(1, 1);
    grid->setEnabled(false);
    const QImage faded = picture();
    EXPECT_EQ(faded.pixelColor(1 + cellSide + 5, 1 + cellSide + 5), ToColor(red));
    const QColor ink = darkest(faded, 0, 0);
    EXPECT_NEAR(ink.red(), (0 + 192) / 2.0, 2);
    EXPECT_NEAR(ink.green(), (0 + 255) / 2.0, 2);
    EXPECT_NEAR(ink.blue(), (128 + 255) / 2.0, 2);
    EXPECT_EQ(corner(faded, 2, 2), ToColor(pale));
}

/// How dark all that is drawn within a cell is together.
int darkness(const QImage& image, int row, int column) {
    int sum = 0;
    for (int y = 2; y < cellSide - 2; ++y)
        for (int x = 2; x < cellSide - 2; ++x)
            sum += 255 - qGray(image.pixel(1 + column * cellSide + x, 1 + row * cellSide + y));
    return sum;
}

TEST_F(GridLook, BoldTextsAreHeavierThanOthers) {
    other->setFocus();
    grid->SetTextMatrix(1, 1, QStringLiteral("8"));
    const int plain = darkness(picture(), 1, 1);
    grid->SetRow(1);
    grid->SetCol(1);
    grid->SetCellFontBold(true);
    EXPECT_GT(darkness(picture(), 1, 1), plain);
    grid->SetCellFontBold(false);
    EXPECT_EQ(darkness(picture(), 1, 1), plain);
}

TEST_F(GridLook, ATextStandsInTheMiddleOfAWideCell) {
    other->setFocus();
    grid->SetFontPixelSize(16);
    const QString text = QStringLiteral("HH"); // as much free on its left as on its right
    const double advance = QFontMetricsF(grid->font()).horizontalAdvance(text);
    const int width = static_cast<int>(std::ceil(advance)) + 20;
    grid->SetColWidth(1, ToTwips(width));
    grid->SetSize(ToTwips(2 * cellSide + width + 2), ToTwips(3 * cellSide + 2));
    grid->SetTextMatrix(1, 1, text);
    const QRect ink = InkOf(picture().copy(1 + cellSide, 1 + cellSide, width, cellSide));
    const int right = width - 1 - ink.right();
    EXPECT_GE(right, ink.left());
    EXPECT_LE(right, ink.left() + 1);
}

TEST_F(GridLook, ASingleDigitBeginsInTheMiddleOfItsCell) {
    other->setFocus();
    grid->SetFontPixelSize(16);
    grid->SetColWidth(1, ToTwips(40));
    grid->SetSize(ToTwips(2 * cellSide + 40 + 2), ToTwips(3 * cellSide + 2));
    grid->SetTextMatrix(1, 1, QStringLiteral("8"));
    const QRect ink = InkOf(picture().copy(1 + cellSide, 1 + cellSide, 40, cellSide));
    EXPECT_NEAR(ink.left(), 21, 1); // a pixel is free before the digit
}

TEST_F(GridLook, TheFrameWithTheFocusHasTheColorOfTheTextsOfWindows) {
    QPalette colors = window.palette();
    colors.setColor(QPalette::WindowText, QColor(10, 20, 30));
    colors.setColor(QPalette::Text, QColor(200, 0, 0));
    window.setPalette(colors);
    grid->setFocus();
    EXPECT_EQ(frameOf(picture()), (std::vector<QColor>{QColor(10, 20, 30), QColor(10, 20, 30)}));
}

TEST_F(GridLook, TextsAreDrawnInTheSizeThatWasSetLast) {
    other->setFocus();
    grid->SetTextMatrix(1, 1, QStringLiteral("8"));
    grid->SetRow(1);
    grid->SetCol(1);
    const auto height = [this] {
        return InkOf(picture().copy(1 + cellSide, 1 + cellSide, cellSide, cellSide)).height();
    };
    for (const bool bold : {false, true}) {
        grid->SetCellFontBold(bold);
        grid->SetFontPixelSize(8);
        const int small = height();
        grid->SetFontPixelSize(16);
        EXPECT_GT(height(), small + 3) << bold;
        EXPECT_EQ(grid->font().pixelSize(), 16);
    }
}

TEST_F(GridLook, NoCellIsPaintedBeforeTheGridIs) {
    EXPECT_EQ(MSFlexGrid(QStringLiteral("new"), 2, 2, nullptr).PaintedCells(), 0);
}

} // namespace
