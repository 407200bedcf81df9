// SPDX-License-Identifier: MIT
#include "platform/text.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QRegularExpression>
#include <QTextDocument>
#include <QTextLayout>

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

bool FitsInLines(const QFontMetrics& metrics, const QString& text, const QSize& room) {
    const QRect whole(QPoint(), room);
    return metrics.horizontalAdvance(text) <= room.width() ||
           whole.contains(metrics.boundingRect(whole, Qt::TextWordWrap, text));
}

QFont FittedFont(const QFont& font, const QString& text, const QSize& room) {
    constexpr int smallestPixelSize = 6;
    QFont smaller = font;
    int pixels = QFontInfo(font).pixelSize();
    while (pixels > smallestPixelSize && !FitsInLines(QFontMetrics(smaller), text, room))
        smaller.setPixelSize(--pixels);
    return smaller;
}

QString Wrapped(QString text, const QFont& font, int width) {
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QTextLayout layout(text.replace(u'\n', QChar::LineSeparator), font);
    layout.setTextOption(option);
    QStringList lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        lines.append(text.mid(line.textStart(), line.textLength()).trimmed());
    }
    layout.endLayout();
    return lines.join(u'\n');
}
