// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>

// How bytes of a file become text.

/// Bytes that say by their mark that they are UTF-16 or UTF-32 as UTF-8; the mark of
/// UTF-8 is taken off, other bytes stay.
QByteArray WithoutMark(const QByteArray& bytes);

/// Bytes in UTF-8, or in the code page of the user's language.
QString Decoded(const QByteArray& bytes, bool isUtf8);

/// The 8-bit Windows code page of a language by its script, as a number: 1251
/// Cyrillic, 1253 Greek, 1255 Hebrew, 1256 Arabic and Persian; in Latin letters 1250
/// Central European, 1254 Turkish and Azerbaijani, 1252 otherwise.
int CodePageOf(const QLocale& locale);
