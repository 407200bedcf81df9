// SPDX-License-Identifier: MIT
#pragma once

#include "changecals/changecals.h"
#include "shared/calendars.h"
#include "shared/settings.h"
#include "shared/table.h"
#include "start/dialog.h"

#include <QBoxLayout>
#include <string>

class ComboBox;
class CommandButton;
class QCheckBox;

/// The options dialog. What is chosen in it takes effect with Apply.
class frmOptions : public Dialog {
    Q_OBJECT

public:
    frmOptions();

protected:
    void Accept() override { apply(); }

private:
    /// What is compared to find out what changes.
    struct Choices {
        ChangeCals::Rules rules;
        std::string languageName = LanguageName;
        int showTips = ShowTips;
    };

    /// Command1 by index.
    enum : int { Apply = 1, Close = 2 };

    void Form_Load();
    void Command1_Click(int index);
    void Option1_Click(int type);
    void Combo1_Click(int pane);

    void measure();
    void placeFrames(QWidget* frames);
    void scrollWhereTooHigh(QWidget* frames, QVBoxLayout& rows);
    QWidget* newColumns(QWidget* parent, QBoxLayout::Direction direction);
    QWidget* moslemFrame(QWidget* parent);
    QWidget* weekdaysFrame(QWidget* parent);
    ComboBox* newWeekdayList(int pane, QWidget* parent);
    ComboBox* newWideList(const QString& name, int label, QVBoxLayout* column);
    int nameWidth() const;
    int buttonSide() const;
    QHBoxLayout* commandRow();
    CommandButton* newCommand(int index, const QString& picture, int tip);
    void selectLanguage();

    void apply();
    void writeChoices();
    static void applyChanges(const Choices& before);

    int m_textWidth;   ///< of a line, in pixels
    int m_columnWidth; ///< of a line in a column

    int m_moslemType;                         ///< pending
    Table<int, calendarCount> m_firstWeekDay; ///< pending, by calendar

    Table<ComboBox*, paneCount> m_combo1; ///< first weekdays, by pane
    Table<int, paneCount> m_paneCalendar; ///< the calendar of each of them, as loaded
    ComboBox* m_combo2;                   ///< language
    ComboBox* m_combo3;                   ///< start-up window
    QCheckBox* m_check1;
};
