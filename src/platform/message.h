// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QWidget;

/// A message box with the exclamation icon and the product's title, wide enough
/// for the title to be read; returns when the user has closed it. The text is shown as it stands.
/// The box belongs to `owner`, or else to the window that has the keyboard.
void MsgBox(const QString& text, QWidget* owner = nullptr);

/// A text from outside as it is told: on one line, shortened, and with a sign in the
/// place of each letter that cannot be seen.
QString Told(const QString& text);

/// Two texts with an empty line between them.
QString WithEmptyLine(const QString& first, const QString& second);

/// The line break of the program's messages.
inline QString LineBreak() {
    return QStringLiteral("\r\n");
}
