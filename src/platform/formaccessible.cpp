// SPDX-License-Identifier: MIT
#include "platform/formaccessible.h"

#include "platform/form.h"

namespace {

QAccessibleInterface* newFormInterface(const QString& className, QObject* object) {
    if (className != QLatin1String("Form"))
        return nullptr;
    return new FormAccessible(qobject_cast<Form*>(object));
}

bool hasSomethingToSay(QWidget* control) {
    const QAccessibleInterface* told = QAccessible::queryAccessibleInterface(control);
    return told != nullptr && (!told->text(QAccessible::Name).isEmpty() || told->childCount() > 0);
}

} // namespace

void FormAccessible::Install() {
    QAccessible::installFactory(newFormInterface);
}

FormAccessible::FormAccessible(Form* form) : QAccessibleWidget(form, QAccessible::Window) {}

QAccessible::Role FormAccessible::role() const {
    return widget()->windowType() == Qt::Dialog ? QAccessible::Dialog : QAccessible::Window;
}

int FormAccessible::childCount() const {
    return static_cast<int>(children().size());
}

QAccessibleInterface* FormAccessible::child(int index) const {
    return QAccessible::queryAccessibleInterface(children().value(index));
}

// An answer, which is no widget, stands behind them: tools pass over what has no place.
int FormAccessible::indexOfChild(const QAccessibleInterface* child) const {
    if (child->object() == nullptr)
        return childCount();
    return static_cast<int>(children().indexOf(qobject_cast<QWidget*>(child->object())));
}

QList<QWidget*> FormAccessible::children() const {
    QList<QWidget*> children = widget()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    children.removeIf([](QWidget* child) {
        return child->isWindow() || child->isHidden() || !hasSomethingToSay(child);
    });
    return children;
}
