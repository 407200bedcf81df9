// SPDX-License-Identifier: MIT
#include "endurance/hand.h"

#include "endurance/controls.h"
#include "endurance/expected.h"
#include "platform/combobox.h"
#include "platform/flexgrid.h"
#include "platform/form.h"
#include "support/platform_input.h"
#include "support/platform_test.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QPushButton>
#include <QThread>
#include <algorithm>

namespace {

// The toolkit adds a letter to those that it was given just before; in a walk they
// follow each other more closely than any hand could type.
class AfterAPause {
public:
    AfterAPause() {
        QApplication::setKeyboardInputInterval(0);
        QThread::msleep(2); // the toolkit counts milliseconds
    }
    ~AfterAPause() { QApplication::setKeyboardInputInterval(m_former); }
    AfterAPause(const AfterAPause&) = delete;
    AfterAPause& operator=(const AfterAPause&) = delete;

private:
    int m_former = QApplication::keyboardInputInterval();
};

} // namespace

std::string Hand::Said() const {
    std::string text;
    for (const std::string& said : m_said)
        text += "\n  " + said;
    return text;
}

void Hand::Activate(Form& window) {
    if (window.isActiveWindow())
        return;
    window.activateWindow();
    takeNewsOfWindows(); // enough on the desktop of the tests, but not on a screen
    EXPECT_TRUE(waitUntil([&window] { return window.isActiveWindow(); }));
}

void Hand::Key(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&widget, key, modifiers);
}

void Hand::CommandKey(Form& window, Qt::Key key) {
    QWidget* focus = window.focusWidget();
    // The desktop of the tests alone takes Ctrl+Y in a field of text for its redoing.
    const bool fromFocus = focus != nullptr && key != Qt::Key_Y;
    Key(fromFocus ? *focus : window, key, key == Qt::Key_F1 ? Qt::NoModifier : Qt::ControlModifier);
}

void Hand::Press(Form& window, const QString& button, Qt::MouseButton with) {
    Say("press of ", qPrintable(button), " in ", qPrintable(window.objectName()));
    QTest::mouseClick(&controls.In<QPushButton>(window, button), with);
}

void Hand::PressMoon(Form& window) {
    for (int phase = 0; phase <= 8; ++phase) {
        const QString name = QStringLiteral("Command2_%1").arg(phase);
        if (!controls.In<QPushButton>(window, name).isVisible())
            continue;
        expected.Show(MoonWindowNumber);
        return Press(window, name);
    }
    ADD_FAILURE() << "no moon button in front";
}

void Hand::PressCell(MSFlexGrid& grid, GridPlace cell, Qt::MouseButton button) {
    const QModelIndex index = grid.model()->index(cell.row, cell.column);
    QTest::mouseClick(grid.viewport(), button, {}, grid.visualRect(index).center());
}

GridPlace Hand::AnyCell(const MSFlexGrid& grid) {
    GridPlace cell{Below(grid.Rows()), Below(grid.Cols())};
    if (grid.isColumnHidden(cell.column))
        cell.column = 1;
    return cell;
}

void Hand::MoveAbout(MSFlexGrid& grid) {
    static constexpr Qt::Key arrows[] = {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right};
    grid.setFocus();
    for (int step = Below(4); step >= 0; --step)
        Key(grid, AnyOf(arrows));
}

void Hand::PressByKey(MSFlexGrid& grid) {
    static constexpr Qt::Key presses[] = {Qt::Key_Return, Qt::Key_Space};
    Key(grid, AnyOf(presses));
}

void Hand::GoOn(Form& window) {
    const bool back = OneIn(2);
    Say(back ? "back to another control" : "on to another control");
    if (QWidget* focus = window.focusWidget())
        Key(*focus, back ? Qt::Key_Backtab : Qt::Key_Tab);
}

void Hand::Use(const ListInUse& list) {
    Say(qPrintable(list.box.objectName()), " in ", qPrintable(list.box.window()->objectName()));
    if (!list.box.hasFocus() && OneIn(4))
        turnWheel(list.box, OneIn(2));
    list.box.setFocus();
    Key(list.box, Qt::Key_F12); // a list is filled before any key
    EXPECT_EQ(list.box.ListCount(), list.entries);
    EXPECT_EQ(list.box.ListIndex(), list.chosen);
    const int way = Below(20);
    if (way == 0 && OneIn(4)) // dear
        chooseInPopup(list);
    else if (way < 5)
        turnWheelOn(list);
    else if (way == 5)
        typeLetter(list);
    else if (way < 13 && list.firstNumber >= 0)
        typeNumber(list);
    else
        moveInList(list);
}

void Hand::moveInList(const ListInUse& list) {
    static constexpr Qt::Key keys[] = {Qt::Key_Up,     Qt::Key_Down,     Qt::Key_Up,   Qt::Key_Down,
                                       Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End};
    const Qt::Key key = AnyOf(keys);
    Say("  key ", int{key});
    Key(list.box, key);
    if (key == Qt::Key_Home)
        list.choose(0);
    else if (key == Qt::Key_End)
        list.choose(list.entries - 1);
    else if (key == Qt::Key_Up || key == Qt::Key_PageUp)
        list.choose(std::max(list.chosen - 1, 0));
    else
        list.choose(std::min(list.chosen + 1, list.entries - 1));
}

void Hand::typeNumber(const ListInUse& list) {
    // Near ones mostly, as far ones make every window begin another year.
    const int near = list.chosen - 5 + Below(11);
    const int position = OneIn(3) ? Below(list.entries) : std::clamp(near, 0, list.entries - 1);
    const int number = list.firstNumber + position;
    Say("  typed ", number);
    QTest::keyClicks(&list.box, QString::number(number));
    if (10 * number >= list.firstNumber + list.entries)
        Key(list.box, Qt::Key_0); // beyond the last entry: refused
    list.choose(position);
}

// The next entry that begins with it is chosen.
void Hand::typeLetter(const ListInUse& list) {
    int position = list.chosen;
    for (int step = list.entries - 1; step > 0; --step) {
        const int other = (list.chosen + step) % list.entries;
        if (list.box.itemText(other).startsWith(u'm', Qt::CaseInsensitive))
            position = other;
    }
    Say("  typed m");
    const AfterAPause pause;
    Key(list.box, Qt::Key_M);
    list.choose(position);
}

void Hand::turnWheelOn(const ListInUse& list) {
    const bool up = OneIn(2);
    Say("  wheel ", up ? "up" : "down");
    turnWheel(list.box, up);
    list.choose(std::clamp(list.chosen + (up ? -1 : 1), 0, list.entries - 1));
}

void Hand::chooseInPopup(const ListInUse& list) {
    const bool up = OneIn(2);
    Say("  popup, ", up ? "up" : "down");
    list.box.showPopup();
    QAbstractItemView& view = *list.box.view();
    Key(view, up ? Qt::Key_Up : Qt::Key_Down);
    Key(view, Qt::Key_Return);
    EXPECT_FALSE(view.isVisible());
    list.choose(std::clamp(list.chosen + (up ? -1 : 1), 0, list.entries - 1));
}
