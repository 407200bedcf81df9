// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
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

/// `font`, made smaller where `text` would not fit into `width` pixels.
QFont FittedFont(const QFont& font, const QString& text, int width);
