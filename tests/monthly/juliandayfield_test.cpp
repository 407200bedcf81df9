// SPDX-License-Identifier: MIT
#include "monthly/juliandayfield_test.h"
#include "support/platform_accessible.h"
#include "support/platform_input.h"

#include <QClipboard>

namespace {

TEST_F(JulianDayEntry, ShowsTheJulianDayAsItsOnlyEntry) {
    EXPECT_EQ(combo(8).ListCount(), 1);
    EXPECT_EQ(combo(8).Text(), QStringLiteral("2461365"));
}

TEST_F(JulianDayEntry, ReturnTakesTheNumber) {
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
        type(QStringLiteral("2451545"));
        EXPECT_NE(CurJD, 2451545);
        QTest::keyClick(&combo(8), key);
        EXPECT_EQ(CurJD, 2451545);
        expectPanesShowTheState();
        goTo(2461365);
    }
}

TEST_F(JulianDayEntry, BoundsAreTakenAndOneBeyondIsRefused) {
    enter(QStringLiteral("1721319"));
    EXPECT_EQ(CurJD, 1721319);
    enter(QStringLiteral("2817404"));
    EXPECT_EQ(CurJD, 2817404);
    for (const char* text : {"1721318", "2817405", "0", "-5"}) {
        combo(8).setFocus();
        edit().setText(QLatin1String(text));
        QTest::keyClick(&combo(8), Qt::Key_Return);
        expectOneRangeMessage();
        EXPECT_EQ(CurJD, 2817404);
        EXPECT_EQ(combo(8).Text(), QLatin1String(text));
    }
    goTo(2461365);
}

TEST_F(JulianDayEntry, ANumberBeyondAllIntegersIsRefused) {
    for (const QString& text : {QStringLiteral("99999999999999999999"), QString(400, u'9')}) {
        enter(text);
        expectOneRangeMessage();
        EXPECT_EQ(CurJD, 2461365);
    }
    goTo(2461365);
}

TEST_F(JulianDayEntry, AnEmptyFieldIsRefused) {
    combo(8).setFocus();
    edit().selectAll();
    QTest::keyClick(&combo(8), Qt::Key_Delete);
    QTest::keyClick(&combo(8), Qt::Key_Return);
    expectOneRangeMessage();
    goTo(2461365);
}

TEST_F(JulianDayEntry, AnythingButAWholeNumberBeepsAndIsPutBack) {
    for (const char* typed : {"x", ".", ",", "-", "+", "e", "$", "("}) {
        m_beeps = 0;
        type(QStringLiteral("24515"));
        QTest::keyClicks(&combo(8), QLatin1String(typed));
        EXPECT_EQ(m_beeps, 1) << typed;
        EXPECT_EQ(combo(8).Text(), QStringLiteral("24515")) << typed;
    }
    goTo(2461365);
}

TEST_F(JulianDayEntry, ADecimalPointAfterTheNumberIsRefusedAtThePoint) {
    type(QStringLiteral("2451545.5"));
    EXPECT_EQ(m_beeps, 1);
    EXPECT_EQ(combo(8).Text(), QStringLiteral("24515455"));
    goTo(2461365);
}

TEST_F(JulianDayEntry, OnlyTheRefusedCharacterDisappearsAndTheCursorStays) {
    type(QStringLiteral("2451545"));
    edit().setCursorPosition(3);
    QTest::keyClicks(&combo(8), QStringLiteral("x"));
    EXPECT_EQ(combo(8).Text(), QStringLiteral("2451545"));
    EXPECT_EQ(edit().cursorPosition(), 3);
    goTo(2461365);
}

