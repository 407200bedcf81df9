// SPDX-License-Identifier: MIT
#include "platform/listtyping.h"

#include "platform/beep.h"

#include <QAbstractItemModel>
#include <QComboBox>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QStyleHints>

namespace {

// Shift leads to the digits of some keyboards: it neither types nor ends typing.
bool isModifier(int key) {
    return (key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock) || key == Qt::Key_AltGr;
}

bool isText(const QKeyEvent& event) {
    const auto ofCommands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return !event.text().isEmpty() && event.text().front().isPrint() &&
           !(event.modifiers() & ofCommands);
}

bool startsWithDigit(QStringView text) {
    return !text.isEmpty() && text.front().isDigit();
}

} // namespace

bool ListTyping::TakesKey(const QKeyEvent& event) {
    if (isModifier(event.key()))
        return true;
    if (m_list.isEditable())
        return false;
    if (!goesOn(event))
        m_typed.clear();
    m_time = event.timestamp();
    const bool isDigit = startsWithDigit(event.text());
    if ((isDigit || !m_typed.isEmpty()) && takes(m_typed + event.text()))
        return true;
    if (isDigit)
        Beep();
    else
        m_typed.clear();
    return isDigit;
}

// A command reaches the list only as what asks whether its key is the list's.
void ListTyping::Notice(const QEvent& event) {
    const QEvent::Type type = event.type();
    bool ends =
        type == QEvent::MouseButtonPress || type == QEvent::Wheel || type == QEvent::FocusOut;
    if (type == QEvent::ShortcutOverride) {
        const auto& key = static_cast<const QKeyEvent&>(event);
        ends = !isModifier(key.key()) && !isText(key);
    }
    if (ends)
        m_typed.clear();
}

// Where the origin has moved, something else has been chosen meanwhile.
bool ListTyping::goesOn(const QKeyEvent& event) const {
    const auto interval = quint64(QGuiApplication::styleHints()->keyboardInputInterval());
    return isText(event) && m_origin() == m_reached && event.timestamp() - m_time <= interval;
}

// Of 5787 the 5 alone is no entry yet.
bool ListTyping::takes(const QString& text) {
    const QAbstractItemModel& entries = *m_list.model();
    const QModelIndexList found =
        entries.match(entries.index(0, 0), Qt::DisplayRole, text, 1, Qt::MatchStartsWith);
    if (found.isEmpty())
        return false;
    if (m_typed.isEmpty())
        m_began = m_origin();
    m_typed = text;
    if (!startsWithDigit(found.front().data().toString().mid(text.size())))
        choose(found.front().row());
    m_reached = m_origin();
    return true;
}

void ListTyping::choose(int position) {
    const QScopedValueRollback choosing(m_choosing, true);
    m_list.setCurrentIndex(position);
    Q_EMIT m_list.activated(position);
}
