// SPDX-License-Identifier: MIT
#pragma once

#include "changecals/windows.h"
#include "controls/commands.h"

class MoonPicture;
class QLabel;

/// The moon as it looks on the chosen day, with its age in days. When its
/// picture file cannot be read, the window says so once as it is loaded and
/// shows a plain disc. Esc hides it; Return does what a double click does.
class frmMoon final : public MoonWindow {
    Q_OBJECT

public:
    frmMoon();

    /// Of its contents, in pixels.
    static QSize LargestSize();

    void SetTexts() override;
    void ReSetForm() override;
    QString Answer() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Form_Load();
    void loadPicture();
    void placeControls();

    Commands m_commands;
    QLabel* m_label2;        ///< a backdrop, a little larger than the picture
    MoonPicture* m_picture1; ///< holds the age
    QLabel* m_label1;        ///< the moon's age
};
