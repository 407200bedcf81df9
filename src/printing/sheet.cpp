// SPDX-License-Identifier: MIT
#include "printing/sheet.h"

#include "platform/textfit.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPainter>
#include <QRegularExpression>
#include <algorithm>
#include <cmath>

namespace {

constexpr double leastMargin = 40;

// The painter counts in parts of a point: letters of that many pixels are measured
// without being rounded to a grid.
constexpr int parts = 100;

constexpr Sheet::Letters titleLetters{18, true};
constexpr Sheet::Letters subtitleLetters{8};
constexpr double titleHeight = 16;
constexpr double subtitleHeight = 17;
constexpr double aboveRule = 8;
constexpr double belowRule = 14;

QFont fontOf(Sheet::Letters letters) {
    QFont font = QApplication::font();
    font.setPixelSize(static_cast<int>(std::lround(letters.size * parts)));
    font.setBold(letters.bold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QRectF inParts(const QRectF& where) {
    return {where.topLeft() * parts, where.size() * parts};
}

// On a line from right to left: a year would stand before a Latin numeral that ends
// the month's name.
QString withNumbersBehind(QString text) {
    static const QRegularExpression blank(QStringLiteral(" (?=[0-9])"));
    return text.replace(blank, QStringLiteral("\u200f "));
}

QRectF printedPart(const QPageLayout& layout) {
    const QMarginsF asked = layout.margins(QPageLayout::Point);
    const QMarginsF margins(std::max(asked.left(), leastMargin), std::max(asked.top(), leastMargin),
                            std::max(asked.right(), leastMargin),
                            std::max(asked.bottom(), leastMargin));
    return layout.fullRect(QPageLayout::Point).marginsRemoved(margins);
}

} // namespace

Sheet::Sheet(QPainter& painter, const QPageLayout& layout, bool rightToLeft)
    : m_painter(painter), m_rightToLeft(rightToLeft) {
    constexpr double pointsInInch = 72;
    const QRectF printed = printedPart(layout);
    const double scale = std::min(printed.width() / leastWidth, printed.height() / leastHeight);
    m_width = printed.width() / scale;
    m_height = printed.height() / scale;
    painter.scale(painter.device()->logicalDpiX() / pointsInInch,
                  painter.device()->logicalDpiY() / pointsInInch);
    painter.translate(printed.topLeft());
    painter.scale(scale / parts, scale / parts);
    painter.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
}

void Sheet::Write(const QRectF& where, const QString& text, Letters letters,
                  Qt::Alignment alignment) const {
    QRectF place = inParts(onPaper(where));
    const QFont font = FittedFont(fontOf(letters), text, static_cast<int>(place.width()));
    place.setBottom(place.bottom() + QFontMetricsF(font).descent());
    m_painter.setFont(font);
    m_painter.drawText(place,
                       static_cast<int>(alignment | Qt::AlignBottom) | Qt::TextSingleLine |
                           Qt::TextDontClip,
                       m_rightToLeft ? withNumbersBehind(text) : text);
}

void Sheet::WriteFigures(const QRectF& where, const QString& figures, Letters letters) const {
    Write(where, figures, letters, Qt::AlignRight | Qt::AlignAbsolute);
}

double Sheet::WriteHeading(const QString& title, const QString& subtitle) const {
    Write({0, 0, m_width, titleHeight}, title, titleLetters);
    Write({0, titleHeight, m_width, subtitleHeight}, subtitle, subtitleLetters);
    const double bottom = titleHeight + subtitleHeight + aboveRule;
    DrawRule(0, m_width, bottom, 0.8);
    return bottom + belowRule;
}

void Sheet::DrawRule(double left, double right, double y, double thickness) const {
    m_painter.fillRect(inParts(onPaper({left, y - thickness / 2, right - left, thickness})),
                       Qt::black);
}

double Sheet::WidthOf(const QString& text, Letters letters) {
    return QFontMetricsF(fontOf(letters)).horizontalAdvance(text) / parts;
}

QRectF Sheet::onPaper(const QRectF& where) const {
    const double left = m_rightToLeft ? m_width - where.right() : where.left();
    return {left, where.top(), where.width(), where.height()};
}
