// SPDX-License-Identifier: MIT
#pragma once

#include "changecals/windows.h"
#include "controls/commands.h"
#include "controls/moonbuttons.h"
#include "shared/calendars.h"
#include "shared/table.h"
#include "yearcals/yearcontrols.h"

class ComboBox;
class CommandButton;
class YearGrid;

/// The window of a whole year of one calendar: frmJulian, frmGregorian, frmJewish
/// and frmMoslem are four of them.
class frmYearCal final : public YearWindow {
    Q_OBJECT

public:
    explicit frmYearCal(int c);

    /// Of its contents in calendar c's longest year, in pixels.
    static QSize LargestSize(int c);

    void SetTexts() override;
    void SetCloseTip(int text) override;
    QString Answer() const override;
    void ShowYear() override;
    void ForgetYear() override;

protected:
    void Form_Unload() override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    /// Command1 by index; from FirstOtherCalendar on they open the other calendars'
    /// windows.
    enum : int {
        PreviousYear = 1,
        NextYear = 2,
        TodayButton = 3,
        OptionsButton = 4,
        AboutButton = 5,
        CloseButton = 6,
        FirstOtherCalendar = 7,
    };
    static constexpr int otherCount = calendarCount - 1;
    static constexpr int buttonCount = FirstOtherCalendar + otherCount - 1;

    void Combo1_Click();
    void Command1_Click(int index);
    void Command1_MouseDown(int index, Qt::MouseButton button);
    void Form_Resize();

    void StepYear(int by);
    void createControls();
    void placeControls();
    static Command commandOf(int index);
    QString pictureOf(int index) const;
    int otherCalendar(int index) const;
    YearCals::YearControls arranged();

    int m_calendar;
    Commands m_commands;
    ComboBox* m_combo1;
    Table<CommandButton*, buttonCount> m_command1;
    MoonButtons m_command2;
    YearGrid* m_grid;
};
