// SPDX-License-Identifier: MIT
#pragma once

#include "platform/form.h"

/// A small window over the others: the options and the about box. Modeless; Esc
/// closes it.
class Dialog : public Form {
    Q_OBJECT

public:
    using Form::Form;

protected:
    /// Puts the dialog in the middle of the primary screen's width and at a third
    /// of the height that it leaves free.
    void Place();

    void keyPressEvent(QKeyEvent* event) override;
};
