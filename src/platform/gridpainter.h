// SPDX-License-Identifier: MIT
#pragma once

#include "platform/gridmodel.h"

#include <QAbstractItemDelegate>
#include <QFont>
#include <QStaticText>
#include <unordered_map>

/// Paints a grid cell: its ground, its text, and nothing of the desktop's theme.
/// A text too wide for its cell is shown in a smaller font. While the user moves
/// by keys, the current cell is outlined, unless it has the mark's colour.
class GridPainter : public QAbstractItemDelegate {
    Q_OBJECT

public:
    GridPainter(const GridModel* model, QObject* parent);

    void SetFonts(const QFont& plain);
    void SetMarkColor(int color) { m_markColor = color; }
    void SetOutlining(bool on) { m_outlining = on; }
    int PaintedCells() const { return m_paintedCells; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    /// A text laid out once for all cells of its font and width.
    struct LaidOutText {
        QStaticText text;
        QFont font;
    };

    const LaidOutText& laidOut(const QString& text, bool bold, int width) const;
    void paintText(QPainter* painter, const GridCell& cell, const QRect& rect) const;

    const GridModel* m_model;
    QFont m_fonts[2]; // plain, bold
    int m_markColor = -1;
    bool m_outlining = false;
    mutable std::unordered_map<QString, LaidOutText> m_texts;
    mutable int m_paintedCells = 0;
};
