// SPDX-License-Identifier: MIT
#pragma once

#include "platform/combobox.h"

#include <optional>

/// The Julian Day of the chosen day (Combo8), into which another can be typed. A
/// whole number is taken on Return, when the field is left by mouse or keyboard or for
/// another window of the program, and when the list's entry is chosen; while another
/// program is in use it waits. Anything but a whole number is refused while it is
/// typed, with a beep; a number outside the range that the program can show, with a
/// message when it is to be taken; it then stands selected. Escape puts the chosen day
/// back.
class JulianDayField : public ComboBox {
    Q_OBJECT

public:
    JulianDayField(const QString& name, QWidget* parent);

    /// What the highest Julian Day needs, in pixels.
    int OwnWidth() const;

    /// What the window says: a number that changes is told by the editor.
    QString Answer() const override;

    /// Shows a Julian Day.
    void Show(int julianDay);

    /// The window is about to go: a number in the range is taken, any other let go
    /// without a word.
    void Leave();

    /// A control that closes the window; the focus on its way there is a leave.
    void SetLeavingControl(const QWidget* control) { m_leavingControl = control; }

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    void Combo8_Change(const QString& text);
    void Combo8_KeyDown(int key);
    void Combo8_LostFocus();
    void Combo8_Click();

    void focusWindowChanged(const QWindow* focus);
    void accept();
    std::optional<int> typedDay() const;
    void refuseText();
    void refuseNumber();
    void tellRange();

    const QWidget* m_leavingControl = nullptr;
    QString m_shown;    ///< what the program put there
    QString m_accepted; ///< comes back when a typed character is refused
    int m_cursor = 0;   ///< before the last key
    bool m_refusing = false;
};
