// SPDX-License-Identifier: MIT
#include "platform/combobox.h"

#include "support/widget_test.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QWheelEvent>

namespace {

class Combo : public WidgetTest {
protected:
    Combo() : other(new QLineEdit(&window)), list(new ComboBox(QStringLiteral("Combo1"), &window)) {
        window.resize(300, 200);
        list->setGeometry(10, 50, 80, 24);
        list->SetItems({QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")}, 0);
        QObject::connect(list, &ComboBox::Click, list, [this] { ++clicks; });
        QObject::connect(list, &ComboBox::GotFocus, list, [this] { ++arrivals; });
        QObject::connect(list, &ComboBox::BeforeUse, list, [this] { ++uses; });
    }

    ~Combo() override { list->hidePopup(); }

    void show() {
        window.show();
        window.activateWindow();
        other->setFocus();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        ASSERT_TRUE(waitUntil([this] { return other->hasFocus(); }));
        arrivals = 0;
    }

    void focusList() {
        list->setFocus();
        ASSERT_TRUE(waitUntil([this] { return list->hasFocus(); }));
    }

    bool isOpen() const { return list->view()->isVisible(); }

    void openByKey() {
        QTest::keyClick(list, Qt::Key_F4);
        ASSERT_TRUE(waitUntil([this] { return isOpen(); }));
    }

    void chooseByMouse(int position) {
        QAbstractItemView* view = list->view();
        const QRect entry = view->visualRect(view->model()->index(position, 0));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, entry.center());
        ASSERT_TRUE(waitUntil([this] { return !isOpen(); }));
    }

    void turnWheel() {
        const QPointF middle = list->rect().center();
        QWheelEvent event(middle, list->mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, {},
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(list, &event);
    }

    QWidget window;
    QLineEdit* other;
    ComboBox* list;
    int clicks = 0;
    int arrivals = 0;
    int uses = 0;
};

TEST_F(Combo, HoldsItsTexts) {
    EXPECT_EQ(list->objectName(), QStringLiteral("Combo1"));
    EXPECT_EQ(list->ListCount(), 3);
    list->SetListIndex(2);
    EXPECT_EQ(list->Text(), QStringLiteral("three"));
    list->AddItem(QStringLiteral("four"));
    EXPECT_EQ(list->ListCount(), 4);
    EXPECT_EQ(list->ListIndex(), 2);
    list->SetOnlyItem(QStringLiteral("2026"));
    EXPECT_EQ(list->ListCount(), 1);
    EXPECT_EQ(list->Text(), QStringLiteral("2026"));
    list->Clear();
    EXPECT_EQ(list->ListCount(), 0);
    EXPECT_EQ(list->ListIndex(), -1);
}

TEST_F(Combo, ReplacedItemsAreSelectedByPosition) {
    list->SetListIndex(2);
    list->SetItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}, 1);
    EXPECT_EQ(list->ListCount(), 3);
    EXPECT_EQ(list->Text(), QStringLiteral("b"));
    list->SetItems({QStringLiteral("a")}, 5);
    EXPECT_EQ(list->ListIndex(), -1);
    list->SetItems({}, 0);
    EXPECT_EQ(list->ListCount(), 0);
    EXPECT_EQ(list->ListIndex(), -1);
}

TEST_F(Combo, ThousandsOfItemsAreTakenAtOnce) {
    QStringList years;
    for (int year = 1; year <= 3000; ++year)
        years.append(QString::number(year));
    list->SetItems(years, 2025);
    EXPECT_EQ(list->ListCount(), 3000);
    EXPECT_EQ(list->Text(), QStringLiteral("2026"));
}

TEST_F(Combo, APositionOutsideTheListSelectsNothing) {
    for (const int position : {-1, 3, 9}) {
        list->SetListIndex(0);
        list->SetListIndex(position);
        EXPECT_EQ(list->ListIndex(), -1) << position;
        EXPECT_EQ(list->Text(), QString()) << position;
    }
}

TEST_F(Combo, TheProgramsChoicesAreNoClicks) {
    show();
    list->SetListIndex(1);
    list->AddItem(QStringLiteral("four"));
    list->SetOnlyItem(QStringLiteral("five"));
    list->Clear();
    list->SetItems({QStringLiteral("six"), QStringLiteral("seven")}, 1);
    list->SetListIndex(0);
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(uses, 0);
}

TEST_F(Combo, ChoosingByKeyIsAClick) {
    show();
    focusList();
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(list->ListIndex(), 1);
    QTest::keyClick(list, Qt::Key_T, Qt::NoModifier);
    EXPECT_EQ(list->ListIndex(), 2) << "the next entry that begins so";
    EXPECT_EQ(clicks, 2);
}

TEST_F(Combo, ChoosingByMouseIsAClick) {
    show();
    focusList();
    openByKey();
    chooseByMouse(2);
    EXPECT_EQ(list->ListIndex(), 2);
    EXPECT_EQ(clicks, 1);
}

TEST_F(Combo, ChoosingTheSameEntryAgainIsAClick) {
    show();
    focusList();
    list->SetListIndex(1);
    openByKey();
    chooseByMouse(1);
    EXPECT_EQ(clicks, 1);
    openByKey();
    QTest::keyClick(list->view(), Qt::Key_Return);
    EXPECT_TRUE(waitUntil([this] { return !isOpen(); }));
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(list->ListIndex(), 1);
}

TEST_F(Combo, ClosingTheListWithoutAChoiceIsNoClick) {
    show();
    focusList();
    openByKey();
    QTest::keyClick(list->view(), Qt::Key_Escape);
    EXPECT_TRUE(waitUntil([this] { return !isOpen(); }));
    EXPECT_EQ(clicks, 0);
}

TEST_F(Combo, TheFocusIsToldWhenItComes) {
    show();
    focusList();
    EXPECT_EQ(arrivals, 1);
    other->setFocus();
    EXPECT_EQ(arrivals, 1);
    QTest::mouseClick(list, Qt::LeftButton);
    EXPECT_EQ(arrivals, 2);
}

TEST_F(Combo, TheFocusGivenBackByTheListIsNoArrival) {
    show();
    focusList();
    arrivals = 0;
    openByKey();
    chooseByMouse(1);
    EXPECT_TRUE(waitUntil([this] { return list->hasFocus(); }));
    EXPECT_EQ(arrivals, 0);
}

TEST_F(Combo, AListThatIsFilledOnFocusOpensFull) {
    list->SetOnlyItem(QStringLiteral("2026"));
    QObject::connect(list, &ComboBox::BeforeUse, list, [this] {
        if (list->ListCount() == 1)
            list->AddItem(QStringLiteral("2027"));
    });
    show();
    QTest::mouseClick(list, Qt::LeftButton);
    ASSERT_TRUE(waitUntil([this] { return isOpen(); }));
    EXPECT_EQ(list->view()->model()->rowCount(), 2);
}

TEST_F(Combo, EveryUseIsToldBefore) {
    show();
    focusList();
    EXPECT_EQ(uses, 0);
    list->showPopup();
    EXPECT_EQ(uses, 1);
    list->hidePopup();
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ(uses, 2);
    turnWheel();
    EXPECT_EQ(uses, 3);
}

TEST_F(Combo, BeforeUseComesBeforeTheChoice) {
    show();
    focusList();
    std::vector<int> chosen;
    QObject::connect(list, &ComboBox::BeforeUse, list,
                     [&] { chosen.push_back(list->ListIndex()); });
    QTest::keyClick(list, Qt::Key_Down);
    turnWheel();
    EXPECT_EQ(chosen, (std::vector<int>{0, 1}));
    EXPECT_EQ(list->ListIndex(), 2);
    EXPECT_EQ(clicks, 2);
}

TEST_F(Combo, TheWheelWithoutTheFocusChangesNothing) {
    show();
    turnWheel();
    EXPECT_EQ(list->ListIndex(), 0);
    EXPECT_EQ(uses, 0);
    EXPECT_EQ(clicks, 0);
    EXPECT_FALSE(list->hasFocus());
}

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

} // namespace
