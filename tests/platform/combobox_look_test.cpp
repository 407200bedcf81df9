// SPDX-License-Identifier: MIT
#include "platform/combobox_test.h"
#include "support/ink.h"
#include "support/paintsof.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOption>

namespace {

/// Names of styles that show lists as menus and of one that does not.
class ComboInStyle : public Combo, public testing::WithParamInterface<const char*> {
protected:
    ComboInStyle() : m_formerStyle(QApplication::style()->name()) {
        QApplication::setStyle(QLatin1String(GetParam()));
    }
    ~ComboInStyle() override { QApplication::setStyle(m_formerStyle); }

private:
    QString m_formerStyle;
};

TEST_P(ComboInStyle, FifteenEntriesDropDownTheChosenOneInTheirMiddle) {
    ASSERT_EQ(QApplication::style()->name(), QLatin1String(GetParam()));
    offerYears(1500);
    show();
    focusList();
    list->showPopup();
    ASSERT_TRUE(waitUntil([this] { return isOpen(); }));
    processEvents();
    const QAbstractItemView* view = list->view();
    const QRect chosen = view->visualRect(view->currentIndex());
    EXPECT_EQ(view->currentIndex().row(), 1499);
    const int height = view->viewport()->height();
    EXPECT_LE(height, 15 * chosen.height() + chosen.height() / 2);
    EXPECT_GE(height, 14 * chosen.height());
    EXPECT_EQ(list->maxVisibleItems(), 15);
    EXPECT_NEAR(chosen.center().y(), height / 2.0, chosen.height());
    EXPECT_TRUE(view->verticalScrollBar()->isVisible());
}

// The pixels that a list shows for its entry alone.
QRect inkOf(ComboBox& list) {
    const QImage full = list.grab().toImage();
    const QString text = list.Text();
    list.SetOnlyItem({});
    const QImage empty = list.grab().toImage();
    list.SetOnlyItem(text);
    return DifferingPixels(full, empty);
}

// Some styles shade from the top to the bottom; an arrow differs from what is beside it.
bool isPlain(const QImage& image, const QRect& part) {
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            if (image.pixel(x, y) != image.pixel(part.left(), y))
                return false;
    return true;
}

TEST_P(ComboInStyle, TheArrowStandsAtTheEndOfALineAndCoversNoEntry) {
    show();
    list->SetOnlyItem(QStringLiteral("Hebrew"));
    list->resize(100, 60);
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        SCOPED_TRACE(direction);
        list->setLayoutDirection(direction);
        const QRect ink = inkOf(*list);
        const QRect whole = list->rect();
        list->SetOnlyItem({});
        const QImage empty = list->grab().toImage();
        EXPECT_TRUE(isPlain(empty, ink));
        const bool fromRight = direction == Qt::RightToLeft;
        EXPECT_LT(fromRight ? whole.right() - ink.right() : ink.left(), 10);
        const QRect end(fromRight ? 6 : whole.right() - 15, 10, 10, 40);
        EXPECT_FALSE(isPlain(empty, end)) << "the arrow";
        list->SetOnlyItem(QStringLiteral("Hebrew"));
    }
}

TEST_P(ComboInStyle, WordsAreWrappedBeforeTheirLettersShrink) {
    show();
    QFont font = list->font();
    font.setPixelSize(20);
    list->setFont(font);
    const QStringList names{QStringLiteral("Hxxx"), QStringLiteral("Hxxx Hxxx")};
    const int lineHeight = QFontMetrics(font).lineSpacing();
    const int oneLine = list->HeightFor({names.first()}, 90);
    const int twoLines = list->HeightFor(names, 90);
    EXPECT_EQ(oneLine, list->sizeHint().height());
    EXPECT_EQ(twoLines - oneLine, lineHeight);
    list->SetOnlyItem(names.first());
    list->resize(90, twoLines);
    const QRect one = inkOf(*list);
    list->SetOnlyItem(names.last());
    const QRect two = inkOf(*list);
    EXPECT_EQ(two.width(), one.width());
    EXPECT_NEAR(two.height() - one.height(), lineHeight, 2);
    list->resize(90, one.height() + 8);
    EXPECT_LT(inkOf(*list).height(), one.height()) << "there is no room for a second line";
}

TEST_P(ComboInStyle, AShortListDropsDownWhole) {
    show();
    focusList();
    list->showPopup();
    ASSERT_TRUE(waitUntil([this] { return isOpen(); }));
    const QAbstractItemView* view = list->view();
    for (int row = 0; row < 3; ++row)
        EXPECT_TRUE(
            view->viewport()->rect().contains(view->visualRect(view->model()->index(row, 0))));
    EXPECT_FALSE(view->verticalScrollBar()->isVisible());
}

TEST_P(ComboInStyle, AListInWhichALetterWasTypedHasItsBarToo) {
    show();
    focusList();
    QTest::keyClick(list, Qt::Key_T); // for which the toolkit makes the list that drops down
    offerYears(1500);
    list->showPopup();
    ASSERT_TRUE(waitUntil([this] { return isOpen(); }));
    processEvents();
    EXPECT_TRUE(list->view()->verticalScrollBar()->isVisible());
}

