// SPDX-License-Identifier: MIT
#pragma once

#include "shared/calendars.h"
#include "shared/table.h"
#include "start/dialog.h"

#include <string>

class ComboBox;
class CommandButton;
class QCheckBox;
class QGroupBox;
class QLabel;
class QRadioButton;
class QVBoxLayout;

/// The options dialog. What is chosen in it takes effect with Apply.
class frmOptions : public Dialog {
    Q_OBJECT

public:
    frmOptions();

private:
    /// Command1 by index.
    enum Command : int { Apply = 1, Close = 2 };

    void Form_Load();
    void Command1_Click(int index);
    void Option1_Click(int type);
    void Combo1_Click(int pane);

    QGroupBox* moslemFrame();
    QGroupBox* weekdaysFrame();
    QGroupBox* languageFrame();
    QGroupBox* startupFrame();
    CommandButton* newCommand(int index, const QString& picture, int tip);
    void selectLanguage();

    void apply();
    void save() const;
    void applyNewLanguage();
    void applyOtherChanges();

    /// These tell whether anything changed.
    bool applyMoslemType() const;
    Table<bool, calendarCount> applyFirstWeekDays() const;
    bool setShowTips() const;

    int m_moslemType;                         ///< pending
    Table<int, calendarCount> m_firstWeekDay; ///< pending, by calendar
    std::string m_language;                   ///< pending

    Table<ComboBox*, 4> m_combo1; ///< first weekdays, by pane
    Table<int, 4> m_paneCalendar; ///< the calendar of each of them, as loaded
    ComboBox* m_combo2;           ///< language
    ComboBox* m_combo3;           ///< start-up window
    QCheckBox* m_check1;
};
