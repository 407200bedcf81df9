// SPDX-License-Identifier: MIT
#include "platform/combobox.h"

#include "platform/pointer.h"
#include "platform/text.h"
#include "platform/textfit.h"

#include <QAbstractItemView>
#include <QFocusEvent>
#include <QFontInfo>
#include <QStringListModel>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QWheelEvent>
#include <algorithm>

namespace {

constexpr int visibleEntries = 15;

// In pixels. The arrow is our own: a style's can be as wide as the list is high, or on
// the wrong side of a list that runs right to left.
constexpr int arrowSide = 12;
constexpr QMargins border(4, 2, 4, 2); // the frame and what lies between it and the rest

/// What stays free beside a text inside its field, for the overhang of letters, and
/// what an editable field takes for itself, on each side in pixels.
constexpr int textMargin = 2;
constexpr int editMargin = 10;

} // namespace

/// The entries, thousands at once, and how they are spoken.
class ComboBox::Entries : public QStringListModel {
public:
    using QStringListModel::QStringListModel;

    QVariant data(const QModelIndex& index, int role) const override {
        if (role != Qt::AccessibleTextRole)
            return QStringListModel::data(index, role);
        return spoken ? spoken(index.row()) : ::Spoken(index.data().toString());
    }

    /// By an entry's position; as it is written where there is none.
    std::function<QString(int position)> spoken;
};

ListEntries NumberedEntries(int first, int last, int chosen,
                            const std::function<QString(int)>& entry) {
    if (chosen < first || chosen > last)
        return {};
    ListEntries entries{{}, chosen - first};
    for (int number = first; number <= last; ++number)
        entries.texts.append(entry(number));
    return entries;
}

ComboBox::ComboBox(const QString& name, QWidget* parent)
    : QComboBox(parent), m_items(new Entries(this)), m_typing(*this) {
    setObjectName(name);
    setModel(m_items);
    setFocusPolicy(Qt::StrongFocus);
    setMaxVisibleItems(visibleEntries);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(1);
    connect(this, &QComboBox::activated, this, &ComboBox::Click);
    connect(this, &QComboBox::activated, this, &AnswerUser);
    connect(this, &QComboBox::currentTextChanged, this, [this] { m_ownFitted.reset(); });
}

void ComboBox::SetItems(const QStringList& texts, int position) {
    if (m_items->stringList() != texts)
        m_items->setStringList(texts);
    SetListIndex(position);
}

void ComboBox::SetSpokenEntries(std::function<QString(int)> spoken) {
    m_items->spoken = std::move(spoken);
}

QString ComboBox::Spoken() const {
    return isEditable() ? currentText() : currentData(Qt::AccessibleTextRole).toString();
}

int ComboBox::WidthFor(const QString& text) const {
    const int margin = textMargin + (isEditable() ? editMargin : 0);
    return fontMetrics().horizontalAdvance(text) + 2 * margin + chromeWidth();
}

int ComboBox::HeightFor(const QStringList& texts, int width) const {
    const QSize size(width, sizeHint().height());
    const bool oneLine = std::all_of(texts.begin(), texts.end(), [&](const QString& text) {
        return FitsInLines(fontMetrics(), text, roomIn(size));
    });
    return size.height() + (oneLine ? 0 : fontMetrics().lineSpacing());
}

int ComboBox::FitWidth(const QString& text, int most) {
    setFont(FittedFont(parentWidget()->font(), text, most - WidthFor({})));
    return std::min(WidthFor(text), most);
}

void ComboBox::ShareLetterSize(const std::vector<ComboBox*>& lists) {
    for (ComboBox* list : lists) {
        list->m_sharing = lists;
        for (ComboBox* other : lists)
            connect(list, &QComboBox::currentTextChanged, other, qOverload<>(&QWidget::update));
    }
}

void ComboBox::showPopup() {
    // Many styles show a list as a menu as high as the screen, without a bar.
    if (styleSheet().isEmpty())
        setStyleSheet(QStringLiteral("QComboBox { combobox-popup: 0; }"));
    fill();
    view()->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    view()->setAccessibleName(accessibleName());
    view()->setTextElideMode(Qt::ElideNone);
    view()->setMinimumWidth(view()->sizeHintForColumn(0) +
                            style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    QComboBox::showPopup();
    view()->scrollTo(view()->currentIndex(), QAbstractItemView::PositionAtCenter);
}

bool ComboBox::event(QEvent* event) {
    m_typing.Notice(*event);
    return QComboBox::event(event);
}

void ComboBox::focusInEvent(QFocusEvent* event) {
    // The list gives the focus back when its popup closes: that is no arrival.
    if (event->reason() != Qt::PopupFocusReason)
        fill();
    QComboBox::focusInEvent(event);
}

void ComboBox::keyPressEvent(QKeyEvent* event) {
    fill();
    if (!m_typing.TakesKey(*event))
        QComboBox::keyPressEvent(event);
}

void ComboBox::wheelEvent(QWheelEvent* event) {
    if (!hasFocus()) {
        event->ignore();
        return;
    }
    fill();
    QComboBox::wheelEvent(event);
}

void ComboBox::paintEvent(QPaintEvent* event) {
    if (isEditable()) {
        QComboBox::paintEvent(event);
        return;
    }
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.subControls &= ~QStyle::SC_ComboBoxArrow;
    QStylePainter painter(this);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const QRect inner = rect() - border;
    const auto visual = [&](const QRect& part) {
        return QStyle::visualRect(layoutDirection(), rect(), part);
    };
    painter.setFont(fittedFont());
    // The style would draw inside a margin of its own, which nothing tells.
    style()->drawItemText(&painter, visual(inner.adjusted(1, 0, -arrowSide - 1, 0)),
                          int(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft)) |
                              Qt::AlignVCenter | Qt::TextWordWrap,
                          option.palette, isEnabled(), option.currentText);
    option.rect = visual(inner.adjusted(inner.width() - arrowSide, 0, 0, 0));
    style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &option, &painter, this);
}

// The toolkit calls it for another font or style as well.
void ComboBox::resizeEvent(QResizeEvent* event) {
    m_ownFitted.reset();
    QComboBox::resizeEvent(event);
}

void ComboBox::fill() {
    if (!m_filler || ListCount() > 1)
        return;
    const PointerShape hourglass(Qt::WaitCursor);
    const ListEntries entries = m_filler();
    if (!entries.texts.isEmpty())
        SetItems(entries.texts, entries.chosen);
}

int ComboBox::chromeWidth() const {
    if (!isEditable())
        return border.left() + border.right() + arrowSide;
    QStyleOptionComboBox option;
    initStyleOption(&option);
    return option.rect.width() -
           style()
               ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this)
               .width();
}

// What a list of this size has for its text.
QSize ComboBox::roomIn(const QSize& size) const {
    return {size.width() - WidthFor({}), size.shrunkBy(border).height()};
}

// Kept, since all lists of one letter size ask for it whenever one is painted.
const QFont& ComboBox::ownFittedFont() const {
    if (!m_ownFitted)
        m_ownFitted = FittedFont(font(), currentText(), roomIn(size()));
    return *m_ownFitted;
}

QFont ComboBox::fittedFont() const {
    QFont smallest = ownFittedFont();
    for (const ComboBox* list : m_sharing) {
        const QFont other = list->isVisible() ? list->ownFittedFont() : smallest;
        if (QFontInfo(other).pixelSize() < QFontInfo(smallest).pixelSize())
            smallest = other;
    }
    return smallest;
}