INSTANTIATE_TEST_SUITE_P(Styles, ComboInStyle, testing::Values("fusion", "windows", "adwaita"));

TEST_F(Combo, TextsTooWideAreShownSmaller) {
    show();
    list->SetOnlyItem(QStringLiteral("W"));
    const QImage fitting = list->grab().toImage();
    list->SetOnlyItem(QString(60, u'W'));
    const QImage wide = list->grab().toImage();
    EXPECT_FALSE(wide.isNull());
    EXPECT_EQ(wide.size(), fitting.size());
    EXPECT_NE(wide, fitting);
}

// The height of what is drawn darker than half.
int inkHeight(ComboBox& list) {
    const QImage image = list.grab().toImage();
    int first = image.height();
    int last = -1;
    for (int y = 5; y < image.height() - 5; ++y) {
        for (int x = 5; x < image.width() - 25; ++x) {
            if (qGray(image.pixel(x, y)) < 110) {
                first = std::min(first, y);
                last = std::max(last, y);
            }
        }
    }
    return last - first + 1;
}

class RowOfTwo : public Combo {
protected:
    RowOfTwo() : neighbour(new ComboBox(QStringLiteral("Combo2"), &window)) {
        neighbour->setGeometry(100, 50, 80, 24);
        neighbour->SetOnlyItem(QStringLiteral("HHH"));
        list->SetOnlyItem(QStringLiteral("HHH"));
        ComboBox::ShareLetterSize({list, neighbour});
        show();
    }

    ComboBox* neighbour;
};

TEST_F(RowOfTwo, IsShownInTheLetterSizeThatItsLongestTextNeeds) {
    const int whole = inkHeight(*neighbour);
    list->SetOnlyItem(QString(8, u'H'));
    const int small = inkHeight(*neighbour);
    EXPECT_LT(small, whole);
    EXPECT_EQ(small, inkHeight(*list));
    list->hide();
    EXPECT_EQ(inkHeight(*neighbour), whole);
}

TEST_F(RowOfTwo, IsPaintedWhenTheTextOfOneChanges) {
    processEvents();
    const PaintsOf paints(*neighbour);
    list->SetOnlyItem(QString(8, u'H'));
    EXPECT_TRUE(waitUntil([&paints] { return paints.count > 0; }));
}

TEST_F(RowOfTwo, KeepsEachListsOwnFontWhereAllLettersAreAsLarge) {
    const QImage before = list->grab().toImage();
    QFont bold = neighbour->font();
    bold.setBold(true);
    neighbour->setFont(bold);
    EXPECT_EQ(list->grab().toImage(), before);
}

TEST_F(Combo, IsPaintedWhenTheFocusComes) {
    show();
    processEvents();
    const PaintsOf paints(*list);
    focusList();
    EXPECT_TRUE(waitUntil([&paints] { return paints.count > 0; }));
}

TEST_F(Combo, ItsLettersFollowTheFont) {
    list->SetOnlyItem(QStringLiteral("HHH"));
    list->resize(80, 60);
    QFont font = list->font();
    font.setPixelSize(40);
    list->setFont(font);
    const int narrowed = inkHeight(*list);
    font.setPixelSize(8);
    list->setFont(font);
    EXPECT_LT(inkHeight(*list), narrowed - 2);
}

TEST_F(Combo, ItsWidthIsTakenFromTheFont) {
    for (const int points : {9, 14, 22}) {
        QFont font = list->font();
        font.setPointSize(points);
        list->setFont(font);
        list->SetOnlyItem(QStringLiteral("2888"));
        list->resize(300, 60);
        list->repaint();
        const int whole = inkHeight(*list);
        list->resize(list->WidthFor(QStringLiteral("2888")), 60);
        EXPECT_EQ(inkHeight(*list), whole) << points;
        list->resize(list->width() - points, 60);
        EXPECT_LT(inkHeight(*list), whole) << points;
    }
}

TEST_F(Combo, AListDropsDownAsWideAsItsEntries) {
    const QString wide(40, u'W');
    list->SetItems({QStringLiteral("one"), wide}, 0);
    show();
    focusList();
    list->showPopup();
    ASSERT_TRUE(waitUntil([this] { return isOpen(); }));
    processEvents();
    EXPECT_GE(list->view()->viewport()->width(),
              QFontMetrics(list->view()->font()).horizontalAdvance(wide));
    EXPECT_EQ(list->view()->textElideMode(), Qt::ElideNone) << "on a narrow screen neither";
}

TEST_F(Combo, ItsEntryHasTheColorOfTheTextsOfFields) {
    QPalette colors = list->palette();
    colors.setColor(QPalette::WindowText, Qt::blue);
    colors.setColor(QPalette::ButtonText, Qt::blue);
    colors.setColor(QPalette::Text, Qt::red);
    list->setPalette(colors);
    QFont font = list->font();
    font.setPixelSize(30);
    font.setBold(true);
    list->setFont(font);
    list->resize(200, 60);
    list->SetOnlyItem(QStringLiteral("HHH"));
    show();
    const QImage image = list->grab().toImage();
    int red = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            red += static_cast<int>(image.pixelColor(x, y) == QColor(Qt::red));
    EXPECT_GT(red, 0);
}

