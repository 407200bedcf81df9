// SPDX-License-Identifier: MIT
#include "platform/encoding.h"

#include <QStringDecoder>
#include <iconv.h>

namespace {

constexpr QChar replacement = QChar::ReplacementCharacter;

/// A converter of the C library from a code page to UTF-16.
class Converter {
public:
    explicit Converter(int codePage)
        : m_handle(iconv_open("UTF-16LE", QByteArray("CP" + QByteArray::number(codePage)))) {}
    ~Converter() {
        if (isOpen())
            iconv_close(m_handle);
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    QChar convert(char byte) {
        char16_t unit = 0;
        char* in = &byte;
        std::size_t inLeft = 1;
        char* out = reinterpret_cast<char*>(&unit); // iconv writes bytes
        std::size_t outLeft = sizeof unit;
        iconv(m_handle, nullptr, nullptr, nullptr, nullptr);
        const bool converted = isOpen() && iconv(m_handle, &in, &inLeft, &out, &outLeft) !=
                                               static_cast<std::size_t>(-1);
        // Code pages with combining marks keep the last character back.
        if (converted && outLeft != 0)
            iconv(m_handle, nullptr, nullptr, &out, &outLeft);
        return converted && outLeft == 0 ? QChar(unit) : replacement;
    }

private:
    // The library's own mark of failure.
    // NOLINTNEXTLINE(performance-no-int-to-ptr)
    bool isOpen() const { return m_handle != reinterpret_cast<iconv_t>(-1); }

    iconv_t m_handle;
};

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

bool IsUtf8(const QByteArray& bytes) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder.decode(bytes);
    return !decoder.hasError() && !text.isNull();
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

int UserCodePage() {
    return CodePageOf(QLocale());
}

QString FromCodePage(const QByteArray& bytes, int codePage) {
    Converter converter(codePage);
    QString text;
    text.reserve(bytes.size());
    for (const char byte : bytes)
        text.append(converter.convert(byte));
    return text;
}
