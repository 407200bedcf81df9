// SPDX-License-Identifier: MIT
#include "platform/listtyping.h"

#include <QAbstractItemModel>
#include <QComboBox>
#include <QKeyEvent>
#include <chrono>

namespace {

constexpr std::chrono::milliseconds typingPause{1000};

// Shift leads to the digits of some keyboards: it neither types nor ends typing.
bool isModifier(int key) {
    return (key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock) || key == Qt::Key_AltGr;
}

bool isText(const QString& text) {
    return !text.isEmpty() && text.front().isPrint();
}

} // namespace

ListTyping::ListTyping(QComboBox* list) : QObject(list), m_list(list) {
    m_pause.setSingleShot(true);
    m_pause.setInterval(typingPause);
    connect(&m_pause, &QTimer::timeout, this, &ListTyping::End);
}

bool ListTyping::TakesKey(const QKeyEvent& event) {
    if (isModifier(event.key()))
        return true;
    if (m_list->isEditable())
        return false;
    return takesCorrection(event) || (isText(event.text()) && takesText(event.text()));
}

bool ListTyping::takesCorrection(const QKeyEvent& event) {
    if (!m_pending)
        return false;
    const bool plain = event.modifiers() == Qt::NoModifier;
    if (plain && event.key() == Qt::Key_Backspace)
        takeBack(1);
    else if (plain && event.key() == Qt::Key_Escape)
        takeBack(m_typed.size());
    else if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)
        End();
    else
        return false;
    return true;
}

// A digit that cannot follow those before it begins a number of its own.
bool ListTyping::takesText(const QString& text) {
    if (!m_typed.isEmpty() && show(m_typed + text))
        return true;
    return text.front().isDigit() && show(text);
}

bool ListTyping::show(const QString& text) {
    const QAbstractItemModel& entries = *m_list->model();
    const QModelIndexList found =
        entries.match(entries.index(0, 0), Qt::DisplayRole, text, 2, Qt::MatchStartsWith);
    if (found.isEmpty())
        return false;
    if (!m_pending)
        m_before = m_list->currentIndex();
    m_typed = text;
    m_pending = true;
    m_pause.start();
    m_list->setCurrentIndex(found.front().row());
    if (found.size() == 1)
        choose();
    return true;
}

void ListTyping::takeBack(qsizetype digits) {
    m_typed.chop(digits);
    if (m_typed.isEmpty())
        LetGo();
    else
        show(m_typed);
}

void ListTyping::choose() {
    m_pending = false;
    Q_EMIT m_list->activated(m_list->currentIndex());
}

void ListTyping::LetGo() {
    m_pause.stop();
    m_typed.clear();
    if (m_pending)
        m_list->setCurrentIndex(m_before);
    m_pending = false;
}

void ListTyping::End() {
    if (m_pending)
        choose();
    LetGo();
}
