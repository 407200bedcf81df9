// SPDX-License-Identifier: MIT
#include "platform/buttonstack.h"

#include "platform/buttons_test.h"
#include "platform/commandbutton.h"

namespace {

class Stack : public Buttons {
protected:
    Stack()
        : stack(QStringLiteral("Command2"),
                {QStringLiteral("moon/phase0"), QStringLiteral("moon/phase1"),
                 QStringLiteral("moon/phase2")},
                &window) {
        stack.Place(10, 40, CommandButton::side);
        QObject::connect(&stack, &ButtonStack::Click, &stack, [this] { ++clicks; });
    }

    QWidget* seen() { return window.childAt(10 + CommandButton::side / 2, 40 + 5); }

    std::vector<bool> tabStops() const {
        std::vector<bool> stops;
        for (const CommandButton* button : stack.Buttons())
            stops.push_back((button->focusPolicy() & Qt::TabFocus) != 0);
        return stops;
    }

    ButtonStack stack;
    int clicks = 0;
};

TEST_F(Stack, CountsItsButtonsFromZero) {
    ASSERT_EQ(stack.Buttons().size(), 3U);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(stack.Buttons()[static_cast<std::size_t>(i)]->objectName(),
                  QStringLiteral("Command2_%1").arg(i));
    EXPECT_EQ(stack.Front(), stack.Buttons()[0]);
    EXPECT_EQ(tabStops(), (std::vector<bool>{true, false, false}));
}

TEST_F(Stack, OnlyTheOneInFrontIsSeenAndReachedByTab) {
    show();
    for (const int front : {2, 0, 1, 1}) {
        stack.BringToFront(front);
        EXPECT_EQ(seen(), stack.Buttons()[static_cast<std::size_t>(front)]);
        EXPECT_EQ(stack.Front(), seen());
        std::vector<bool> stops(3, false);
        stops[static_cast<std::size_t>(front)] = true;
        EXPECT_EQ(tabStops(), stops);
    }
}

TEST_F(Stack, TheFocusGoesAlong) {
    show();
    stack.Front()->setFocus();
    stack.BringToFront(2);
    EXPECT_TRUE(stack.Buttons()[2]->hasFocus());
    other->setFocus();
    stack.BringToFront(1);
    EXPECT_TRUE(other->hasFocus()) << "only where the stack had it";
}

TEST_F(Stack, AnIndexOutOfRangeIsIgnored) {
    stack.BringToFront(1);
    for (const int index : {-1, 3, 99}) {
        stack.BringToFront(index);
        EXPECT_EQ(stack.Front(), stack.Buttons()[1]);
    }
    EXPECT_EQ(tabStops(), (std::vector<bool>{false, true, false}));
}

TEST_F(Stack, ClicksOfTheFrontOneAreTold) {
    show();
    stack.BringToFront(2);
    QTest::mousePress(seen(), Qt::LeftButton);
    EXPECT_EQ(clicks, 0) << "not before the release";
    QTest::mouseRelease(seen(), Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
}

TEST_F(Stack, TheOneInFrontHasItsFormersPlaceAmongTheTabStops) {
    auto* next = new QLineEdit(&window);
    next->move(200, 0);
    QWidget::setTabOrder(stack.Front(), next); // the others of the stack come behind it
    show();
    stack.BringToFront(2);
    QTest::keyClick(other, Qt::Key_Tab);
    EXPECT_TRUE(stack.Front()->hasFocus());
    QTest::keyClick(stack.Front(), Qt::Key_Tab);
    EXPECT_TRUE(next->hasFocus());
}

TEST_F(Stack, TheOneInFrontLiesOverWhatElseStandsThere) {
    auto* cover = new QLineEdit(&window);
    cover->setGeometry(10, 40, 60, 60);
    show();
    EXPECT_EQ(seen(), cover);
    stack.BringToFront(1);
    EXPECT_EQ(seen(), stack.Buttons()[1]);
}

} // namespace
