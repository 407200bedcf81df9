// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractItemDelegate>
#include <QFont>
#include <QStaticText>
#include <unordered_map>

class GridModel;
class QAbstractScrollArea;
struct GridCell;

/// Paints a grid's frame and its cells: a cell's ground, its text, and nothing of the desktop's
/// theme. A text too wide for its cell is shown in a smaller font, and shortened where the smallest
/// is too wide; in the first column it stays clear of the grid's frame. The current cell of the
/// grid that has the focus is outlined in navy; the texts of a disabled grid are faded to half.
class GridPainter : public QAbstractItemDelegate {
    Q_OBJECT

public:
    GridPainter(const GridModel* model, QObject* parent);

    /// Paints the line around the cells. With the focus it is in the colour of the
    /// theme's texts, otherwise the same on every theme; the toolkit repaints the grid
    /// when the focus comes or goes.
    static void PaintFrame(QAbstractScrollArea& grid);

    void SetFonts(const QFont& plain);
    int PaintedCells() const { return m_paintedCells; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    /// A text laid out once for all cells of its font and width.
    struct LaidOutText {
        QStaticText text;
        QFont font;
        double advance; ///< the text's own size would count what juts out of its last letter
    };

    const LaidOutText& laidOut(const QString& text, bool bold, int width) const;
    void paintText(QPainter* painter, const GridCell& cell, const QRect& rect) const;

    const GridModel* m_model;
    QFont m_fonts[2]; // plain, bold
    mutable std::unordered_map<QString, LaidOutText> m_texts;
    mutable int m_paintedCells = 0;
};
