// SPDX-License-Identifier: MIT
#pragma once

#include "changecals/windows.h"
#include "monthly/commoninfo.h"
#include "monthly/pane.h"
#include "platform/commandbutton.h"
#include "platform/image.h"
#include "shared/calendars.h"
#include "shared/table.h"

class QFrame;

/// The main window: the chosen day in four panes side by side, what the
/// calendars have in common, and the command buttons.
class frmMonthlyCal final : public MonthlyWindow {
    Q_OBJECT

public:
    frmMonthlyCal();

    void SetTexts() override;
    void SetCloseTip(const QString& tip) override;
    void SetCal(int pane) override;
    void SetGrid(int pane) override;
    void SetCommonInfo() override;
    void ReSetForm() override;

protected:
    void Form_Unload() override;
    void changeEvent(QEvent* event) override;

private:
    /// Command1 by index.
    enum Command : int { YearCalendars = 1, GoToday = 2, Options = 3, About = 4, Close = 5 };

    void Command1_Click(int index);
    void Command1_MouseDown(int index, Qt::MouseButton button);

    void createCommands();
    void place();
    void placeCommands(int middle);
    void placeEmblems();
    void exchangeCalendars(int pane, int c);
    void saveCalendarOrder();
    void refill(int pane);

    bool m_dayPicked = false;
    Table<Image*, calendarCount> m_image1; ///< emblems by calendar
    Table<Pane*, 4> m_panes;
    QFrame* m_line1;
    CommonInfo* m_common;
    Table<CommandButton*, 5> m_command1;
};