TEST_F(Combo, ItsWidthIsThatOfItsTextAnd24Pixels) {
    const QString text = QStringLiteral("2888");
    EXPECT_EQ(list->WidthFor(text), QFontMetrics(list->font()).horizontalAdvance(text) + 24);
}

TEST_F(Combo, AFieldKeeps24PixelsBesideItsText) {
    list->setEditable(true);
    show();
    EXPECT_EQ(list->WidthFor({}), list->width() - list->lineEdit()->width() + 24);
    const int field = list->lineEdit()->width();
    list->resize(list->width() + 30, list->height());
    EXPECT_EQ(list->lineEdit()->width(), field + 30);
}

// A line without gaps, too long for the smallest letters: what is seen of it is all the room.
TEST_F(Combo, ItsEntryHasTheRoomFromItsFifthPixelToTheArrow) {
    show();
    list->resize(80, 24);
    list->SetOnlyItem(QString(60, u'_'));
    const QRect ink = inkOf(*list);
    EXPECT_EQ(ink.left(), 5);
    EXPECT_EQ(ink.right(), 62);
}

TEST_F(Combo, TwoLinesNeedTheirHeightAndFourPixels) {
    show();
    QFont font = list->font();
    font.setPixelSize(20);
    list->setFont(font);
    const QString text = QStringLiteral("Hxxx Hxxx");
    list->SetOnlyItem(text);
    const int lines =
        QFontMetrics(font).boundingRect(QRect(0, 0, 66, 1000), Qt::TextWordWrap, text).height();
    list->resize(90, lines + 4);
    const QRect whole = inkOf(*list);
    list->resize(90, lines + 3);
    EXPECT_LT(inkOf(*list).width(), whole.width());
}

TEST_F(Combo, AsksForTheRoomOfALetterWhateverItHolds) {
    const QString wide(60, u'W');
    list->SetOnlyItem(wide);
    show();
    EXPECT_LT(list->sizeHint().width(), QFontMetrics(list->font()).horizontalAdvance(wide) / 4);
    EXPECT_EQ(list->minimumContentsLength(), 1);
}

TEST_F(Combo, ATextIsOnOneLineInTheWidthThatItAsksForAndNotInLess) {
    const QString name = QStringLiteral("November");
    const int width = list->WidthFor(name);
    const int oneLine = list->sizeHint().height();
    EXPECT_EQ(list->HeightFor({name}, width), oneLine);
    EXPECT_GT(list->HeightFor({name}, width - 1), oneLine);
}

TEST_F(Combo, ATextTooWideForItsRoomGetsLettersThatFit) {
    QFont large = window.font();
    large.setPixelSize(20);
    window.setFont(large);
    const QString year = QStringLiteral("2888");
    const int whole = list->FitWidth(year, 1000);
    EXPECT_EQ(list->FitWidth(year, whole), whole);
    EXPECT_EQ(list->WidthFor(year), whole);
    EXPECT_LE(list->FitWidth(year, whole - 5), whole - 5);
    EXPECT_LE(list->WidthFor(year), whole - 5);
    EXPECT_EQ(list->FitWidth(year, 10), 10) << "the least letters are too large";
    EXPECT_EQ(list->FitWidth(year, whole), whole) << "large letters again";
}

// Both heights, as half a pixel is rounded away in one of them.
TEST_F(Combo, ItsEntryStandsInTheMiddleOfItsHeight) {
    QFont font = list->font();
    font.setPixelSize(12);
    list->setFont(font);
    list->SetOnlyItem(QStringLiteral("HHH"));
    show();
    for (const int height : {24, 25}) {
        list->resize(80, height);
        QImage expected(80, height, QImage::Format_RGB32);
        expected.fill(Qt::white);
        QPainter painter(&expected);
        painter.setFont(font);
        painter.drawText(QRect(5, 2, 58, height - 4), Qt::AlignVCenter, list->Text());
        painter.end();
        const QRect ink = inkOf(*list);
        EXPECT_EQ(ink.top(), InkOf(expected).top()) << height;
        EXPECT_EQ(ink.bottom(), InkOf(expected).bottom()) << height;
    }
}

// Left of the arrow an empty list looks as it does behind it.
TEST_F(Combo, ItsArrowStandsInTheTwelvePixelsBeforeItsBorder) {
    list->SetOnlyItem({});
    show();
    list->resize(80, 24);
    const QImage drawn = list->grab().toImage();
    QImage expected = drawn;
    for (int y = 4; y < 20; ++y)
        for (int x = 62; x < 77; ++x)
            expected.setPixel(x, y, drawn.pixel(40, y));
    EXPECT_NE(expected, drawn);
    QStyleOption arrow;
    arrow.initFrom(list);
    arrow.rect = QRect(64, 2, 12, 20);
    QPainter painter(&expected);
    list->style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, &painter, list);
    painter.end();
    EXPECT_EQ(DifferingPixels(drawn, expected), QRect());
}

} // namespace
