// SPDX-License-Identifier: MIT
#pragma once

#include "controls/moonbuttons.h"

class ComboBox;
class JulianDayField;

/// What the four calendars have in common for the chosen day: weekday, age and
/// phase of the moon, Julian Day.
class WeekdayAndMoon : public QObject {
    Q_OBJECT

public:
    explicit WeekdayAndMoon(QWidget* parent);

    /// What the controls need in a row, in pixels, in the present font and language.
    int Width() const;

    /// Of the row, and of its buttons, which are square.
    int Height() const;

    /// Places the controls from `left` on in a row around `middle`, in pixels.
    /// Where `width` is less than they need, the weekday gives way.
    void Place(int left, int middle, int width);

    /// Shows the chosen day.
    void Fill();

    void SetTexts();

    /// Gives its first control the focus.
    void TakeFocus();

    JulianDayField* JulianDay() const { return m_combo8; }

private:
    void Combo6_Click();
    void Combo7_Click();

    void moveBy(double days);

    ComboBox* m_combo6; ///< weekday
    ComboBox* m_combo7; ///< moon age
    MoonButtons m_command2;
    JulianDayField* m_combo8;
    QString m_moonAge; ///< as last shown
};
