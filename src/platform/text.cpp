// SPDX-License-Identifier: MIT
#include "platform/text.h"

#include <QRegularExpression>
#include <QTextDocument>

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
