// SPDX-License-Identifier: MIT
#include "platform/comboboxaccessible.h"

#include "platform/combobox.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

QAccessibleInterface* newListInterface(const QString& className, QObject* object) {
    if (className != QLatin1String("ComboBox"))
        return nullptr;
    return new ComboBoxAccessible(qobject_cast<ComboBox*>(object));
}

void pressReturn(QWidget* widget) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &press);
}

} // namespace

void ComboBoxAccessible::Install() {
    QAccessible::installFactory(newListInterface);
}

ComboBoxAccessible::ComboBoxAccessible(ComboBox* comboBox)
    : QAccessibleWidget(comboBox, QAccessible::ComboBox) {}

// The tool tip would repeat the name.
QString ComboBoxAccessible::text(QAccessible::Text kind) const {
    switch (kind) {
    case QAccessible::Value:
        return comboBox()->Spoken();
    case QAccessible::Description:
        return comboBox()->accessibleDescription();
    default:
        return QAccessibleWidget::text(kind);
    }
}

QAccessible::State ComboBoxAccessible::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.hasPopup = true;
    state.expandable = true;
    state.expanded = openList() != nullptr;
    state.collapsed = !state.expanded;
    state.editable = comboBox()->isEditable();
    return state;
}

int ComboBoxAccessible::childCount() const {
    return static_cast<int>(children().size());
}

QAccessibleInterface* ComboBoxAccessible::child(int index) const {
    return QAccessible::queryAccessibleInterface(children().value(index));
}

int ComboBoxAccessible::indexOfChild(const QAccessibleInterface* child) const {
    return static_cast<int>(children().indexOf(qobject_cast<QWidget*>(child->object())));
}

void* ComboBoxAccessible::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TextInterface)
        return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QStringList ComboBoxAccessible::actionNames() const {
    return QStringList{pressAction(), showMenuAction()} + QAccessibleWidget::actionNames();
}

void ComboBoxAccessible::doAction(const QString& name) {
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

QStringList ComboBoxAccessible::keyBindingsForAction(const QString& name) const {
    if (name != showMenuAction())
        return {};
    return {QKeySequence(Qt::ALT | Qt::Key_Down).toString(QKeySequence::NativeText)};
}

QString ComboBoxAccessible::text(int startOffset, int endOffset) const {
    return comboBox()->Spoken().mid(startOffset, endOffset - startOffset);
}

int ComboBoxAccessible::characterCount() const {
    return static_cast<int>(comboBox()->Spoken().size());
}

void ComboBoxAccessible::selection(int, int* startOffset, int* endOffset) const {
    *startOffset = *endOffset = 0;
}

QString ComboBoxAccessible::attributes(int, int* startOffset, int* endOffset) const {
    *startOffset = 0;
    *endOffset = characterCount();
    return {};
}

ComboBox* ComboBoxAccessible::comboBox() const {
    return static_cast<ComboBox*>(widget());
}

// Not asked of the combo box, which would make its list when there is none yet.
QAbstractItemView* ComboBoxAccessible::openList() const {
    auto* list = comboBox()->findChild<QAbstractItemView*>();
    return list != nullptr && list->isVisible() ? list : nullptr;
}

QList<QWidget*> ComboBoxAccessible::children() const {
    QList<QWidget*> children;
    if (QWidget* list = openList())
        children.append(list);
    if (QWidget* field = comboBox()->lineEdit())
        children.append(field);
    return children;
}
