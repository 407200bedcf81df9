// SPDX-License-Identifier: MIT
#include "platform/numbers.h"

#include <QLocale>
#include <QRegularExpression>
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

// As a pattern.
const QString realNumber = QStringLiteral(R"([+-]?([0-9]+\.?[0-9]*|\.[0-9]+)([eE][+-]?[0-9]+)?)");

// The tenths of a number, from its 7 significant digits, half away from zero.
double tenthsOf(double value) {
    constexpr double slack = 1e-9; // by which a half of the digits is missed in binary
    const double digits = QByteArray::number(std::abs(value), 'e', 6).toDouble();
    return std::floor(digits * 10 + 0.5 + slack);
}

} // namespace

std::optional<int> CInt(double value) {
    return roundedTo<std::int16_t>(value);
}

std::optional<int> CLng(double value) {
    return roundedTo<std::int32_t>(value);
}

std::optional<int> CInt(const QString& text) {
    static const QRegularExpression number(QStringLiteral(R"(^\s*%1\s*\z)").arg(realNumber));
    if (!number.match(text).hasMatch())
        return std::nullopt;
    return CInt(text.trimmed().toDouble());
}

double Val(const QString& text) {
    static const QRegularExpression blank(QStringLiteral("[ \t\r\n]"));
    static const QRegularExpression beginning(u'^' + realNumber);
    return beginning.match(QString(text).remove(blank)).captured().toDouble();
}

float MyVal(const QString& text) {
    if (text.contains(u','))
        return static_cast<float>(QLocale().toDouble(text));
    return static_cast<float>(Val(text));
}

bool IsWholeNumber(const QString& text) {
    static const QRegularExpression whole(QStringLiteral(R"(^\s*[+-]?[0-9]+\s*\z)"));
    return whole.match(text).hasMatch();
}

QString FormatOneDecimal(double value) {
    const double tenths = tenthsOf(value);
    const bool isNegative = value < 0 && tenths != 0;
    QString text = QString::number((isNegative ? -tenths : tenths) / 10, 'f', 1);
    return QLocale().decimalPoint() == u"," ? text.replace(u'.', u',') : text;
}
