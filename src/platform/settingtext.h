// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

// A text as it stands behind the "=" of a settings file. It may stand in quotes, inside
// which a ";" opens no comment and blanks at the ends count, and hold \n, \x41 and the
// like. In UTF-8.

QString ReadSettingValue(QByteArrayView value);

/// Of these forms only what is needed; it is read back as it was.
QByteArray WriteSettingValue(const QString& text);