TEST_F(JulianDayEntry, PastedTextIsJudgedAsAWhole) {
    combo(8).setFocus();
    edit().selectAll();
    QApplication::clipboard()->setText(QStringLiteral("12ab"));
    QTest::keyClick(&combo(8), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(m_beeps, 1);
    EXPECT_EQ(combo(8).Text(), QStringLiteral("2461365"));
}

TEST_F(JulianDayEntry, PastedTextIsJudgedBeforeAnyKeyToo) {
    edit().selectAll();
    QApplication::clipboard()->setText(QStringLiteral("12ab"));
    edit().paste(); // as by the mouse
    EXPECT_EQ(m_beeps, 1);
    EXPECT_EQ(combo(8).Text(), QStringLiteral("2461365"));
    EXPECT_EQ(edit().cursorPosition(), 0);
}

TEST_F(JulianDayEntry, TypingIsNotCompleted) {
    type(QStringLiteral("24"));
    EXPECT_EQ(combo(8).Text(), QStringLiteral("24"));
    EXPECT_EQ(combo(8).ListCount(), 1);
    goTo(2461365);
}

TEST_F(JulianDayEntry, TheSameJulianDayChangesNothing) {
    ChangeCals::LoadYear(Julian).Show();
    window().activateWindow();
    calls.clear();
    enter(QStringLiteral("2461365"));
    enter(QStringLiteral("02461365"));
    EXPECT_TRUE(takeCalls().empty());
    EXPECT_EQ(CurJD, 2461365);
}

TEST_F(JulianDayEntry, ANumberIsTakenOnce) {
    ChangeCals::LoadYear(Julian).Show();
    window().activateWindow();
    calls.clear();
    enter(QStringLiteral("2451545"));
    QTest::keyClick(&combo(8), Qt::Key_Tab);
    EXPECT_EQ(takeCalls(), std::vector<std::string>{"year1.ShowYear"});
}

TEST_F(JulianDayEntry, ChoosingTheListsEntryBringsTheShownDayBack) {
    type(QStringLiteral("24"));
    combo(8).showPopup();
    QTest::keyClick(combo(8).view(), Qt::Key_Return);
    EXPECT_EQ(combo(8).Text(), QStringLiteral("2461365"));
    EXPECT_EQ(CurJD, 2461365);
}

TEST_F(JulianDayEntry, EscapePutsTheChosenDayBack) {
    type(QStringLiteral("24"));
    QTest::keyClick(&combo(8), Qt::Key_Escape);
    EXPECT_EQ(combo(8).Text(), QStringLiteral("2461365"));
    QTest::keyClick(&combo(8), Qt::Key_Return);
    EXPECT_EQ(CurJD, 2461365);
}

TEST_F(JulianDayEntry, TheNextDigitReplacesARefusedNumber) {
    enter(QStringLiteral("5"));
    expectOneRangeMessage();
    EXPECT_EQ(edit().selectedText(), QStringLiteral("5"));
    QTest::keyClicks(&combo(8), QStringLiteral("2451545"));
    QTest::keyClick(&combo(8), Qt::Key_Return);
    EXPECT_EQ(CurJD, 2451545);
}

TEST_F(JulianDayEntry, APastedLineEndIsABlank) {
    combo(8).setFocus();
    edit().selectAll();
    QApplication::clipboard()->setText(QStringLiteral("2451545\n"));
    QTest::keyClick(&combo(8), Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(&combo(8), Qt::Key_Return);
    EXPECT_EQ(m_beeps, 0);
    EXPECT_EQ(CurJD, 2451545);
}

TEST_F(JulianDayEntry, CopyingWithNothingSelectedCopiesTheDay) {
    combo(8).setFocus();
    edit().selectAll();
    QTest::keyClick(&combo(8), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("2461365"));
    edit().deselect();
    QTest::keyClick(&combo(8), Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(QApplication::clipboard()->text().contains(QStringLiteral("20 November 2026")));
}

TEST_F(JulianDayEntry, FillingWhileTheWindowRefillsItselfTakesNothing) {
    Updating = true;
    combo(8).setEditText(QStringLiteral("2451545"));
    Q_EMIT combo(8).activated(0);
    Updating = false;
    EXPECT_EQ(CurJD, 2461365);
    goTo(2461365);
}

TEST_F(JulianDayEntry, EscapeIsAnsweredWithTheChosenDay) {
    type(QStringLiteral("24"));
    AccessibleWatch watch;
    QTest::keyClick(&combo(8), Qt::Key_Escape);
    const auto told = watch.take(QAccessible::Focus);
    ASSERT_FALSE(told.empty());
    EXPECT_EQ(told.back().name, QStringLiteral("Friday, 7 November 2026, Julian calendar"));
    EXPECT_EQ(combo(8).Answer(), QStringLiteral("Friday, 7 November 2026, Julian calendar"));
}

TEST_F(JulianDayEntry, ARefusedCharacterBringsBackTheEntryThatWasChosen) {
    type(QStringLiteral("24"));
    combo(8).showPopup();
    QTest::keyClick(combo(8).view(), Qt::Key_Return);
    edit().setCursorPosition(7);
    QTest::keyClicks(&combo(8), QStringLiteral("x"));
    EXPECT_EQ(m_beeps, 1);
    EXPECT_EQ(combo(8).Text(), QStringLiteral("2461365"));
}

TEST_F(JulianDayEntry, WhatAToolWroteIsRounded) {
    combo(8).setFocus();
    edit().setText(QStringLiteral("2451544.7")); // without a key
    QTest::keyClick(&combo(8), Qt::Key_Return);
    EXPECT_EQ(m_beeps, 0);
    EXPECT_EQ(CurJD, 2451545);
    EXPECT_EQ(combo(8).Text(), QStringLiteral("2451545"));
}

TEST_F(JulianDayEntry, ARefusedCharacterBringsBackWhatAToolWrote) {
    combo(8).setFocus();
    edit().setText(QStringLiteral("5")); // without a key
    QTest::keyClick(&combo(8), Qt::Key_Return);
    expectOneRangeMessage();
    QTest::keyClicks(&combo(8), QStringLiteral("x"));
    EXPECT_EQ(m_beeps, 1);
    EXPECT_EQ(combo(8).Text(), QStringLiteral("5"));
    goTo(2461365);
}

} // namespace
