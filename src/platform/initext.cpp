// SPDX-License-Identifier: MIT
#include "platform/initext.h"

#include <algorithm>
#include <cctype>
#include <span>

namespace {

struct Escape {
    char letter; // behind the backslash
    char byte;
};

// The first ones are also written.
constexpr Escape escapes[] = {{'\\', '\\'}, {'"', '"'},  {'n', '\n'}, {'r', '\r'}, {'t', '\t'},
                              {'a', '\a'},  {'b', '\b'}, {'f', '\f'}, {'v', '\v'}, {'0', '\0'}};
constexpr int writtenEscapes = 5;

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r';
}

/// Takes a value apart.
class Reader {
public:
    explicit Reader(QByteArrayView raw) : m_rest(raw) {}

    QString text() {
        while (!m_rest.empty() && (m_quoted || m_rest.front() != ';'))
            take(next());
        while (m_text.size() > m_kept && isBlank(m_text.back()))
            m_text.chop(1);
        const bool doubled = m_text.startsWith("@@"); // "@" alone opens another kind of value
        return QString::fromUtf8(doubled ? m_text.mid(1) : m_text);
    }

private:
    char next() {
        const char c = m_rest.front();
        m_rest = m_rest.sliced(1);
        return c;
    }

    void take(char c) {
        if (c == '\\' && !m_rest.empty())
            keep(escaped(next()));
        else if (c == '"')
            m_quoted = !m_quoted;
        else if (m_quoted)
            keep(QByteArray(1, c));
        else if (!m_text.isEmpty() || !isBlank(c))
            m_text += c;
    }

    // Blanks behind it may be cut, but not it.
    void keep(const QByteArray& text) {
        m_text += text;
        m_kept = m_text.size();
    }

    QByteArray escaped(char letter) {
        if (letter == 'x')
            return QString(QChar(character())).toUtf8();
        for (const Escape& escape : escapes) {
            if (escape.letter == letter)
                return {1, escape.byte};
        }
        return {1, letter};
    }

    char16_t character() {
        unsigned number = 0;
        while (!m_rest.empty() && std::isxdigit(static_cast<unsigned char>(m_rest.front())) != 0)
            number = number * 16 + QByteArray(1, next()).toUInt(nullptr, 16);
        return static_cast<char16_t>(number);
    }

    QByteArrayView m_rest;
    QByteArray m_text;
    qsizetype m_kept = 0;
    bool m_quoted = false;
};

QByteArray written(char c) {
    for (const Escape& escape : std::span(escapes).first<writtenEscapes>()) {
        if (escape.byte == c)
            return QByteArray("\\") + escape.letter;
    }
    return {1, c};
}

bool needsQuotes(const QByteArray& text) {
    const auto isSpecial = [](char c) { return QByteArrayView(";,=\"").contains(c); };
    return text.trimmed() != text || std::any_of(text.begin(), text.end(), isSpecial);
}

QByteArray valueOf(const QString& value) {
    const QByteArray text = (value.startsWith(u'@') ? u'@' + value : value).toUtf8();
    QByteArray escapedText;
    for (const char c : text)
        escapedText += written(c);
    return needsQuotes(text) ? '"' + escapedText + '"' : escapedText;
}

std::optional<QByteArray> sectionName(const QByteArray& line) {
    const QByteArray text = line.trimmed();
    const auto end = text.indexOf(']');
    if (!text.startsWith('[') || end < 0)
        return std::nullopt;
    return text.mid(1, end - 1).trimmed();
}

bool hasKey(const QByteArray& line, const QByteArray& key) {
    const auto equals = line.indexOf('=');
    return equals >= 0 && line.left(equals).trimmed() == key;
}

} // namespace

/// Indexes of lines, -1 where there is none.
struct IniText::Place {
    qsizetype entry = -1;
    qsizetype lastOfSection = -1;
};

IniText::IniText(const QByteArray& bytes) {
    const QByteArray mark("\xEF\xBB\xBF");
    m_lines = (bytes.startsWith(mark) ? bytes.mid(mark.size()) : bytes).split('\n');
    if (m_lines.last().isEmpty())
        m_lines.removeLast();
}

std::optional<QString> IniText::Value(const QString& section, const QString& key) const {
    const auto entry = find(section, key).entry;
    if (entry < 0)
        return std::nullopt;
    const QByteArrayView line = m_lines.at(entry);
    return Reader(line.sliced(line.indexOf('=') + 1)).text();
}

void IniText::SetValue(const QString& section, const QString& key, const QString& value) {
    const QByteArray line = key.toUtf8() + '=' + valueOf(value);
    if (find(section, key).lastOfSection < 0)
        addSection(section);
    const Place place = find(section, key);
    if (place.entry >= 0)
        m_lines[place.entry] = line;
    else
        m_lines.insert(place.lastOfSection + 1, line);
}

IniText::Place IniText::find(const QString& section, const QString& key) const {
    Place place;
    bool inSection = false;
    for (qsizetype i = 0; i < m_lines.size(); ++i) {
        const QByteArray& line = m_lines.at(i);
        if (const auto name = sectionName(line))
            inSection = *name == section.toUtf8();
        if (inSection && !line.trimmed().isEmpty())
            place.lastOfSection = i;
        if (inSection && hasKey(line, key.toUtf8()))
            place.entry = i;
    }
    return place;
}

void IniText::addSection(const QString& section) {
    if (!m_lines.isEmpty())
        m_lines.append(QByteArray());
    m_lines.append('[' + section.toUtf8() + ']');
}
