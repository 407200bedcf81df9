// SPDX-License-Identifier: MIT
#include "platform/buttonstack.h"
#include "platform/commandbutton.h"
#include "support/widget_test.h"

#include <QLineEdit>

namespace {

const QString closePicture = QStringLiteral("buttons/close");

class Buttons : public WidgetTest {
protected:
    Buttons() : other(new QLineEdit(&window)) { other->move(100, 0); }

    void show() {
        window.resize(300, 200);
        window.show();
        window.activateWindow();
        other->setFocus();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        ASSERT_TRUE(waitUntil([this] { return other->hasFocus(); }));
    }

    QWidget window;
    QLineEdit* other;
};

class OneButton : public Buttons {
protected:
    OneButton() : button(new CommandButton(QStringLiteral("Command1_1"), closePicture, &window)) {
        QObject::connect(button, &CommandButton::MouseDown, button,
                         [this](Qt::MouseButton pressed) { presses.push_back(pressed); });
        QObject::connect(button, &CommandButton::clicked, button, [this] { ++clicks; });
    }

    CommandButton* button;
    std::vector<Qt::MouseButton> presses;
    int clicks = 0;
};

TEST_F(OneButton, HasItsNameSizeAndPicture) {
    EXPECT_EQ(button->objectName(), QStringLiteral("Command1_1"));
    EXPECT_EQ(button->size(), QSize(CommandButton::side, CommandButton::side));
    EXPECT_EQ(button->iconSize(), QSize(CommandButton::pictureSide, CommandButton::pictureSide));
    EXPECT_FALSE(button->icon().pixmap(CommandButton::pictureSide).isNull());
}

TEST_F(OneButton, EveryMouseButtonIsToldAtThePress) {
    show();
    for (const Qt::MouseButton pressed : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        presses.clear();
        QTest::mousePress(button, pressed);
        EXPECT_EQ(presses, std::vector<Qt::MouseButton>{pressed});
        EXPECT_EQ(clicks, 0) << "not before the release";
        QTest::mouseRelease(button, pressed);
        EXPECT_EQ(clicks, pressed == Qt::LeftButton ? 1 : 0);
        clicks = 0;
        EXPECT_EQ(presses.size(), 1U);
    }
}

TEST_F(OneButton, SpaceReturnAndEnterClick) {
    show();
    button->setFocus();
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        clicks = 0;
        QTest::keyClick(button, key);
        EXPECT_EQ(clicks, 1) << key;
    }
    EXPECT_EQ(presses.size(), 0U);
}

TEST_F(OneButton, DisabledOnesDoNothing) {
    show();
    button->setEnabled(false);
    click(button);
    QTest::keyClick(button, Qt::Key_Return);
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(presses.size(), 0U);
}

TEST_F(OneButton, AClickTakesTheFocus) {
    show();
    click(button);
    EXPECT_TRUE(button->hasFocus());
    button->SetTabStop(false);
    other->setFocus();
    click(button);
    EXPECT_TRUE(button->hasFocus()) << "also where Tab does not lead";
}

TEST_F(OneButton, TabLeadsToTabStopsOnly) {
    show();
    QTest::keyClick(other, Qt::Key_Tab);
    EXPECT_TRUE(button->hasFocus());
    other->setFocus();
    button->SetTabStop(false);
    QTest::keyClick(other, Qt::Key_Tab);
    EXPECT_FALSE(button->hasFocus());
}

class Stack : public Buttons {
protected:
    Stack()
        : stack(QStringLiteral("Command2"),
                {QStringLiteral("moon/phase0"), QStringLiteral("moon/phase1"),
                 QStringLiteral("moon/phase2")},
                &window) {
        stack.Move(10, 40);
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
    click(seen());
    EXPECT_EQ(clicks, 1);
}

} // namespace
