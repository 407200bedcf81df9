// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>

/// The 8-bit Windows code page of a language by its script, as a number: 1251
/// Cyrillic, 1253 Greek, 1255 Hebrew, 1256 Arabic and Persian; in Latin letters 1250
/// Central European, 1254 Turkish and Azerbaijani, 1252 otherwise.
int CodePageOf(const QLocale& locale);
