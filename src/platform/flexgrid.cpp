// SPDX-License-Identifier: MIT
#include "platform/flexgrid.h"

#include "platform/color.h"
#include "platform/gridmerging.h"
#include "platform/gridpainter.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <algorithm>
#include <utility>

namespace {

// Up to this number changed cells are repainted one by one, more as the one
// rectangle that holds them all.
constexpr std::size_t fewCells = 8;

bool movesCurrentCell(int key) {
    return (key >= Qt::Key_Home && key <= Qt::Key_PageDown);
}

bool pressesCurrentCell(int key) {
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
}

// Coming back from another window or from a popup is no arrival.
bool isArrival(Qt::FocusReason reason) {
    return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason;
}

void hideHeader(QHeaderView* header) {
    header->hide();
    header->setMinimumSectionSize(1);
}

} // namespace

MSFlexGrid::MSFlexGrid(const QString& name, int rows, int columns, QWidget* parent)
    : QTableView(parent),
      m_model(new GridModel(rows, columns, this)),
      m_painter(new GridPainter(m_model, this)) {
    setObjectName(name);
    setFocusPolicy(Qt::StrongFocus);
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setShowGrid(false);
    setSelectionMode(NoSelection);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    hideHeader(horizontalHeader());
    hideHeader(verticalHeader());
    setItemDelegate(m_painter);
    setModel(m_model);
    m_painter->SetFonts(font());
}

void MSFlexGrid::SetBackColor(int color) {
    QPalette colors = palette();
    colors.setColor(QPalette::Base, ToColor(color));
    setPalette(colors);
}

void MSFlexGrid::SetAllCellColors(int back, int fore) {
    for (int row = 0; row < Rows(); ++row) {
        for (int column = 0; column < Cols(); ++column)
            changeCell(row, column, {TextMatrix(row, column), back, fore, false});
    }
}

void MSFlexGrid::MoveTo(GridPlace cell) {
    SetRow(cell.row);
    SetCol(cell.column);
    moveCurrent(m_model->index(cell.row, cell.column));
}

void MSFlexGrid::SetRedraw(bool on) {
    m_redraw = on;
    if (on)
        announceChanges();
}

void MSFlexGrid::SetSelectedCell(GridPlace cell) {
    m_selected = cell;
    if (m_redraw)
        showSelected();
}

void MSFlexGrid::SetFontPixelSize(int pixels) {
    QFont sized = font();
    sized.setPixelSize(pixels);
    setFont(sized);
    m_painter->SetFonts(sized);
}

void MSFlexGrid::PressCell(int row, int column) {
    setFocus();
    moveCurrent(m_model->index(row, column));
    Q_EMIT MouseDown(Qt::LeftButton);
}

int MSFlexGrid::PaintedCells() const {
    return m_painter->PaintedCells();
}

void MSFlexGrid::mousePressEvent(QMouseEvent* event) {
    const QModelIndex pressed = indexAt(event->pos());
    event->accept();
    if (!pressed.isValid())
        return;
    moveCurrent(pressed);
    Q_EMIT MouseDown(event->button());
}

// The view's own handling would select by dragging.
void MSFlexGrid::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
}

void MSFlexGrid::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
}

// The first press of a double click has already been told as a press.
void MSFlexGrid::mouseDoubleClickEvent(QMouseEvent* event) {
    event->accept();
    if (event->button() == Qt::LeftButton)
        Q_EMIT DblClick();
}

void MSFlexGrid::keyPressEvent(QKeyEvent* event) {
    const bool doubled = event->modifiers().testFlag(Qt::ControlModifier);
    if (movesCurrentCell(event->key()))
        QTableView::keyPressEvent(event);
    else if (!pressesCurrentCell(event->key()))
        event->ignore();
    else if (doubled)
        Q_EMIT DblClick();
    else
        Q_EMIT MouseDown(Qt::LeftButton);
}

// The event is the frame's; the cells have their own.
bool MSFlexGrid::event(QEvent* event) {
    if (event->type() != QEvent::Paint)
        return QTableView::event(event);
    GridPainter::PaintFrame(*this);
    return true;
}

// The toolkit tells that the grid has the focus when this is done; the cell comes
// after it.
void MSFlexGrid::focusInEvent(QFocusEvent* event) {
    QTableView::focusInEvent(event);
    m_speaker.BeginArrival();
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    if (isArrival(event->reason()) && !selected.isEmpty())
        moveCurrent(selected.first());
    QMetaObject::invokeMethod(
        this, [this] { m_speaker.EndArrival(); }, Qt::QueuedConnection);
}

void MSFlexGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    // The table view would tell of the focus also where the grid has none.
    QAbstractItemView::currentChanged(current, previous); // NOLINT(bugprone-parent-virtual-call)
    if (current.isValid()) {
        m_row = current.row();
        m_column = current.column();
    }
    m_speaker.TellCurrent();
}

// No cell looks other when it is selected, and the table view counts headers among the cells.
void MSFlexGrid::selectionChanged(const QItemSelection&, const QItemSelection&) {}

// All cells are always in view.
void MSFlexGrid::scrollTo(const QModelIndex&, ScrollHint) {}

void MSFlexGrid::changeCell(int row, int column, const GridCell& cell) {
    if (!m_model->Contains(row, column) || m_model->Cell(row, column) == cell)
        return;
    m_model->SetCell(row, column, cell);
    m_changedCells.emplace_back(column, row);
    if (m_redraw)
        announceChanges();
}

void MSFlexGrid::announceChanges() {
    std::vector<QPoint> changed = std::exchange(m_changedCells, {});
    std::erase_if(changed,
                  [this](QPoint cell) { return !m_model->TakeChange(cell.y(), cell.x()); });
    for (const int row : m_mergeRows) {
        if (std::ranges::any_of(changed, [row](QPoint cell) { return cell.y() == row; }))
            MergeEqualTexts(*this, row);
    }
    showSelected();
    repaintCells(changed);
    moveCurrent(m_model->index(m_row, m_column));
    m_speaker.TellCurrent();
}

void MSFlexGrid::repaintCells(const std::vector<QPoint>& cells) {
    if (cells.size() <= fewCells) {
        for (const QPoint cell : cells)
            m_model->TellViews(cell.y(), cell.x(), cell.y(), cell.x());
        return;
    }
    QRect all;
    for (const QPoint cell : cells)
        all |= QRect(cell, cell);
    m_model->TellViews(all.top(), all.left(), all.bottom(), all.right());
}

void MSFlexGrid::showSelected() {
    const QModelIndex index = m_model->index(m_selected.row, m_selected.column);
    if (!selectionModel()->isSelected(index))
        selectionModel()->select(index, QItemSelectionModel::ClearAndSelect);
}

void MSFlexGrid::moveCurrent(const QModelIndex& index) {
    if (index.isValid() && index != currentIndex())
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
}
