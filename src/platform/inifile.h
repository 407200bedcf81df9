// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayList>
#include <QHash>
#include <optional>

/// An initialisation file: sections of key=value lines. Names are matched without regard
/// to the case of Latin letters and to blanks around them. Lines that begin with ";",
/// lines without "=", header lines without "]" and what stands before the first section
/// are skipped. Lines that nobody changes stay as they are. Bytes that say by their mark
/// that they are UTF-16 or UTF-32 become UTF-8; the mark of UTF-8 is taken off.
class IniFile {
public:
    explicit IniFile(const QByteArray& bytes = {});

    /// Of equal keys the first of the first section of that name, or the last of all.
    enum class Which { First, Last };

    /// What stands behind the "="; nothing when there is no such entry.
    std::optional<QByteArray> Value(const QByteArray& section, const QByteArray& key,
                                    Which which) const;

    /// Replaces the last one's line, or adds one at the end of its section.
    void Set(const QByteArray& section, const QByteArray& key, const QByteArray& value);

    QByteArray Bytes() const { return m_lines.join('\n') + '\n'; }

private:
    // Indexes of lines, -1 where there is none.
    struct Entry {
        qsizetype first = -1;
        qsizetype last = -1;
    };
    struct Section {
        QHash<QByteArray, Entry> entries;
        qsizetype end = -1; ///< the last that is not blank
    };

    void findEntries();

    QByteArrayList m_lines;
    QHash<QByteArray, Section> m_sections;
};
