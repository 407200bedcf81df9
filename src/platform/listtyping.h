// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <functional>

class QComboBox;
class QEvent;
class QKeyEvent;

/// A number typed into a list. Each digit chooses the entry of the number so far at
/// once; a number that is no entry yet chooses nothing. Digits go on while they
/// follow each other as fast as the toolkit's own lists ask of letters and nothing
/// else is done; then the next one begins anew. A digit with which no entry can go on
/// is refused with a beep. Names are left to the toolkit, which chooses at each
/// letter; an editable list is left to its editor.
class ListTyping {
public:
    /// `list` raises `activated` at each choice.
    explicit ListTyping(QComboBox& list) : m_list(list) {}

    /// As ComboBox has them.
    void SetOrigin(std::function<int()> origin) { m_origin = std::move(origin); }
    int Origin() const { return m_choosing ? m_began : m_origin(); }

    /// Whether the key belongs to a number that is being typed.
    bool TakesKey(const QKeyEvent& event);

    /// Is told of every event of the list, since most of them end a number.
    void Notice(const QEvent& event);

private:
    bool goesOn(const QKeyEvent& event) const;
    bool takes(const QString& text);
    void choose(int position);

    QComboBox& m_list;
    std::function<int()> m_origin = [] { return 0; };
    QString m_typed;
    quint64 m_time = 0; ///< of the last digit, in milliseconds by the desktop's clock
    int m_began = 0;    ///< the origin before the first digit
    int m_reached = 0;  ///< the origin after the last one
    bool m_choosing = false;
};
