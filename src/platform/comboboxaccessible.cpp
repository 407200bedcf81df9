// SPDX-License-Identifier: MIT
#include "platform/comboboxaccessible.h"

#include "platform/combobox.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

void pressReturn(QWidget* widget) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &press);
}

/// Named by its accessible name, with the chosen entry as its value and as its text.
/// While it is open, its entries are its child; a field into which can be typed has that
/// text as another. Its menu action opens and closes the list; pressing it does the same,
/// in a field what Return does.
class ComboBoxAccessible : public QAccessibleWidget, public QAccessibleTextInterface {
public:
    explicit ComboBoxAccessible(ComboBox* comboBox)
        : QAccessibleWidget(comboBox, QAccessible::ComboBox) {}

    // The tool tip would repeat the name.
    QString text(QAccessible::Text kind) const override {
        switch (kind) {
        case QAccessible::Value:
            return comboBox()->Spoken();
        case QAccessible::Description:
            return comboBox()->accessibleDescription();
        default:
            return QAccessibleWidget::text(kind);
        }
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.hasPopup = true;
        state.expandable = true;
        state.expanded = openList() != nullptr;
        state.collapsed = !state.expanded;
        state.editable = comboBox()->isEditable();
        return state;
    }

    int childCount() const override { return static_cast<int>(children().size()); }

    QAccessibleInterface* child(int index) const override {
        return QAccessible::queryAccessibleInterface(children().value(index));
    }

    int indexOfChild(const QAccessibleInterface* child) const override {
        return static_cast<int>(children().indexOf(qobject_cast<QWidget*>(child->object())));
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TextInterface)
            return static_cast<QAccessibleTextInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QStringList actionNames() const override {
        return QStringList{pressAction(), showMenuAction()} + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& name) override {
        const bool presses = name == pressAction();
        if (!presses && name != showMenuAction())
            QAccessibleWidget::doAction(name);
        else if (!comboBox()->isEnabled())
            return;
        else if (presses && comboBox()->isEditable())
            pressReturn(comboBox());
        else if (openList() != nullptr)
            comboBox()->hidePopup();
        else
            comboBox()->showPopup();
    }

    QStringList keyBindingsForAction(const QString& name) const override {
        if (name != showMenuAction())
            return {};
        return {QKeySequence(Qt::ALT | Qt::Key_Down).toString(QKeySequence::NativeText)};
    }

    // The text of the chosen entry is read only; nothing in it can be selected.
    QString text(int startOffset, int endOffset) const override {
        return comboBox()->Spoken().mid(startOffset, endOffset - startOffset);
    }
    int characterCount() const override { return static_cast<int>(comboBox()->Spoken().size()); }
    void selection(int, int* startOffset, int* endOffset) const override {
        *startOffset = *endOffset = 0;
    }
    int selectionCount() const override { return 0; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override {}
    QRect characterRect(int) const override { return rect(); }
    int offsetAtPoint(const QPoint&) const override { return 0; }
    void scrollToSubstring(int, int) override {}
    QString attributes(int, int* startOffset, int* endOffset) const override {
        *startOffset = 0;
        *endOffset = characterCount();
        return {};
    }

private:
    ComboBox* comboBox() const { return static_cast<ComboBox*>(widget()); }

    // Not asked of the combo box, which would make its list when there is none yet.
    QAbstractItemView* openList() const {
        auto* list = comboBox()->findChild<QAbstractItemView*>();
        return list != nullptr && list->isVisible() ? list : nullptr;
    }

    QList<QWidget*> children() const {
        QList<QWidget*> children{openList(), comboBox()->lineEdit()};
        children.removeAll(nullptr);
        return children;
    }
};

} // namespace

QAccessibleInterface* NewComboBoxAccessible(const QString& className, QObject* object) {
    if (className != QLatin1String("ComboBox"))
        return nullptr;
    return new ComboBoxAccessible(qobject_cast<ComboBox*>(object));
}
