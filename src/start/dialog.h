// SPDX-License-Identifier: MIT
#pragma once

#include "controls/commands.h"
#include "platform/form.h"

#include <QStyle>

/// A small window over the others: the options and the about box. Modeless;
/// Return accepts it, Esc closes it. It has a fixed place.
class Dialog : public Form {
    Q_OBJECT

public:
    explicit Dialog(const QString& name);

protected:
    /// Puts it in the middle of the primary monitor's width and at a third of the height
    /// that it leaves free.
    void Place();

    /// A measure of the style in use, in pixels.
    int Metric(QStyle::PixelMetric which) const;

    /// What Return does where the control with the focus has no use for it.
    virtual void Accept() = 0;

    void keyPressEvent(QKeyEvent* event) override;

private:
    Commands m_commands;
};
