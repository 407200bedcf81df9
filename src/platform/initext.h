// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QString>
#include <optional>

/// The text of a settings file: sections of key=value lines in UTF-8. Lines that
/// nobody changes stay as they are, comments and other programs' keys included.
/// Names are compared letter by letter; of equal keys the last counts. Values may
/// stand in quotes, inside which a ";" opens no comment and blanks at the ends
/// count, and hold \n, \x41 and the like.
class IniText {
public:
    explicit IniText(const QByteArray& bytes = {});

    /// Nothing when there is no such key.
    std::optional<QString> Value(const QString& section, const QString& key) const;

    /// Replaces the key's line, or adds one at the end of its section.
    void SetValue(const QString& section, const QString& key, const QString& value);

    QByteArray Bytes() const { return m_lines.join('\n') + '\n'; }

private:
    struct Place;
    Place find(const QString& section, const QString& key) const;
    void addSection(const QString& section);

    QByteArrayList m_lines;
};
