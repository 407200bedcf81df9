// SPDX-License-Identifier: MIT
#include "platform/combobox_test.h"

#include <cstring>

namespace {

TEST_F(Combo, ANumberThatIsTypedIsOneChoice) {
    offerYears(2024);
    show();
    focusList();
    for (const char* shown : {"2", "20", "202"}) {
        type(shown + std::strlen(shown) - 1);
        EXPECT_EQ(list->Text(), QLatin1String(shown));
        EXPECT_EQ(clicks, 0);
    }
    type("8");
    EXPECT_EQ(list->Text(), QStringLiteral("2028"));
    EXPECT_EQ(clicks, 1);
}

TEST_F(Combo, ANumberThatNoOtherBeginsWithIsChosenAtOnce) {
    offerDays();
    show();
    focusList();
    for (const char* typed : {"45", "200", "366"}) {
        clicks = 0;
        type(typed);
        EXPECT_EQ(list->Text(), QLatin1String(typed) + QStringLiteral("/366"));
        EXPECT_EQ(clicks, 1);
    }
}

TEST_F(Combo, AShorterNumberIsChosenByReturn) {
    offerYears(2024);
    show();
    focusList();
    type("20");
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(list->Text(), QStringLiteral("20"));
    EXPECT_EQ(clicks, 1);
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(clicks, 1);
}

TEST_F(Combo, AShorterNumberIsChosenWhenTheListIsLeft) {
    offerYears(2024);
    show();
    focusList();
    type("20");
    QTest::keyClick(list, Qt::Key_Tab);
    EXPECT_EQ(list->Text(), QStringLiteral("20"));
    EXPECT_EQ(clicks, 1);
}

TEST_F(Combo, AShorterNumberIsChosenAfterAPause) {
    offerYears(2024);
    show();
    focusList();
    type("20");
    EXPECT_EQ(clicks, 0);
    EXPECT_TRUE(waitUntil([this] { return clicks == 1; }));
    EXPECT_EQ(list->Text(), QStringLiteral("20"));
    type("3");
    EXPECT_EQ(list->Text(), QStringLiteral("3")) << "a new number";
}

TEST_F(Combo, AShorterNumberIsChosenBeforeTheNextChoice) {
    show();
    focusList();
    offerYears(2024);
    type("20");
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ(list->Text(), QStringLiteral("21"));
    EXPECT_EQ(clicks, 2);
    type("30");
    turnWheel();
    EXPECT_EQ(list->Text(), QStringLiteral("31"));
    EXPECT_EQ(clicks, 4);
    type("40");
    list->showPopup();
    EXPECT_EQ(clicks, 5);
}

TEST_F(Combo, AKeyAfterANumberFindsTheListThatTheChoiceHasShortened) {
    offerYears(2024);
    QObject::connect(list, &ComboBox::Click, list, [this] { offerYears(list->Text().toInt()); });
    show();
    focusList();
    type("20");
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ(list->Text(), QStringLiteral("21"));
    EXPECT_EQ(clicks, 2);
}

TEST_F(Combo, BackspaceAndEscapeTakeDigitsBack) {
    offerYears(2024);
    show();
    focusList();
    type("205");
    QTest::keyClick(list, Qt::Key_Backspace);
    EXPECT_EQ(list->Text(), QStringLiteral("20"));
    type("31");
    EXPECT_EQ(list->Text(), QStringLiteral("2031"));
    EXPECT_EQ(clicks, 1);
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Backspace}) {
        type("3");
        QTest::keyClick(list, key);
        EXPECT_EQ(list->Text(), QStringLiteral("2031"));
    }
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(clicks, 1);
}

TEST_F(Combo, ADigitThatCannotFollowBeginsANewNumber) {
    offerYears(2024);
    show();
    focusList();
    type("2028");
    type("1582");
    EXPECT_EQ(list->Text(), QStringLiteral("1582"));
    EXPECT_EQ(clicks, 2);
    type("0");
    EXPECT_EQ(list->Text(), QStringLiteral("1582"));
}

TEST_F(Combo, WhatFollowsAFoundNumberChangesNothing) {
    list->SetItems({QStringLiteral("9.6"), QStringLiteral("10.6"), QStringLiteral("6.6")}, 0);
    show();
    focusList();
    type("10.6");
    EXPECT_EQ(list->Text(), QStringLiteral("10.6"));
}

TEST_F(Combo, ShiftBelongsToTyping) {
    offerYears(2024);
    show();
    focusList();
    type("20");
    QTest::keyClick(list, Qt::Key_Shift, Qt::ShiftModifier);
    EXPECT_EQ(clicks, 0);
    QTest::keyClick(list, Qt::Key_3, Qt::ShiftModifier);
    QTest::keyClick(list, Qt::Key_1, Qt::KeypadModifier);
    EXPECT_EQ(list->Text(), QStringLiteral("2031"));
    EXPECT_EQ(clicks, 1);
}

TEST_F(Combo, TheProgramsChoiceTakesTheTypedNumbersPlace) {
    offerYears(2024);
    show();
    focusList();
    type("20");
    list->SetListIndex(1999);
    QTest::keyClick(list, Qt::Key_Tab);
    EXPECT_EQ(list->Text(), QStringLiteral("2000"));
    EXPECT_EQ(clicks, 0);
}

TEST_F(Combo, AWindowThatClosesLetsTheTypedNumberGo) {
    offerYears(2024);
    show();
    focusList();
    type("20");
    window.close();
    window.show();
    window.activateWindow();
    ASSERT_TRUE(waitUntil([this] { return list->hasFocus(); }));
    QTest::keyClick(list, Qt::Key_Tab);
    EXPECT_EQ(clicks, 0);
}

} // namespace
