// SPDX-License-Identifier: MIT
#pragma once

#include "changecals/windows.h"
#include "controls/commands.h"
#include "shared/calendars.h"
#include "shared/settings.h"
#include "shared/table.h"

class CommandButton;
class Image;
class Line;
class Pane;
class WeekdayAndMoon;

/// The main window: the chosen day in four panes side by side, what the
/// calendars have in common, and the command buttons.
class frmMonthlyCal final : public MonthlyWindow {
    Q_OBJECT

public:
    frmMonthlyCal();

    static constexpr int commandCount = 5;

    void SetTexts() override;
    void SetCloseTip(int text) override;
    QString Answer() const override;
    void SetCal(int pane) override;
    void SetGrid(int pane) override;
    void SetCommonInfo() override;
    void ReSetForm() override;

protected:
    void Form_Unload() override;
    void changeEvent(QEvent* event) override;

private:
    int calendarToPrint() const;
    void createCommands();
    void place();
    int placeCommon(int top, int width);
    void placeCommands(int left, int middle, int side);
    void placeEmblems();
    void addPaneKeys();
    void goToPane(int step);
    void exchangeCalendars(int pane, int c);

    Commands m_commands;
    Table<Image*, calendarCount> m_image1; ///< emblems by calendar
    Table<Pane*, paneCount> m_panes;
    Line* m_line1;
    WeekdayAndMoon* m_common;
    Table<CommandButton*, commandCount> m_command1;
};
