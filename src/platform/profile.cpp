// SPDX-License-Identifier: MIT
#include "platform/profile.h"

#include "platform/encoding.h"

#include <QFile>
#include <QFileInfo>
#include <optional>

namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

QByteArrayView withoutBlanks(QByteArrayView text) {
    while (!text.empty() && isBlank(text.front()))
        text = text.sliced(1);
    while (!text.empty() && isBlank(text.back()))
        text.chop(1);
    return text;
}

// The form in which names are compared.
QByteArray nameOf(QByteArrayView text) {
    return withoutBlanks(text).toByteArray().toLower();
}

// The name in a header line, nothing when the line is none.
std::optional<QByteArray> sectionName(QByteArrayView line) {
    const QByteArrayView text = withoutBlanks(line);
    const auto end = text.indexOf(']');
    if (!text.startsWith('[') || end < 0)
        return std::nullopt;
    return nameOf(text.sliced(1, end - 1));
}

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

// What stands after "=", up to a NUL and without the line's end.
QByteArrayView rawValue(QByteArrayView text) {
    if (const auto end = text.indexOf('\0'); end >= 0)
        text.truncate(end);
    if (text.endsWith('\r'))
        text.chop(1);
    return text;
}

QByteArray valueOf(QByteArrayView raw) {
    const QByteArrayView value = withoutBlanks(raw);
    if (value.empty())
        return raw.empty() ? QByteArray() : QByteArray(" ");
    return (isQuoted(value) ? value.sliced(1, value.size() - 2) : value).toByteArray();
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
    const QByteArray text = WithoutMark(bytes);
    m_status = Status::Read;
    m_isUtf8 = IsUtf8(text);
    Section* section = nullptr;
    for (QByteArrayView rest(text); !rest.empty();) {
        const auto newline = rest.indexOf('\n');
        const auto end = newline < 0 ? rest.size() : newline;
        takeLine(rest.first(end), section);
        rest = rest.sliced(std::min(end + 1, rest.size()));
    }
}

// `section` is the one at hand, nullptr where entries do not count.
void ProfileFile::takeLine(QByteArrayView line, Section*& section) {
    if (const auto name = sectionName(line)) {
        const auto [place, isFirst] = m_sections.try_emplace(*name);
        section = isFirst ? &place->second : nullptr;
        return;
    }
    const auto equals = line.indexOf('=');
    const bool comment = withoutBlanks(line).startsWith(';');
    if (section != nullptr && !comment && equals >= 0)
        section->try_emplace(nameOf(line.first(equals)),
                             valueOf(rawValue(line.sliced(equals + 1))));
}

QByteArray ProfileFile::GetPrivateProfileString(const QByteArray& section, const QByteArray& key,
                                                int size) const {
    const auto entries = m_sections.find(nameOf(section));
    if (entries == m_sections.end())
        return {};
    const auto entry = entries->second.find(nameOf(key));
    return entry == entries->second.end() ? QByteArray() : cutTo(entry->second, size - 1, m_isUtf8);
}

QString ProfileFile::Decode(const QByteArray& bytes) const {
    return m_isUtf8 ? QString::fromUtf8(bytes) : FromCodePage(bytes, UserCodePage());
}
