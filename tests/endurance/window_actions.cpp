// SPDX-License-Identifier: MIT
#include "endurance/window_actions.h"

#include "changecals/windows.h"
#include "endurance/controls.h"
#include "endurance/expected.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>
#include <vector>

namespace {

MainWindow& windowOf(int number) {
    return *ChangeCals::LoadedWindow(static_cast<MainWindowNumber>(number));
}

QString command(int index) {
    return QStringLiteral("Command1_%1").arg(index);
}

QString closeButton(int number) {
    return command(number == MonthlyWindowNumber ? 5 : 6);
}

} // namespace

void WindowActions::PressCommandKey(Form& window) {
    static constexpr Qt::Key keys[] = {Qt::Key_T,  Qt::Key_T, Qt::Key_M, Qt::Key_Y,
                                       Qt::Key_F1, Qt::Key_C, Qt::Key_C, Qt::Key_Comma};
    const Qt::Key key = m_hand.AnyOf(keys);
    m_hand.Say("command ", int{key}, " in ", qPrintable(window.objectName()));
    Hand::CommandKey(window, key);
    if (key == Qt::Key_T)
        m_expected.GoToToday();
    else if (key == Qt::Key_M)
        m_expected.Show(MonthlyWindowNumber);
    else if (key == Qt::Key_Y)
        m_expected.ShowYearsOfPanes();
    else if (key == Qt::Key_Comma)
        m_expected.OpenOptions();
    else if (key == Qt::Key_F1)
        m_expected.about = true;
    else
        EXPECT_TRUE(QApplication::clipboard()->text().contains(QString::number(m_expected.day)));
}

void WindowActions::PressCommand(int number) {
    const bool monthly = number == MonthlyWindowNumber;
    const int today = monthly ? 2 : 3;
    const int what = m_hand.Below(monthly ? 6 : 5);
    const int index = what == 5 ? 1 : what < 3 ? today : today + what - 2;
    m_hand.Press(windowOf(number), command(index));
    if (what < 3)
        m_expected.GoToToday();
    else if (what == 3)
        m_expected.OpenOptions();
    else if (what == 4)
        m_expected.about = true;
    else
        m_expected.ShowYearsOfPanes();
}

void WindowActions::CloseAny() {
    const int number = anyWindow(m_expected.open);
    const bool last = number != MoonWindowNumber && m_expected.OpenCalendars() == 1;
    if (last && !m_hand.OneIn(100))
        m_hand.Say("the last calendar window is left open");
    else if (number != MoonWindowNumber && m_hand.OneIn(2000))
        endByPress(number);
    else
        close(number);
}

void WindowActions::MinimiseAny() {
    const int number = anyWindow(m_expected.open);
    m_hand.Say("window ", number, " minimised");
    windowOf(number).showMinimized();
    m_expected.minimised(number) = true;
}

void WindowActions::RestoreAny() {
    const int number = anyWindow(m_expected.minimised);
    if (number == 0)
        return m_hand.Say("no window to restore");
    m_hand.Say("window ", number, " restored");
    windowOf(number).showNormal();
    m_expected.minimised(number) = false;
}

void WindowActions::UseMoon() {
    MainWindow& moon = windowOf(MoonWindowNumber);
    const int what = m_hand.Below(3);
    m_hand.Say("in the moon window, way ", what);
    if (what == 0) {
        Hand::Key(moon, Qt::Key_Escape);
        m_expected.Close(MoonWindowNumber);
        return;
    }
    if (what == 1)
        Hand::Key(moon, Qt::Key_Return);
    else
        QTest::mouseDClick(&m_hand.controls.In<QWidget>(moon, QStringLiteral("Picture1")),
                           Qt::LeftButton);
    m_expected.Show(MonthlyWindowNumber);
}

/// 0 where there is none.
int WindowActions::anyWindow(const Table<bool, mainWindowCount>& among) {
    std::vector<int> found;
    for (int number = 1; number <= mainWindowCount; ++number) {
        if (among(number))
            found.push_back(number);
    }
    return found.empty() ? 0 : m_hand.AnyOf(found);
}

// A minimised window has nothing to press; its frame can be closed all the same.
void WindowActions::close(int number) {
    MainWindow& window = windowOf(number);
    const bool pressed = number != MoonWindowNumber && m_hand.OneIn(2);
    const int way = m_expected.minimised(number) ? 0 : m_hand.Below(3);
    if (way == 0) {
        m_hand.Say("window ", number, " closed by its frame");
        window.close();
    } else if (pressed) {
        m_hand.Press(window, closeButton(number));
    } else {
        m_hand.Say("window ", number, " closed by its key");
        Hand::Activate(window);
        Hand::CommandKey(window, Qt::Key_W);
    }
    m_expected.Close(number);
}

// The right button on a close button, or the key.
void WindowActions::endByPress(int number) {
    MainWindow& window = windowOf(number);
    if (m_expected.minimised(number))
        return m_hand.Say("no end in a minimised window");
    if (m_hand.OneIn(2)) {
        m_hand.Press(window, closeButton(number), Qt::RightButton);
    } else {
        m_hand.Say("Ctrl+Q in window ", number);
        Hand::Activate(window);
        Hand::CommandKey(window, Qt::Key_Q);
    }
    m_expected.End();
}
