// SPDX-License-Identifier: MIT
#include "platform/lngfile.h"

#include "platform/encoding.h"

#include <QFile>
#include <QFileInfo>

namespace {

bool isQuoted(QByteArrayView value) {
    const bool quote = value.startsWith('"') || value.startsWith('\'');
    return value.size() >= 2 && quote && value.front() == value.back();
}

// Cuts before the first byte of a character that would be divided.
QByteArray cutTo(const QByteArray& value, qsizetype size, bool utf8) {
    if (value.size() <= size)
        return value;
    while (utf8 && size > 0 && (static_cast<unsigned char>(value.at(size)) & 0xC0) == 0x80)
        --size;
    return value.left(size);
}

// From what stands after "=".
QByteArray valueOf(QByteArrayView raw) {
    if (const auto end = raw.indexOf('\0'); end >= 0)
        raw.truncate(end);
    if (raw.endsWith('\r'))
        raw.chop(1);
    const QByteArrayView value = raw.trimmed();
    if (value.empty())
        return raw.empty() ? QByteArray() : QByteArray(" ");
    return (isQuoted(value) ? value.sliced(1, value.size() - 2) : value).toByteArray();
}

} // namespace

LngFile::LngFile(const QString& path) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return;
    if (file.size() > largestSize) {
        m_status = Status::TooLarge;
        return;
    }
    *this = LngFile(file.read(largestSize));
}

LngFile::LngFile(const QByteArray& bytes)
    : m_status(Status::Read), m_entries(bytes), m_isUtf8(m_entries.Bytes().isValidUtf8()) {}

QByteArray LngFile::GetPrivateProfileString(const QByteArray& section, const QByteArray& key,
                                            int size) const {
    const auto raw = m_entries.Value(section, key, IniFile::Which::First);
    return raw ? cutTo(valueOf(*raw), size - 1, m_isUtf8) : QByteArray();
}

QString LngFile::Decode(const QByteArray& bytes) const {
    return Decoded(bytes, m_isUtf8);
}
