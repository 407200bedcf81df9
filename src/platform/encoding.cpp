// SPDX-License-Identifier: MIT
#include "platform/encoding.h"

#include "platform/system.h"

#include <QStringDecoder>

namespace {

// The languages in Latin letters that have a code page of their own.
int latinCodePage(QLocale::Language language) {
    switch (language) {
    case QLocale::Polish:
    case QLocale::Czech:
    case QLocale::Slovak:
    case QLocale::Hungarian:
    case QLocale::Slovenian:
    case QLocale::Croatian:
    case QLocale::Bosnian:
    case QLocale::Serbian:
    case QLocale::Romanian:
    case QLocale::Albanian:
        return 1250;
    case QLocale::Turkish:
    case QLocale::Azerbaijani:
        return 1254;
    default:
        return 1252;
    }
}

} // namespace

QByteArray WithoutMark(const QByteArray& bytes) {
    const auto encoding = QStringConverter::encodingForData(bytes);
    if (encoding == QStringConverter::Utf8)
        return bytes.mid(3);
    return encoding ? QString(QStringDecoder(*encoding).decode(bytes)).toUtf8() : bytes;
}

QString Decoded(const QByteArray& bytes, bool isUtf8) {
    return isUtf8 ? QString::fromUtf8(bytes) : FromCodePage(bytes, CodePageOf(QLocale()));
}

int CodePageOf(const QLocale& locale) {
    switch (locale.script()) {
    case QLocale::CyrillicScript:
        return 1251;
    case QLocale::HebrewScript:
        return 1255;
    case QLocale::ArabicScript:
        return 1256;
    case QLocale::GreekScript:
        return 1253;
    default:
        return latinCodePage(locale.language());
    }
}
