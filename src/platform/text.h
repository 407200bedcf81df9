// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QFontMetrics>
#include <QSize>
#include <QString>
#include <string>

/// A text of the shared tables (UTF-8) for the toolkit.
inline QString Text(const std::string& text) {
    return QString::fromStdString(text);
}

/// A text as the caption of a control, where a single "&" would be taken for a
/// keyboard mark.
QString Caption(const std::string& text);

/// Text as it stands for a tool tip, which the toolkit otherwise shows as rich
/// text when it looks like it.
QString PlainTip(const QString& text);

/// A name for a line with numbers: isolated where it runs right to left, so that
/// the numbers beside it neither join nor split it.
QString AmidNumbers(const QString& name);

/// A text as it is spoken: without marks of direction, and without a letter of
/// another script amid Latin ones.
QString Spoken(QString text);

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
