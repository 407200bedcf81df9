// SPDX-License-Identifier: MIT
#include "platform/comboboxaccessible.h"

#include "platform/combobox.h"
#include "support/platform_accessible.h"
#include "support/platform_test.h"

#include <QAbstractItemView>
#include <QLineEdit>

namespace {

using Told = AccessibleWatch::Told;

class AccessibleCombo : public PlatformTest {
protected:
    AccessibleCombo() : list(new ComboBox(QStringLiteral("Combo1"), &window)) {
        window.resize(300, 200);
        list->SetItems({QStringLiteral("2025"), QStringLiteral("2026"), QStringLiteral("2027")}, 1);
        list->setAccessibleName(QStringLiteral("Gregorian calendar, Year"));
        list->setToolTip(QStringLiteral("Year"));
    }

    ~AccessibleCombo() override { list->hidePopup(); }

    void show() {
        showWithFocus(window, *list);
        processEvents();
    }

    void act(const QString& name) { accessible(*list).actionInterface()->doAction(name); }

    QWidget window;
    ComboBox* list;
    const QString press = QAccessibleActionInterface::pressAction();
    const QString showMenu = QAccessibleActionInterface::showMenuAction();
};

TEST_F(AccessibleCombo, HasItsNameAndItsValue) {
    for (const QString& tip : {QStringLiteral("Year"), QString()}) {
        list->setToolTip(tip);
        QAccessibleInterface& told = accessible(*list);
        EXPECT_EQ(told.role(), QAccessible::ComboBox);
        EXPECT_EQ(told.text(QAccessible::Name), QStringLiteral("Gregorian calendar, Year"));
        EXPECT_EQ(told.text(QAccessible::Value), QStringLiteral("2026"));
        EXPECT_EQ(told.text(QAccessible::Description), QString());
    }
}

TEST_F(AccessibleCombo, ItsTextIsTheChosenEntry) {
    QAccessibleTextInterface* text = accessible(*list).textInterface();
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->characterCount(), 4);
    EXPECT_EQ(text->text(0, 4), QStringLiteral("2026"));
    EXPECT_EQ(text->text(2, 4), QStringLiteral("26"));
    list->SetListIndex(0);
    EXPECT_EQ(text->text(0, 4), QStringLiteral("2025"));
    EXPECT_FALSE(accessible(*list).state().editable);
}

TEST_F(AccessibleCombo, ItsActionsOpenAndCloseTheList) {
    show();
    EXPECT_TRUE(accessible(*list).state().hasPopup);
    EXPECT_TRUE(accessible(*list).state().expandable);
    EXPECT_TRUE(accessible(*list).state().collapsed);
    EXPECT_FALSE(accessible(*list).state().expanded);
    EXPECT_EQ(accessible(*list).childCount(), 0);
    QAccessibleActionInterface* actions = accessible(*list).actionInterface();
    EXPECT_EQ(actions->keyBindingsForAction(showMenu), QStringList{QStringLiteral("Alt+Down")});
    EXPECT_EQ(actions->keyBindingsForAction(press), QStringList());
    for (const QString& action : {press, showMenu}) {
        ASSERT_TRUE(accessible(*list).actionInterface()->actionNames().contains(action));
        act(action);
        ASSERT_TRUE(waitUntil([this] { return list->view()->isVisible(); }));
        EXPECT_TRUE(accessible(*list).state().expanded);
        EXPECT_FALSE(accessible(*list).state().collapsed);
        ASSERT_EQ(accessible(*list).childCount(), 1);
        QAccessibleInterface* entries = accessible(*list).child(0);
        EXPECT_EQ(entries->parent(), &accessible(*list));
        EXPECT_EQ(accessible(*list).indexOfChild(entries), 0);
        EXPECT_EQ(entries->text(QAccessible::Name), QStringLiteral("Gregorian calendar, Year"));
        ASSERT_EQ(entries->childCount(), 3);
        EXPECT_EQ(entries->child(2)->text(QAccessible::Name), QStringLiteral("2027"));
        act(action);
        ASSERT_TRUE(waitUntil([this] { return !list->view()->isVisible(); }));
    }
}

TEST_F(AccessibleCombo, ADisabledListIsNotOpened) {
    show();
    list->setEnabled(false);
    act(press);
    EXPECT_EQ(accessible(*list).childCount(), 0);
}

TEST_F(AccessibleCombo, TakesTheFocusWhenAsked) {
    auto* other = new QLineEdit(&window);
    other->show();
    show();
    other->setFocus();
    act(QAccessibleActionInterface::setFocusAction());
    EXPECT_TRUE(list->hasFocus());
}

TEST_F(AccessibleCombo, AFieldHasItsEditableTextBesides) {
    list->setEditable(true);
    list->lineEdit()->setAccessibleName(QStringLiteral("Julian Day"));
    show();
    EXPECT_TRUE(accessible(*list).state().editable);
    ASSERT_EQ(accessible(*list).childCount(), 1);
    QAccessibleInterface* field = accessible(*list).child(0);
    EXPECT_EQ(field->role(), QAccessible::EditableText);
    EXPECT_EQ(field->parent(), &accessible(*list));
    field->setText(QAccessible::Value, QStringLiteral("2461365"));
    EXPECT_EQ(list->Text(), QStringLiteral("2461365"));
}

TEST_F(AccessibleCombo, PressingAFieldIsReturn) {
    list->setEditable(true);
    show();
    int clicks = 0;
    QObject::connect(list, &ComboBox::Click, list, [&clicks] { ++clicks; });
    act(press);
    EXPECT_EQ(clicks, 1);
    EXPECT_FALSE(list->view()->isVisible());
    act(showMenu);
    EXPECT_TRUE(waitUntil([this] { return list->view()->isVisible(); }));
}

TEST_F(AccessibleCombo, EntriesAreSpokenAsTheListSays) {
    EXPECT_EQ(list->Spoken(), QStringLiteral("2026"));
    list->SetSpokenEntries([](int position) { return QStringLiteral("year %1").arg(position); });
    EXPECT_EQ(list->Spoken(), QStringLiteral("year 1"));
    EXPECT_EQ(accessible(*list).text(QAccessible::Value), QStringLiteral("year 1"));
    EXPECT_EQ(list->Text(), QStringLiteral("2026"));
    list->showPopup();
    EXPECT_EQ(accessible(*list).child(0)->child(2)->text(QAccessible::Name),
              QStringLiteral("year 2"));
}

TEST_F(AccessibleCombo, NothingOfItsTextIsSelectedAndAllOfItLooksAlike) {
    const QAccessibleTextInterface* text = accessible(*list).textInterface();
    int start = 7;
    int end = 7;
    text->selection(0, &start, &end);
    EXPECT_EQ(start, 0);
    EXPECT_EQ(end, 0);
    EXPECT_EQ(text->selectionCount(), 0);
    EXPECT_EQ(text->cursorPosition(), 0);
    EXPECT_EQ(text->offsetAtPoint({}), 0);
    start = end = 7;
    EXPECT_EQ(text->attributes(2, &start, &end), QString());
    EXPECT_EQ(start, 0);
    EXPECT_EQ(end, 4);
}

TEST_F(AccessibleCombo, PartsOfItsTextEndWhereTheyAreAskedTo) {
    const QAccessibleTextInterface* text = accessible(*list).textInterface();
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->text(0, 1), QStringLiteral("2"));
    EXPECT_EQ(text->text(1, 3), QStringLiteral("02"));
}

} // namespace
