// SPDX-License-Identifier: MIT
#include "platform/formaccessible.h"

#include "platform/form.h"

#include <QAccessibleWidget>

namespace {

bool hasSomethingToSay(QWidget* control) {
    const QAccessibleInterface* told = QAccessible::queryAccessibleInterface(control);
    return told != nullptr && (!told->text(QAccessible::Name).isEmpty() || told->childCount() > 0);
}

/// With the role of a window, or of a dialog when the toolkit takes it for one. Its
/// children are the controls that are shown and have something to say; backdrops, lines
/// and ornaments have not.
class FormAccessible : public QAccessibleWidget {
public:
    explicit FormAccessible(QWidget* form) : QAccessibleWidget(form, QAccessible::Window) {}

    QAccessible::Role role() const override {
        return widget()->windowType() == Qt::Dialog ? QAccessible::Dialog : QAccessible::Window;
    }

    int childCount() const override { return static_cast<int>(children().size()); }

    QAccessibleInterface* child(int index) const override {
        return QAccessible::queryAccessibleInterface(children().value(index));
    }

    // An answer, which is no widget, stands behind them: tools pass over what has no place.
    int indexOfChild(const QAccessibleInterface* child) const override {
        if (child->object() == nullptr)
            return childCount();
        return static_cast<int>(children().indexOf(qobject_cast<QWidget*>(child->object())));
    }

private:
    QList<QWidget*> children() const {
        QList<QWidget*> children = widget()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
        children.removeIf([](QWidget* child) {
            return child->isWindow() || child->isHidden() || !hasSomethingToSay(child);
        });
        return children;
    }
};

} // namespace

QAccessibleInterface* NewFormAccessible(const QString& className, QObject* object) {
    if (className != QLatin1String("Form"))
        return nullptr;
    return new FormAccessible(qobject_cast<Form*>(object));
}
