// SPDX-License-Identifier: MIT
#include "platform/wrapping.h"

#include <QStringList>
#include <QTextLayout>

namespace {

QStringList wrappedLine(const QString& text, const QFont& font, int width) {
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QTextLayout layout(text, font);
    layout.setTextOption(option);
    QStringList lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        lines.append(text.mid(line.textStart(), line.textLength()).trimmed());
    }
    layout.endLayout();
    return lines;
}

} // namespace

QString Wrapped(const QString& text, const QFont& font, int width) {
    QStringList lines;
    for (const QString& line : text.split(u'\n'))
        lines += wrappedLine(line, font, width);
    return lines.join(u'\n');
}
