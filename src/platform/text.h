// SPDX-License-Identifier: MIT
#pragma once

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
