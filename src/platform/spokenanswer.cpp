// SPDX-License-Identifier: MIT
#include "platform/spokenanswer.h"

#include <QAccessible>
#include <QApplication>
#include <QPointer>
#include <QWidget>
#include <utility>

namespace {

// Tools tell what has got the focus, and few of them anything else: so an answer is
// an entry of its own, in the control's window, that has it.
class Saying : public QAccessibleInterface {
public:
    Saying(QWidget* control, const QString& text) : m_control(control), m_text(text) {}

    bool isValid() const override { return m_control != nullptr; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return isValid() ? parent()->window() : nullptr; }
    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(m_control->window());
    }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? m_text : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override { return isValid() ? parent()->rect() : QRect(); }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override {
        QAccessible::State state;
        state.focusable = true;
        state.focused = isValid() && m_control->hasFocus();
        return state;
    }

private:
    QPointer<QWidget> m_control;
    QString m_text;
};

QAccessible::Id former = 0;
QAccessible::Id latest = 0;
bool isAsked = false;

// A tool asks the former one how far the focus has gone.
void tell(QWidget* control, const QString& text) {
    QAccessible::deleteAccessibleInterface(former);
    former =
        std::exchange(latest, QAccessible::registerAccessibleInterface(new Saying(control, text)));
    QAccessibleEvent event(QAccessible::accessibleInterface(latest), QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

void tellFocus() {
    QWidget* control = QApplication::focusWidget();
    if (!std::exchange(isAsked, false) || control == nullptr)
        return;
    const auto* speaker = dynamic_cast<const Speaker*>(control);
    if (speaker == nullptr)
        speaker = dynamic_cast<const Speaker*>(control->window());
    const QString text = speaker == nullptr ? QString() : speaker->Answer();
    if (!text.isEmpty())
        tell(control, text);
}

} // namespace

void AnswerUser() {
    if (!QAccessible::isActive() || isAsked)
        return;
    isAsked = true;
    [[maybe_unused]] static const auto watch =
        QObject::connect(qApp, &QApplication::focusChanged, qApp, [] { isAsked = false; });
    QMetaObject::invokeMethod(qApp, tellFocus, Qt::QueuedConnection);
}
