// SPDX-License-Identifier: MIT
#include "platform/combobox_test.h"

#include <QWheelEvent>
#include <functional>
#include <utility>

namespace {

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

TEST_F(Combo, TheWheelWithoutTheFocusIsLeftToWhatTheListStandsOn) {
    show();
    const QPointF middle = list->rect().center();
    QWheelEvent turn(middle, list->mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, {},
                     Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(list, &turn);
    EXPECT_FALSE(turn.isAccepted());
}

TEST_F(Combo, TheWheelWithoutTheFocusChangesNothing) {
    show();
    turnWheel(*list);
    EXPECT_EQ(list->ListIndex(), 0);
    EXPECT_EQ(clicks, 0);
    EXPECT_FALSE(list->hasFocus());
    EXPECT_EQ(list->focusPolicy(), Qt::StrongFocus) << "no turn brings the focus";
}

// Filling

TEST_F(Combo, NumbersBecomeEntries) {
    const ListEntries entries = NumberedEntries(3, 5, 4);
    EXPECT_EQ(entries.texts, QStringLiteral("3 4 5").split(u' '));
    EXPECT_EQ(entries.chosen, 1);
    EXPECT_EQ(NumberedEntries(3, 5, 3).chosen, 0);
    EXPECT_EQ(NumberedEntries(3, 5, 5).chosen, 2);
    EXPECT_TRUE(NumberedEntries(3, 5, 2).texts.isEmpty());
    EXPECT_TRUE(NumberedEntries(3, 5, 6).texts.isEmpty());
    EXPECT_EQ(NumberedEntries(3, 5, 6).chosen, -1);
}

TEST_F(Combo, AShortListIsFilledWhenTheFocusComes) {
    offerYears(2026);
    show();
    EXPECT_EQ(fillings, 0);
    focusList();
    EXPECT_EQ(fillings, 1);
    EXPECT_EQ(list->ListCount(), 3000);
    EXPECT_EQ(list->Text(), QStringLiteral("2026"));
    EXPECT_EQ(clicks, 0);
    other->setFocus();
    focusList();
    EXPECT_EQ(fillings, 1) << "a full list stays";
}

TEST_F(Combo, AShortListIsFilledBeforeEveryUse) {
    show();
    focusList();
    const std::vector<std::pair<std::function<void()>, const char*>> uses{
        {[this] { QTest::keyClick(list, Qt::Key_Down); }, "2027"},
        {[this] { turnWheel(*list); }, "2027"},
        {[this] { type("2027"); }, "2027"},
        {[this] {
             list->showPopup();
             list->hidePopup();
         },
         "2026"}};
    for (const auto& [use, shown] : uses) {
        offerYears(2026);
        use();
        EXPECT_EQ(list->ListCount(), 3000);
        EXPECT_EQ(list->Text(), QLatin1String(shown));
    }
    EXPECT_EQ(fillings, 4);
}

TEST_F(Combo, AListThatIsPressedOpensFull) {
    offerYears(2026);
    show();
    QTest::mouseClick(list, Qt::LeftButton);
    ASSERT_TRUE(waitUntil([this] { return isOpen(); }));
    EXPECT_EQ(list->view()->model()->rowCount(), 3000);
}

TEST_F(Combo, WithoutEntriesAListStaysAsItIs) {
    list->SetOnlyItem(QStringLiteral("3001"));
    list->SetFiller([] { return NumberedEntries(1, 3000, 3001); });
    show();
    focusList();
    EXPECT_EQ(list->ListCount(), 1);
    EXPECT_EQ(list->Text(), QStringLiteral("3001"));
}

TEST_F(Combo, TheFocusGivenBackByTheListIsNoArrival) {
    show();
    focusList();
    openByKey();
    list->SetOnlyItem(QStringLiteral("2026"));
    offerYears(2026);
    QTest::keyClick(list->view(), Qt::Key_Escape);
    ASSERT_TRUE(waitUntil([this] { return !isOpen() && list->hasFocus(); }));
    EXPECT_EQ(fillings, 0);
}

TEST_F(Combo, ThePointerIsAnHourglassWhileAListIsFilled) {
    Qt::CursorShape shape = Qt::BlankCursor;
    list->SetOnlyItem(QStringLiteral("2026"));
    list->SetFiller([&shape] {
        if (const QCursor* pointer = QGuiApplication::overrideCursor())
            shape = pointer->shape();
        return NumberedEntries(1, 3000, 2026);
    });
    show();
    focusList();
    EXPECT_EQ(shape, Qt::WaitCursor);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(Combo, AListOfTwoEntriesIsFull) {
    list->SetItems({QStringLiteral("1"), QStringLiteral("2")}, 0);
    list->SetFiller([this] {
        ++fillings;
        return NumberedEntries(1, 3000, 1);
    });
    show();
    focusList();
    EXPECT_EQ(fillings, 0);
    EXPECT_EQ(list->ListCount(), 2);
}

} // namespace
