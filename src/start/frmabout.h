// SPDX-License-Identifier: MIT
#pragma once

#include "shared/table.h"
#include "start/dialog.h"

class CommandButton;
class QFrame;
class QLabel;
class QPushButton;

/// The about box, in English or, in the language "Russian", in Russian; at start
/// it serves as the splash.
class frmAbout : public Dialog {
    Q_OBJECT

public:
    frmAbout();

    /// Before the first showing: cuts the box below its line, takes line and
    /// button away and puts it on a background (0x00BBGGRR).
    void BecomeSplash(int backColor);

private:
    void Form_Load();
    void createControls();
    void setTexts();
    void placeControls();

    Table<QLabel*, 3> m_label1; ///< title, version, description
    QFrame* m_line1;
    QPushButton* m_cmdOK;
};
