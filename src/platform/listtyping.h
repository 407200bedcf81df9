// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

class QComboBox;
class QKeyEvent;

/// A number typed into a list is one choice. The first entry that begins with
/// the digits so far is shown at once; it is chosen when no other begins so, on
/// Return, or after a pause. Backspace takes a digit back, Escape all of them.
/// Names are left to the toolkit, which chooses at each letter; an editable list
/// is left to its editor.
class ListTyping : public QObject {
public:
    /// `list` raises `activated` when what was typed is chosen.
    explicit ListTyping(QComboBox* list);

    /// Whether the key belongs to a number that is being typed.
    bool TakesKey(const QKeyEvent& event);

    /// Chooses what was typed, if it still waits to be chosen.
    void End();

    /// Gives up what was typed and shows the entry that was chosen before.
    void LetGo();

    /// The program has chosen an entry: what was typed waits no more.
    void Forget() { m_pending = false; }

private:
    bool takesCorrection(const QKeyEvent& event);
    bool takesText(const QString& text);
    bool show(const QString& text);
    void takeBack(qsizetype digits);
    void choose();

    QComboBox* m_list;
    QString m_typed;
    bool m_pending = false; ///< what was typed is shown, but not yet chosen
    int m_before = -1;      ///< the position before it was shown
    QTimer m_pause;
};
