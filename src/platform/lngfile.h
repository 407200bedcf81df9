// SPDX-License-Identifier: MIT
#pragma once

#include "platform/inifile.h"

#include <QString>

/// A language's file, an initialisation file as its platform reads it: of sections of one
/// name only the first is searched, of equal keys the first is taken. Blanks around values
/// are ignored, and a NUL ends them.
class LngFile {
public:
    /// Files beyond this size in bytes are not read.
    static constexpr qint64 largestSize = 1 << 20;

    /// Bytes of the longest text, a final NUL included.
    static constexpr int bufferSize = 255;

    enum class Status { Read, Unreadable, TooLarge };

    /// Reads a file whole.
    explicit LngFile(const QString& path);

    /// A file that is in memory already.
    explicit LngFile(const QByteArray& bytes);

    Status ReadStatus() const { return m_status; }

    /// The bytes of an entry, at most size - 1 of them and never a part of a
    /// UTF-8 character; one pair of quotes around a value is taken off. Empty
    /// when there is no such entry or nothing after its "=". A value of blanks
    /// only is returned as a blank.
    QByteArray GetPrivateProfileString(const QByteArray& section, const QByteArray& key,
                                       int size) const;

    /// Bytes of this file as text: UTF-8 where the whole file is valid UTF-8 or
    /// begins with the mark of UTF-16 or UTF-32, from which it is then brought to UTF-8;
    /// otherwise the 8-bit Windows code page of the user's language.
    QString Decode(const QByteArray& bytes) const;

private:
    Status m_status = Status::Unreadable;
    IniFile m_entries;
    bool m_isUtf8 = false;
};
