// SPDX-License-Identifier: MIT
#pragma once

#include "changecals/moonbuttons.h"
#include "changecals/windows.h"
#include "platform/combobox.h"
#include "platform/commandbutton.h"
#include "platform/flexgrid.h"
#include "shared/table.h"

/// Command1 of a year window by index.
enum YearCommand : int {
    PreviousYear = 1,
    NextYear = 2,
    TodayCommand = 3,
    OptionsCommand = 4,
    AboutCommand = 5,
    CloseCommand = 6,
    FirstOtherCalendar = 7, ///< 7..9 open the other calendars' year windows
};
inline constexpr int yearCommands = 9;

/// The window of a whole year of one calendar: frmJulian, frmGregorian, frmJewish
/// and frmMoslem are four of them.
class frmYearCal final : public YearWindow {
    Q_OBJECT

public:
    explicit frmYearCal(int c);

    void SetTexts() override;
    void SetCloseTip(const QString& tip) override;
    void ShowYear() override;

    MSFlexGrid& Grid() { return *m_grid; }
    ComboBox& Combo1() { return *m_combo1; }
    CommandButton& Command1(int index) { return *m_command1(index); }

    /// Brings the moon button of a phase to the front, as the fifth stop of Tab.
    void ShowMoonPhase(int phase);

    /// Height of the row of controls above the grid, in twips.
    static constexpr int controlsHeight = 780;

protected:
    void Form_Unload() override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Combo1_GotFocus();
    void Combo1_Click();
    void MSFlexGrid1_MouseDown(Qt::MouseButton button);
    void Command1_Click(int index);
    void Command1_MouseDown(int index, Qt::MouseButton button);
    void Form_Resize();

    void createControls();
    void placeControls();
    void connectControls();

    int m_calendar;
    ComboBox* m_combo1;
    Table<CommandButton*, yearCommands> m_command1;
    MoonButtons m_command2;
    MSFlexGrid* m_grid;
};
