// SPDX-License-Identifier: MIT
#include "platform/gridpainter.h"

#include "platform/color.h"
#include "platform/gridmodel.h"
#include "platform/textfit.h"

#include <QAbstractScrollArea>
#include <QPainter>
#include <QRegion>
#include <QStyleOptionViewItem>
#include <algorithm>
#include <cmath>

namespace {

// Enough for the numbers and titles of a grid; a change of language starts anew.
constexpr std::size_t mostTexts = 500;

constexpr double fadedOpacity = 0.5;

constexpr QColor frameColor(120, 128, 152);

// Told from the pale cells and from a red one, and from what lies around either.
constexpr QColor outlineColor(0, 0, 128);

bool isSingleDigit(const QString& text) {
    return text.size() == 1 && text.front().isDigit();
}

// A pen would stand half outside where a screen has several pixels for one.
void outline(QPainter* painter, const QRect& cell) {
    for (const QRect& side : QRegion(cell) - cell.adjusted(1, 1, -1, -1))
        painter->fillRect(side, outlineColor);
}

} // namespace

GridPainter::GridPainter(const GridModel* model, QObject* parent)
    : QAbstractItemDelegate(parent), m_model(model) {}

// Whole pixels of the screen, close around the cells: at a fractional scale the
// toolkit would round each side by itself.
void GridPainter::PaintFrame(QAbstractScrollArea& grid) {
    QPainter painter(&grid);
    const QTransform toScreen = painter.deviceTransform();
    const double line = std::floor(toScreen.m11());
    const QRectF cells = toScreen.mapRect(QRectF(grid.viewport()->geometry()));
    const QRectF whole(cells.topLeft().toPoint(), cells.bottomRight().toPoint());
    painter.fillRect(toScreen.inverted().mapRect(whole.adjusted(-line, -line, line, line)),
                     grid.hasFocus() ? grid.palette().color(QPalette::WindowText) : frameColor);
}

void GridPainter::SetFonts(const QFont& plain) {
    m_fonts[0] = m_fonts[1] = plain;
    m_fonts[1].setBold(true);
    m_texts.clear();
}

void GridPainter::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
    ++m_paintedCells;
    const GridCell& cell = m_model->Cell(index.row(), index.column());
    painter->fillRect(option.rect, ToColor(cell.back));
    if (!cell.text.isEmpty()) {
        painter->setOpacity(option.state.testFlag(QStyle::State_Enabled) ? 1 : fadedOpacity);
        const QRect room = option.rect.adjusted(index.column() == 0 ? 1 : 0, 0, 0, 0);
        painter->setClipRect(room); // marks can be piled on a letter
        paintText(painter, cell, room);
        painter->setClipping(false);
        painter->setOpacity(1);
    }
    if (option.state.testFlag(QStyle::State_HasFocus))
        outline(painter, option.rect);
}

QSize GridPainter::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const {
    return {};
}

const GridPainter::LaidOutText& GridPainter::laidOut(const QString& text, bool bold,
                                                     int width) const {
    const QString key = QString::number(bold ? -width : width) + u' ' + text;
    const auto known = m_texts.find(key);
    if (known != m_texts.end())
        return known->second;
    if (m_texts.size() >= mostTexts)
        m_texts.clear();
    LaidOutText entry{QStaticText(text), FittedFont(m_fonts[bold ? 1 : 0], text, width), 0};
    const QFontMetrics metrics(entry.font);
    if (metrics.horizontalAdvance(text) > width)
        entry.text.setText(metrics.elidedText(text, Qt::ElideRight, width));
    entry.advance = QFontMetricsF(entry.font).horizontalAdvance(entry.text.text());
    entry.text.setTextFormat(Qt::PlainText);
    entry.text.prepare({}, entry.font);
    return m_texts.emplace(key, entry).first->second;
}

void GridPainter::paintText(QPainter* painter, const GridCell& cell, const QRect& rect) const {
    const LaidOutText& entry = laidOut(cell.text, cell.bold, rect.width());
    // A single digit stands below the second digit of larger numbers.
    const double digitShift = isSingleDigit(cell.text) ? entry.advance / 2 : 0;
    const double indent = std::floor((rect.width() - entry.advance) / 2 + digitShift);
    const QPointF at(rect.x() + std::max(0.0, indent),
                     rect.y() + (rect.height() - entry.text.size().height()) / 2);
    painter->setPen(ToColor(cell.fore));
    painter->setFont(entry.font);
    painter->drawStaticText(at, entry.text);
}
