// SPDX-License-Identifier: MIT
#pragma once

#include "shared/table.h"
#include "start/dialog.h"

class Image;
class Line;
class QLabel;
class QPushButton;

/// The about box, in English or, in the language "Russian", in Russian; at start
/// it serves as the splash.
class frmAbout : public Dialog {
    Q_OBJECT

public:
    frmAbout();

    /// Before the first showing: makes it a splash window of the desktop, cuts it
    /// below its line, takes line and button away and puts it on a background
    /// (0x00BBGGRR).
    void BecomeSplash(int backColor);

protected:
    void Accept() override { Unload(); }

    /// The splash stays: the start that shows it takes it away.
    void closeEvent(QCloseEvent* event) override;

private:
    void Form_Load();
    void createControls();
    void setTexts();
    void placeControls();

    Image* m_image1;
    Table<QLabel*, 3> m_label1; ///< title, version, description
    Line* m_line1;
    QPushButton* m_cmdOK;
    bool m_isSplash = false;
};
