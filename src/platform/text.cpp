// SPDX-License-Identifier: MIT
#include "platform/text.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QRegularExpression>
#include <QTextDocument>
#include <functional>

namespace {

QFont fitted(const QFont& font, const std::function<bool(const QFontMetrics&)>& fits) {
    QFont smaller = font;
    int pixels = QFontInfo(font).pixelSize();
    while (pixels > smallestPixelSize && !fits(QFontMetrics(smaller)))
        smaller.setPixelSize(--pixels);
    return smaller;
}

} // namespace

QString Caption(const std::string& text) {
    return Text(text).replace(u'&', QStringLiteral("&&"));
}

QString PlainTip(const QString& text) {
    return Qt::mightBeRichText(text) ? text.toHtmlEscaped() : text;
}

QString AmidNumbers(const QString& name) {
    constexpr QChar firstStrongIsolate(0x2068);
    constexpr QChar popIsolate(0x2069);
    return name.isRightToLeft() ? firstStrongIsolate + name + popIsolate : name;
}

QString Spoken(QString text) {
    static const QRegularExpression unspoken(
        QStringLiteral("[\u2066-\u2069]|(?<=[a-z])\u0491(?=[a-z])"));
    return text.remove(unspoken);
}

QFont FittedFont(const QFont& font, const QString& text, int width) {
    return fitted(font, [&](const QFontMetrics& metrics) {
        return metrics.horizontalAdvance(text) <= width;
    });
}

QFont FittedFont(const QFont& font, const QString& text, const QSize& room) {
    return fitted(font,
                  [&](const QFontMetrics& metrics) { return FitsInLines(metrics, text, room); });
}

bool FitsInLines(const QFontMetrics& metrics, const QString& text, const QSize& room) {
    const QRect whole(QPoint(), room);
    return metrics.horizontalAdvance(text) <= room.width() ||
           whole.contains(metrics.boundingRect(whole, Qt::TextWordWrap, text));
}
