// SPDX-License-Identifier: MIT
#include "platform/settingtext.h"

#include <algorithm>
#include <cctype>

namespace {

// What stands behind a backslash, and the bytes for which it stands. The first five are
// also written.
constexpr QByteArrayView escapes = "\\\"nrtabfv0";
constexpr QByteArrayView escapedBytes("\\\"\n\r\t\a\b\f\v\0", 10);
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
        const auto at = escapes.indexOf(letter);
        return {1, at < 0 ? letter : escapedBytes[at]};
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
    const auto at = escapedBytes.first(writtenEscapes).indexOf(c);
    return at < 0 ? QByteArray(1, c) : QByteArray("\\") + escapes[at];
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
