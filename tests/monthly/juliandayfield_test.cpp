// SPDX-License-Identifier: MIT
#include "monthly/monthly_test.h"
#include "platform/form.h"
#include "support/platform_input.h"

#include <QClipboard>
#include <QLineEdit>
#include <QMessageBox>

namespace {

/// Keeps which control of its window has the focus when a message comes up.
class MessageSeen : public QObject {
public:
    MessageSeen() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* object, QEvent* event) override {
        const auto* box = qobject_cast<QMessageBox*>(object);
        if (box != nullptr && event->type() == QEvent::Show)
            focus = box->parentWidget()->focusWidget();
        return false;
    }

    const QWidget* focus = nullptr;
};

class JulianDayEntry : public MonthlyTest {
protected:
    static QLineEdit& edit() { return *combo(8).lineEdit(); }

    static void type(const QString& text) {
        combo(8).setFocus(Qt::MouseFocusReason);
        edit().selectAll();
        QTest::keyClicks(&combo(8), text);
    }

    static void enter(const QString& text) {
        type(text);
        QTest::keyClick(&combo(8), Qt::Key_Return);
    }

    void waitForMessages() {
        ASSERT_TRUE(waitUntil([] { return QApplication::activeModalWidget() == nullptr; }));
        processEvents();
        ASSERT_TRUE(waitUntil([this] {
            m_seen += m_messages.take();
            return !m_seen.isEmpty() && QApplication::activeModalWidget() == nullptr;
        }));
        processEvents();
        m_seen += m_messages.take();
    }

    void expectOneRangeMessage() {
        waitForMessages();
        EXPECT_EQ(m_seen, QStringList{QStringLiteral(
                              "Julian Days admissible range:\r\n1721319 \u2014 2817404")});
        m_seen.clear();
        EXPECT_EQ(window().focusWidget(), &combo(8));
        window().activateWindow();
        EXPECT_TRUE(waitUntil([] { return combo(8).hasFocus(); }));
    }

    void showOtherWindow() {
        m_other.show();
        m_other.activateWindow();
        ASSERT_TRUE(waitUntil([this] { return m_other.isActiveWindow(); }));
    }

    Form m_other{QStringLiteral("other")};
    QStringList m_seen;
};

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

TEST_F(JulianDayEntry, LeavingByTabOrMouseTakesTheNumber) {
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

TEST_F(JulianDayEntry, LeavingForAnotherWindowTakesTheNumber) {
    type(QStringLiteral("2451545"));
    showOtherWindow();
    EXPECT_EQ(CurJD, 2451545);
    expectPanesShowTheState();
}

TEST_F(JulianDayEntry, LeavingForAnotherWindowIsRefusedWithOneMessageOverTheField) {
    const MessageSeen message;
    type(QStringLiteral("5"));
    showOtherWindow();
    expectOneRangeMessage();
    EXPECT_EQ(message.focus, &combo(8));
    EXPECT_EQ(CurJD, 2461365);
    EXPECT_EQ(edit().selectedText(), QStringLiteral("5"));
    goTo(2461365);
}

TEST_F(JulianDayEntry, LeavingForAnotherProgramKeepsTheNumberWaiting) {
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

TEST_F(JulianDayEntry, APopupKeepsTheNumberWaiting) {
    type(QStringLiteral("2451545"));
    QWidget popup(nullptr, Qt::Popup);
    popup.show();
    popup.activateWindow();
    ASSERT_TRUE(waitUntil([&] { return QGuiApplication::focusWindow() == popup.windowHandle(); }));
    EXPECT_EQ(CurJD, 2461365);
    EXPECT_EQ(combo(8).Text(), QStringLiteral("2451545"));
}

TEST_F(JulianDayEntry, AnotherWindowAfterAnotherProgramTakesTheNumber) {
    type(QStringLiteral("2451545"));
    goToAnotherProgram();
    showOtherWindow();
    EXPECT_EQ(CurJD, 2451545);
}

TEST_F(JulianDayEntry, TheFrameThatClosesTakesAValidNumber) {
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

TEST_F(JulianDayEntry, TheFrameThatClosesLetsAnyOtherNumberGo) {
    ChangeCals::LoadYear(Gregorian).Show();
    window().activateWindow();
    ASSERT_TRUE(waitUntil([] { return window().isActiveWindow(); }));
    type(QStringLiteral("5"));
    window().close();
    processEvents();
    EXPECT_EQ(CurJD, 2461365);
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

TEST_F(JulianDayEntry, ARefusedNumberKeepsTheFocusAndThePressThatLeftItDoesNothing) {
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

TEST_F(JulianDayEntry, TabFromARefusedNumberGivesOneMessageOverTheFieldThatHasTheFocusBack) {
    const MessageSeen message;
    type(QStringLiteral("5"));
    QTest::keyClick(&combo(8), Qt::Key_Tab);
    expectOneRangeMessage();
    EXPECT_EQ(message.focus, &combo(8));
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

TEST_F(JulianDayEntry, AFieldThatTheProgramFilledIsNotJudgedOnLeaving) {
    goTo(2817404);
    for (int step = 0; step < 3; ++step) {
        goTo(CurJD - WeekDayNo + 1); // a Monday
        QTest::keyClick(&combo(6), Qt::Key_End);
        QTest::keyClick(&combo(7), Qt::Key_End);
    }
    ASSERT_GT(CurJD, 2817404);
    combo(8).setFocus(Qt::TabFocusReason);
    QTest::keyClick(&combo(8), Qt::Key_Tab);
    EXPECT_FALSE(combo(8).hasFocus());
}

TEST_F(JulianDayEntry, ClosingIsNotHeldUpByARefusedNumber) {
    type(QStringLiteral("5"));
    QTest::mouseClick(&command(5), Qt::LeftButton);
    processEvents();
    EXPECT_EQ(m_exitStatus, 0);
}

TEST_F(JulianDayEntry, ExitByTheRightButtonIsNotHeldUpByARefusedNumber) {
    type(QStringLiteral("5"));
    QTest::mousePress(&command(5), Qt::RightButton);
    processEvents();
    EXPECT_EQ(m_exitStatus, 0);
}

TEST_F(JulianDayEntry, FillingWhileTheWindowRefillsItselfTakesNothing) {
    Updating = true;
    combo(8).setEditText(QStringLiteral("2451545"));
    Q_EMIT combo(8).activated(0);
    Updating = false;
    EXPECT_EQ(CurJD, 2461365);
    goTo(2461365);
}

// On the way to the close button

TEST_F(JulianDayEntry, AValidNumberIsTakenOnTheWayToTheCloseButton) {
    ChangeCals::LoadYear(Gregorian).Show();
    window().activateWindow();
    type(QStringLiteral("2451545"));
    QTest::mouseClick(&command(5), Qt::LeftButton);
    EXPECT_FALSE(window().Visible());
    EXPECT_EQ(CurJD, 2451545);
    EXPECT_EQ(m_exitStatus, std::nullopt);
}

TEST_F(JulianDayEntry, APressOnCloseThatIsDraggedOffLeavesNoNumberBehind) {
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

TEST_F(JulianDayEntry, TheKeyThatClosesTakesAValidNumberToo) {
    ChangeCals::LoadYear(Gregorian).Show();
    window().activateWindow();
    type(QStringLiteral("2451545"));
    QTest::keyClick(&combo(8), Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(window().Visible());
    EXPECT_EQ(CurJD, 2451545);
}

// Escape, a refused number, a pasted line

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

} // namespace
