// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QFontMetrics>
#include <QSize>
#include <QString>

/// Whether a text fits, on one line whatever the height, or broken between words on so
/// many as there is room for. Sizes are in pixels.
bool FitsInLines(const QFontMetrics& metrics, const QString& text, const QSize& room);

/// `font`, made smaller where `text` would not fit so, down to 6 pixels.
QFont FittedFont(const QFont& font, const QString& text, const QSize& room);

/// The same for one line of this width.
inline QFont FittedFont(const QFont& font, const QString& text, int width) {
    return FittedFont(font, text, QSize(width, 0));
}

/// `text` broken into lines of at most `width` pixels: between words, and within
/// a word that is too wide by itself. Breaks that the text has stay.
QString Wrapped(QString text, const QFont& font, int width);
