// SPDX-License-Identifier: MIT
#include "monthly/juliandayfield_test.h"
#include "platform/form.h"
#include "support/messageshown.h"
#include "support/platform_input.h"

namespace {

/// The field that is left, for another control, window or program or by closing.
class JulianDayLeft : public JulianDayEntry {
protected:
    void showOtherWindow() {
        m_other.show();
        m_other.activateWindow();
        ASSERT_TRUE(waitUntil([this] { return m_other.isActiveWindow(); }));
    }

    Form m_other{QStringLiteral("other")};
};

TEST_F(JulianDayLeft, LeavingByTabOrMouseTakesTheNumber) {
    type(QStringLiteral("2451545"));
    QTest::keyClick(&combo(8), Qt::Key_Tab);
    EXPECT_EQ(CurJD, 2451545);
    type(QStringLiteral("2451546"));
    QTest::keyClick(&combo(8), Qt::Key_Backtab);
    EXPECT_EQ(CurJD, 2451546);
    type(QStringLiteral("2451547"));
    command(1).setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(CurJD, 2451547);
    expectPanesShowTheState();
}

TEST_F(JulianDayLeft, LeavingForAnotherWindowTakesTheNumber) {
    type(QStringLiteral("2451545"));
    showOtherWindow();
    EXPECT_EQ(CurJD, 2451545);
    expectPanesShowTheState();
}

TEST_F(JulianDayLeft, LeavingForAnotherWindowIsRefusedWithOneMessageOverTheField) {
    const QWidget* focus = nullptr;
    const MessageShown watch(
        [&](const QMessageBox& box) { focus = box.parentWidget()->focusWidget(); });
    type(QStringLiteral("5"));
    showOtherWindow();
    expectOneRangeMessage();
    EXPECT_EQ(focus, &combo(8));
    EXPECT_EQ(CurJD, 2461365);
    EXPECT_EQ(edit().selectedText(), QStringLiteral("5"));
    goTo(2461365);
}

TEST_F(JulianDayLeft, ARefusalBringsTheWindowOfTheFieldToTheFront) {
    type(QStringLiteral("5"));
    showOtherWindow();
    waitForMessages();
    EXPECT_TRUE(waitUntil([] { return window().isActiveWindow(); }));
    goTo(2461365);
}

TEST_F(JulianDayLeft, LeavingForAnotherWindowTakesNothingWhenTheProgramEnds) {
    type(QStringLiteral("2451545"));
    ChangeCals::SetLeaving();
    showOtherWindow();
    EXPECT_EQ(CurJD, 2461365);
}

TEST_F(JulianDayLeft, NothingStaysSelected) {
    combo(8).setFocus();
    edit().selectAll();
    QTest::keyClick(&combo(8), Qt::Key_Tab);
    EXPECT_FALSE(edit().hasSelectedText());
}

TEST_F(JulianDayLeft, LeavingForAnotherProgramKeepsTheNumberWaiting) {
    for (const int day : {2451545, 5}) {
        type(QString::number(day));
        goToAnotherProgram();
        ASSERT_FALSE(combo(8).hasFocus());
        window().activateWindow();
        ASSERT_TRUE(waitUntil([] { return combo(8).hasFocus(); }));
        EXPECT_EQ(CurJD, 2461365);
        EXPECT_EQ(combo(8).Text(), QString::number(day));
        goTo(2461365);
    }
}

TEST_F(JulianDayLeft, APopupKeepsTheNumberWaiting) {
    type(QStringLiteral("2451545"));
    QWidget popup(nullptr, Qt::Popup);
    popup.show();
    popup.activateWindow();
    ASSERT_TRUE(waitUntil([&] { return QGuiApplication::focusWindow() == popup.windowHandle(); }));
    EXPECT_EQ(CurJD, 2461365);
    EXPECT_EQ(combo(8).Text(), QStringLiteral("2451545"));
}

TEST_F(JulianDayLeft, AnotherWindowAfterAnotherProgramTakesTheNumber) {
    type(QStringLiteral("2451545"));
    goToAnotherProgram();
    showOtherWindow();
    EXPECT_EQ(CurJD, 2451545);
}

TEST_F(JulianDayLeft, TheFrameThatClosesTakesAValidNumber) {
    ChangeCals::LoadYear(Gregorian).Show();
    window().activateWindow();
    ASSERT_TRUE(waitUntil([] { return window().isActiveWindow(); }));
    type(QStringLiteral("2451545"));
    calls.clear();
    window().close();
    processEvents();
    EXPECT_EQ(CurJD, 2451545);
    EXPECT_EQ(takeCalls(), std::vector<std::string>{"year2.ShowYear"});
}

TEST_F(JulianDayLeft, TheFrameThatClosesLetsAnyOtherNumberGo) {
    ChangeCals::LoadYear(Gregorian).Show();
    window().activateWindow();
    ASSERT_TRUE(waitUntil([] { return window().isActiveWindow(); }));
    type(QStringLiteral("5"));
    window().close();
    processEvents();
    EXPECT_EQ(CurJD, 2461365);
}

TEST_F(JulianDayLeft, ARefusedNumberKeepsTheFocusAndThePressThatLeftItDoesNothing) {
    type(QStringLiteral("5"));
    const QPoint cell = cellOfDay(grid(2), 3);
    pressCell(grid(2), cell.y(), cell.x());
    expectOneRangeMessage();
    EXPECT_EQ(CurJD, 2461365);
    EXPECT_EQ(combo(8).Text(), QStringLiteral("5"));
    type(QStringLiteral("2451545"));
    pressCell(grid(2), cell.y(), cell.x());
    EXPECT_EQ(CurJD, 2451545);
    expectPanesShowTheState();
    pressDay(2, 10);
    EXPECT_EQ(CurJD, 2451554) << "presses do what they do again";
}

TEST_F(JulianDayLeft, TabFromARefusedNumberGivesOneMessageOverTheFieldThatHasTheFocusBack) {
    const QWidget* focus = nullptr;
    const MessageShown watch(
        [&](const QMessageBox& box) { focus = box.parentWidget()->focusWidget(); });
    type(QStringLiteral("5"));
    QTest::keyClick(&combo(8), Qt::Key_Tab);
    expectOneRangeMessage();
    EXPECT_EQ(focus, &combo(8));
    goTo(2461365);
}

TEST_F(JulianDayLeft, AFieldThatTheProgramFilledIsNotJudgedOnLeaving) {
    goTo(2817404);
    for (int step = 0; step < 3; ++step) {
        goTo(CurJD - WeekDayNo + 1); // a Monday
        QTest::keyClick(&combo(6), Qt::Key_End);
        QTest::keyClick(&combo(7), Qt::Key_End);
    }
    ASSERT_GT(CurJD, 2817404);
    combo(8).setFocus(Qt::TabFocusReason);
    QTest::keyClick(&combo(8), Qt::Key_Tab);
    processEvents(); // a message would take the focus back
    EXPECT_FALSE(combo(8).hasFocus());
}

TEST_F(JulianDayLeft, ClosingIsNotHeldUpByARefusedNumber) {
    type(QStringLiteral("5"));
    QTest::mouseClick(&command(5), Qt::LeftButton);
    processEvents();
    EXPECT_EQ(m_exitStatus, 0);
}

TEST_F(JulianDayLeft, ExitByTheRightButtonIsNotHeldUpByARefusedNumber) {
    type(QStringLiteral("5"));
    QTest::mousePress(&command(5), Qt::RightButton);
    processEvents();
    EXPECT_EQ(m_exitStatus, 0);
}

TEST_F(JulianDayLeft, AValidNumberIsTakenOnTheWayToTheCloseButton) {
    ChangeCals::LoadYear(Gregorian).Show();
    window().activateWindow();
    type(QStringLiteral("2451545"));
    QTest::mouseClick(&command(5), Qt::LeftButton);
    EXPECT_FALSE(window().Visible());
    EXPECT_EQ(CurJD, 2451545);
    EXPECT_EQ(m_exitStatus, std::nullopt);
}

TEST_F(JulianDayLeft, APressOnCloseThatIsDraggedOffLeavesNoNumberBehind) {
    type(QStringLiteral("5"));
    QTest::mousePress(&command(5), Qt::LeftButton);
    QTest::mouseMove(&command(5), QPoint(-40, -40));
    QTest::mouseRelease(&command(5), Qt::LeftButton, {}, QPoint(-40, -40));
    EXPECT_EQ(combo(8).Text(), QStringLiteral("2461365"));
    EXPECT_EQ(CurJD, 2461365);
    type(QStringLiteral("2451545"));
    QTest::mousePress(&command(5), Qt::LeftButton);
    QTest::mouseRelease(&command(5), Qt::LeftButton, {}, QPoint(-40, -40));
    EXPECT_EQ(combo(8).Text(), QStringLiteral("2451545"));
    EXPECT_EQ(CurJD, 2451545);
    EXPECT_TRUE(window().Visible());
}

TEST_F(JulianDayLeft, TheKeyThatClosesTakesAValidNumberToo) {
    ChangeCals::LoadYear(Gregorian).Show();
    window().activateWindow();
    type(QStringLiteral("2451545"));
    QTest::keyClick(&combo(8), Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(window().Visible());
    EXPECT_EQ(CurJD, 2451545);
}

} // namespace
