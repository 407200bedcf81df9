// SPDX-License-Identifier: MIT
#include "start/dialogplace.h"

#include "platform/form.h"
#include "platform/numbers.h"
#include "platform/twips.h"

#include <QGuiApplication>
#include <QScreen>

void PlaceDialog(Form& dialog) {
    const QSize screen = QGuiApplication::primaryScreen()->size();
    const double left = (ToTwips(screen.width()) - ToTwips(dialog.width())) / 2.0;
    const double top = (ToTwips(screen.height()) - ToTwips(dialog.height())) / 3.0;
    dialog.Move(CLng(left).value_or(0), CLng(top).value_or(0));
}
