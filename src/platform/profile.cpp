// SPDX-License-Identifier: MIT
#include "platform/profile.h"

#include "platform/codepage.h"

#include <QFile>
#include <QFileInfo>
#include <optional>

namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

QByteArray withoutBlanks(QByteArray text) {
    while (!text.isEmpty() && isBlank(text.front()))
        text.remove(0, 1);
    while (!text.isEmpty() && isBlank(text.back()))
        text.chop(1);
    return text;
}

bool sameName(const QByteArray& a, const QByteArray& b) {
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

// The name in a header line, nothing when the line is none.
std::optional<QByteArray> sectionName(const QByteArray& line) {
    const QByteArray text = withoutBlanks(line);
    const auto end = text.indexOf(']');
    if (!text.startsWith('[') || end < 0)
        return std::nullopt;
    return withoutBlanks(text.mid(1, end - 1));
}

bool isQuoted(const QByteArray& value) {
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

// What stands after "=", up to a NUL and without the line's end.
QByteArray rawValue(const QByteArray& line, qsizetype equals) {
    QByteArray value = line.mid(equals + 1);
    if (const auto end = value.indexOf('\0'); end >= 0)
        value.truncate(end);
    if (value.endsWith('\r'))
        value.chop(1);
    return value;
}

QByteArray valueOf(const QByteArray& raw) {
    const QByteArray value = withoutBlanks(raw);
    if (value.isEmpty())
        return raw.isEmpty() ? QByteArray() : QByteArray(" ");
    return isQuoted(value) ? value.mid(1, value.size() - 2) : value;
}

/// Goes through the lines of a file.
class Lines {
public:
    explicit Lines(const QByteArray& bytes) : m_bytes(bytes) {}

    std::optional<QByteArray> next() {
        if (m_at >= m_bytes.size())
            return std::nullopt;
        const auto newline = m_bytes.indexOf('\n', m_at);
        const auto end = newline < 0 ? m_bytes.size() : newline;
        const QByteArray line = m_bytes.mid(m_at, end - m_at);
        m_at = end + 1;
        return line;
    }

private:
    const QByteArray& m_bytes;
    qsizetype m_at = 0;
};

bool findSection(Lines& lines, const QByteArray& section) {
    while (const auto line = lines.next()) {
        const auto name = sectionName(*line);
        if (name && sameName(*name, section))
            return true;
    }
    return false;
}

// The raw value of a key in the section at hand.
QByteArray findValue(Lines& lines, const QByteArray& key) {
    while (const auto line = lines.next()) {
        if (sectionName(*line))
            break;
        const auto equals = line->indexOf('=');
        const bool comment = withoutBlanks(*line).startsWith(';');
        if (!comment && equals >= 0 && sameName(withoutBlanks(line->left(equals)), key))
            return rawValue(*line, equals);
    }
    return {};
}

} // namespace

ProfileFile::ProfileFile(const QString& path) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return;
    if (file.size() > largestSize) {
        m_status = Status::TooLarge;
        return;
    }
    take(file.read(largestSize));
}

ProfileFile ProfileFile::FromBytes(const QByteArray& bytes) {
    ProfileFile file;
    file.take(bytes);
    return file;
}

void ProfileFile::take(const QByteArray& bytes) {
    const QByteArray utf8Mark("\xEF\xBB\xBF");
    m_status = Status::Read;
    m_isUtf8 = IsUtf8(bytes);
    m_bytes = bytes.startsWith(utf8Mark) ? bytes.mid(utf8Mark.size()) : bytes;
}

QByteArray ProfileFile::GetPrivateProfileString(const QByteArray& section, const QByteArray& key,
                                                int size) const {
    Lines lines(m_bytes);
    if (!findSection(lines, withoutBlanks(section)))
        return {};
    return cutTo(valueOf(findValue(lines, withoutBlanks(key))), size - 1, m_isUtf8);
}

QString ProfileFile::Decode(const QByteArray& bytes) const {
    return m_isUtf8 ? QString::fromUtf8(bytes) : FromCodePage(bytes, UserCodePage());
}
