// SPDX-License-Identifier: MIT
#include "platform/combobox_test.h"

#include <QAbstractItemView>
#include <QScrollBar>
#include <QStyle>

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
    EXPECT_NEAR(chosen.center().y(), height / 2.0, chosen.height());
    EXPECT_TRUE(view->verticalScrollBar()->isVisible());
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

TEST_F(Combo, ARowIsShownInTheLetterSizeThatItsLongestTextNeeds) {
    auto* neighbour = new ComboBox(QStringLiteral("Combo2"), &window);
    neighbour->setGeometry(100, 50, 80, 24);
    neighbour->SetOnlyItem(QStringLiteral("HHH"));
    list->SetOnlyItem(QStringLiteral("HHH"));
    ComboBox::ShareLetterSize({list, neighbour});
    show();
    const int whole = inkHeight(*neighbour);
    list->SetOnlyItem(QString(8, u'H'));
    const int small = inkHeight(*neighbour);
    EXPECT_LT(small, whole);
    EXPECT_EQ(small, inkHeight(*list));
    list->hide();
    EXPECT_EQ(inkHeight(*neighbour), whole);
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

} // namespace
