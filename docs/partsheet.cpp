// SPDX-License-Identifier: MIT
#include "partsheet.h"

#include <QLabel>
#include <QPainter>
#include <QWidget>
#include <algorithm>

namespace {

// In device-independent pixels.
constexpr int badgeRadius = 11;
constexpr int sideMargin = 44; // holds a badge and its line
constexpr int plainMargin = 12;
constexpr int sheetGap = 16; // between sheets
constexpr double dotRadius = 2.5;
constexpr int badgeInset = badgeRadius + 4;
constexpr int dotInset = 4;

const QColor paperColor(246, 247, 250);
const QColor frameColor(150, 156, 170);
const QColor badgeColor(31, 78, 156);

QImage blankSheet(QSize size, qreal ratio) {
    QImage sheet(size * ratio, QImage::Format_RGB32);
    sheet.setDevicePixelRatio(ratio);
    sheet.fill(paperColor);
    return sheet;
}

QMargins marginsFor(const std::vector<PartsBeside>& parts) {
    const auto marginAt = [&parts](Qt::Edge edge) {
        const bool used = std::any_of(parts.begin(), parts.end(), [edge](const PartsBeside& some) {
            return some.edge == edge;
        });
        return used ? sideMargin : plainMargin;
    };
    return {marginAt(Qt::LeftEdge), marginAt(Qt::TopEdge), marginAt(Qt::RightEdge),
            marginAt(Qt::BottomEdge)};
}

/// What is seen of a control: of a label, its text.
QRect seenOf(const QWidget& control) {
    const auto* label = qobject_cast<const QLabel*>(&control);
    if (label == nullptr)
        return control.rect();
    return label->fontMetrics().boundingRect(label->rect(), Qt::TextWordWrap, label->text());
}

/// Where a control lies in its window.
QRect placeOf(const char* name, const QWidget& window) {
    const auto* control = window.findChild<QWidget*>(QString::fromLatin1(name));
    if (control == nullptr)
        qFatal("%s has no %s", qPrintable(window.objectName()), name);
    return seenOf(*control).translated(control->mapTo(&window, QPoint()));
}

/// From the badge beside an edge of the sheet straight to the control, which the
/// dot at the end does not cover.
QLine lineTo(const QRect& control, Qt::Edge edge, QSize sheet) {
    const QPoint middle = control.center();
    switch (edge) {
    case Qt::LeftEdge:
        return {badgeInset, middle.y(), control.left() - dotInset, middle.y()};
    case Qt::RightEdge:
        return {sheet.width() - badgeInset, middle.y(), control.right() + dotInset, middle.y()};
    case Qt::TopEdge:
        return {middle.x(), badgeInset, middle.x(), control.top() - dotInset};
    default:
        return {middle.x(), sheet.height() - badgeInset, middle.x(), control.bottom() + dotInset};
    }
}

void drawBadge(QPainter& painter, const QLine& line, int number) {
    painter.setPen(QPen(badgeColor, 1.2));
    painter.setBrush(badgeColor);
    painter.drawLine(line);
    painter.drawEllipse(QPointF(line.p2()), dotRadius, dotRadius);
    painter.drawEllipse(line.p1(), badgeRadius, badgeRadius);
    QRect text(0, 0, 2 * badgeRadius, 2 * badgeRadius);
    text.moveCenter(line.p1());
    painter.setPen(Qt::white);
    painter.drawText(text, Qt::AlignCenter, QString::number(number));
}

QFont badgeFont() {
    QFont font;
    font.setPixelSize(13);
    font.setBold(true);
    return font;
}

} // namespace

QImage WindowSheet(QWidget& window) {
    if (QWidget* focused = window.focusWidget())
        focused->clearFocus();
    QPixmap picture = window.grab();
    QPainter painter(&picture);
    painter.setPen(QPen(frameColor, 1));
    painter.drawRect(QRectF(window.rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    return picture.toImage();
}

QImage PartsSheet(QWidget& window, const std::vector<PartsBeside>& parts) {
    const QMargins margins = marginsFor(parts);
    const QSize size = window.size().grownBy(margins);
    QImage sheet = blankSheet(size, window.devicePixelRatioF());
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(badgeFont());
    const QPoint corner(margins.left(), margins.top());
    painter.drawImage(corner, WindowSheet(window));
    int number = 0;
    for (const auto& [edge, controls] : parts) {
        for (const char* name : controls) {
            const QRect control = placeOf(name, window).translated(corner);
            drawBadge(painter, lineTo(control, edge, size), ++number);
        }
    }
    return sheet;
}

QImage RowOfSheets(const std::vector<QImage>& sheets) {
    QSize size(-sheetGap, 0);
    for (const QImage& sheet : sheets) {
        const QSize own = sheet.deviceIndependentSize().toSize();
        size = {size.width() + sheetGap + own.width(), std::max(size.height(), own.height())};
    }
    QImage row = blankSheet(size.grownBy({sheetGap, sheetGap, sheetGap, sheetGap}),
                            sheets.front().devicePixelRatio());
    QPainter painter(&row);
    int left = sheetGap;
    for (const QImage& sheet : sheets) {
        painter.drawImage(left, sheetGap, sheet);
        left += sheet.deviceIndependentSize().toSize().width() + sheetGap;
    }
    return row;
}
