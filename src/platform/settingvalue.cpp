// SPDX-License-Identifier: MIT
#include "platform/settingvalue.h"

#include "platform/inifile.h"

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

/// Takes a value apart.
class Reader {
public:
    explicit Reader(QByteArrayView raw) : m_rest(raw) {}

    QString text() {
        while (!m_rest.empty() && (m_quoted || m_rest.front() != ';'))
            take(next());
        while (m_text.size() > m_kept && IsBlank(m_text.back()))
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
        else if (!m_text.isEmpty() || !IsBlank(c))
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

} // namespace

QString ReadSettingValue(QByteArrayView value) {
    return Reader(value).text();
}

QByteArray WriteSettingValue(const QString& text) {
    const QByteArray bytes = (text.startsWith(u'@') ? u'@' + text : text).toUtf8();
    QByteArray escapedText;
    for (const char c : bytes)
        escapedText += written(c);
    return needsQuotes(bytes) ? '"' + escapedText + '"' : escapedText;
}
