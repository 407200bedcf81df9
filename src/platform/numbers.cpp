// SPDX-License-Identifier: MIT
#include "platform/numbers.h"

#include <QLocale>
#include <QRegularExpression>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

namespace {

template <typename Whole>
std::optional<int> roundedTo(double value) {
    const double rounded = std::nearbyint(value); // ties to even
    if (!(rounded >= std::numeric_limits<Whole>::min() &&
          rounded <= std::numeric_limits<Whole>::max()))
        return std::nullopt;
    return static_cast<int>(rounded);
}

bool isSign(QChar c) {
    return c == u'+' || c == u'-';
}

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

/// Reads a number from the front of a text without blanks.
class NumberReader {
public:
    explicit NumberReader(QString text) : m_text(std::move(text)) {}

    double read() {
        if (isSign(peek()))
            ++m_at;
        const int digits = skipDigits();
        int decimals = 0;
        if (peek() == u'.') {
            ++m_at;
            decimals = skipDigits();
        }
        if (digits + decimals == 0)
            return 0;
        skipExponent();
        return m_text.left(m_at).toDouble();
    }

private:
    QChar peek(int ahead = 0) const {
        return m_at + ahead < m_text.size() ? m_text.at(m_at + ahead) : QChar();
    }

    int skipDigits() {
        const int start = m_at;
        while (isDigit(peek()))
            ++m_at;
        return m_at - start;
    }

    void skipExponent() {
        if (peek().toLower() != u'e')
            return;
        const int sign = isSign(peek(1)) ? 1 : 0;
        if (!isDigit(peek(1 + sign)))
            return;
        m_at += 1 + sign;
        skipDigits();
    }

    QString m_text;
    int m_at = 0;
};

// The tenths of a number, from its 7 significant digits, half away from zero.
std::int64_t tenthsOf(double value) {
    std::array<char, 32> text{};
    const auto end =
        std::to_chars(text.begin(), text.end(), std::abs(value), std::chars_format::scientific, 6);
    const QByteArray form(text.data(), static_cast<int>(end.ptr - text.data())); // d.dddddde+xx
    std::int64_t digits = (form.left(1) + form.mid(2, 6)).toLongLong();
    int places = 5 - form.mid(9).toInt(); // decimals to drop so that tenths remain
    for (; places < 0; ++places)
        digits *= 10;
    for (; places > 1; --places)
        digits /= 10; // whole digits are cut, so the last one dropped decides alone
    return places == 1 ? (digits + 5) / 10 : digits;
}

} // namespace

double Fix(double value) {
    return std::trunc(value);
}

std::optional<int> CInt(double value) {
    return roundedTo<std::int16_t>(value);
}

std::optional<int> CLng(double value) {
    return roundedTo<std::int32_t>(value);
}

std::optional<int> CInt(const QString& text) {
    static const QRegularExpression number(
        QStringLiteral(R"(^\s*[+-]?([0-9]+\.?[0-9]*|\.[0-9]+)([eE][+-]?[0-9]+)?\s*\z)"));
    if (!number.match(text).hasMatch())
        return std::nullopt;
    return CInt(text.trimmed().toDouble());
}

double Val(const QString& text) {
    QString dense = text;
    dense.remove(QRegularExpression(QStringLiteral("[ \t\r\n]")));
    return NumberReader(dense).read();
}

QString Str(int value) {
    return value < 0 ? QString::number(value) : u' ' + QString::number(value);
}

bool IsWholeNumber(const QString& text) {
    static const QRegularExpression whole(QStringLiteral(R"(^\s*[+-]?[0-9]+\s*\z)"));
    return whole.match(text).hasMatch();
}

QString FormatOneDecimal(double value) {
    const std::int64_t tenths = tenthsOf(value);
    const QString comma = QStringLiteral(",");
    const QString point = QLocale().decimalPoint() == comma ? comma : QStringLiteral(".");
    const QString sign = value < 0 && tenths != 0 ? QStringLiteral("-") : QString();
    return sign + QString::number(tenths / 10) + point + QString::number(tenths % 10);
}
