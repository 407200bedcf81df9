// SPDX-License-Identifier: MIT
#pragma once

#include "shared/settings.h"
#include "shared/table.h"

#include <QObject>

class ComboBox;
class MonthGrid;

/// One of the four panes: the selectors of one calendar and its month grid. A
/// list holds only the entry of the chosen day until it is used. What a choice
/// changes is measured against the chosen day, for a typed number against the day at
/// which the typing began, never against an earlier text.
class Pane : public QObject {
    Q_OBJECT

public:
    Pane(int pane, QWidget* parent);

    /// Places the pane's controls; returns the y of its lower edge. In pixels.
    int Place(int left, int top);

    /// Gives each row of lists of the panes one letter size.
    static void ShareLetterSizes(const Table<Pane*, paneCount>& panes);

    /// Refills the selectors.
    void SetCal();

    MonthGrid& Grid() { return *m_grid; }

    /// Whether it holds a calendar that can show the chosen day.
    bool ShowsDay() const;

    /// Whether one of its controls has its window's focus.
    bool HasFocus() const;

    /// Gives its grid the focus, the chooser where the grid cannot have it.
    void TakeFocus();

    void SetTexts();

    /// In pixels.
    static constexpr int width = 148;

Q_SIGNALS:
    /// The user wants calendar c in this pane.
    void CalendarChosen(int pane, int c);

private:
    void Combo1_Click();
    void Combo2_Click();
    void Combo3_Click();
    void Combo4_Click();
    void Combo5_Click();

    void setFillers();
    int calendar() const;
    void showOnlyChosenDay();
    void setAvailable();

    int m_pane;
    ComboBox* m_combo1; ///< calendar
    ComboBox* m_combo2; ///< year
    ComboBox* m_combo3; ///< month
    MonthGrid* m_grid;
    ComboBox* m_combo4; ///< day of the year
    ComboBox* m_combo5; ///< week of the year
};
