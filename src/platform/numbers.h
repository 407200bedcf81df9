// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <optional>

// Numbers and their texts by the classic rules: every conversion of a real number
// to a whole one rounds to the nearest, ties to even.

/// To 16 and to 32 bits; nothing when the rounded value does not fit.
std::optional<int> CInt(double value);
std::optional<int> CLng(double value);

/// A whole text as a 16-bit number: blanks around, a sign, a decimal point and
/// an exponent are read, a fraction is rounded. Nothing when the text is no
/// number or does not fit.
std::optional<int> CInt(const QString& text);

/// The number at the beginning of a text: blanks are skipped, "." is the decimal
/// point, reading stops at the first character that cannot continue the number.
/// 0 when there is none.
double Val(const QString& text);

/// A text as a number in single precision: one that contains a comma by the locale's
/// rule, any other by Val. 0 where it is no number.
float MyVal(const QString& text);

/// Whether the text is a whole number in decimal digits, with or without a sign
/// in front and blanks or line ends around.
bool IsWholeNumber(const QString& text);

/// The pattern "0.0": one decimal, rounded half away from zero on the value's
/// decimal form of 7 significant digits, so that 7.45 shows as 7.5. Western
/// digits in every locale; the locale's separator when that is a comma, else a
/// point.
QString FormatOneDecimal(double value);
