// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <QString>

class QPageLayout;
class QPainter;

/// The printed part of a page. Lengths are in points of A4 and grow or shrink with
/// the paper, so that what fits on A4 fits on every other upright page. Places are
/// told as on a page from left to right; one from right to left is their mirror
/// image, but figures stand above each other in either.
class Sheet {
public:
    struct Letters {
        double size;
        bool bold = false;
    };

    /// Least sizes of the printed part, its sizes on A4.
    static constexpr double leastWidth = 515;
    static constexpr double leastHeight = 762;

    /// `painter` begins at the upper left corner of the paper itself.
    Sheet(QPainter& painter, const QPageLayout& layout, bool rightToLeft);

    double Width() const { return m_width; }
    double Height() const { return m_height; }

    /// A line of text that stands on the lower edge of a place, in smaller letters
    /// where it would be too wide; AlignRight is where lines end.
    void Write(const QRectF& where, const QString& text, Letters letters,
               Qt::Alignment alignment = Qt::AlignLeft) const;

    /// The same for a number, the last figure at the right.
    void WriteFigures(const QRectF& where, const QString& figures, Letters letters) const;

    /// Title and subtitle above a rule at the top of the page; returns the y below.
    double WriteHeading(const QString& title, const QString& subtitle) const;

    void DrawRule(double left, double right, double y, double thickness) const;

    static double WidthOf(const QString& text, Letters letters);

private:
    QRectF onPaper(const QRectF& where) const;

    QPainter& m_painter;
    double m_width;
    double m_height;
    bool m_rightToLeft;
};
