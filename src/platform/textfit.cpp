// SPDX-License-Identifier: MIT
#include "platform/textfit.h"

#include <QFontInfo>
#include <QTextLayout>

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
