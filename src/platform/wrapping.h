// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QString>

/// `text` broken into lines of at most `width` pixels: between words, and within
/// a word that is too wide by itself. Breaks that the text has stay.
QString Wrapped(const QString& text, const QFont& font, int width);
