// SPDX-License-Identifier: MIT
#include "platform/combobox.h"

#include "platform/listmodel.h"
#include "platform/pointer.h"
#include "platform/text.h"

#include <QAbstractItemView>
#include <QFocusEvent>
#include <QFontInfo>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QWheelEvent>
#include <algorithm>

namespace {

constexpr int visibleEntries = 15;

/// What stays free beside a text inside its field, for the overhang of letters, and
/// what an editable field takes for itself, on each side in pixels.
constexpr int textMargin = 2;
constexpr int editMargin = 10;

QRect textField(const QComboBox& list, const QStyleOptionComboBox& option) {
    return list.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField,
                                        &list);
}

} // namespace

ListEntries NumberedEntries(int first, int last, int chosen,
                            const std::function<QString(int)>& entry) {
    if (chosen < first || chosen > last)
        return {};
    ListEntries entries{{}, chosen - first};
    entries.texts.reserve(last - first + 1);
    for (int number = first; number <= last; ++number)
        entries.texts.append(entry(number));
    return entries;
}

ComboBox::ComboBox(const QString& name, QWidget* parent)
    : QComboBox(parent), m_items(new ListModel(this)), m_typing(*this) {
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

int ComboBox::FitWidth(const QString& text, int most) {
    QFont fitted = parentWidget()->font();
    setFont(fitted);
    for (int size = QFontInfo(fitted).pixelSize();
         WidthFor(text) > most && size > smallestPixelSize;) {
        fitted.setPixelSize(--size);
        setFont(fitted);
    }
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
    QStylePainter painter(this);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.setFont(fittedFont());
    // The style would draw inside a margin of its own, which nothing tells.
    style()->drawItemText(&painter, textField(*this, option).adjusted(1, 0, -1, 0),
                          int(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft)) |
                              Qt::AlignVCenter,
                          option.palette, isEnabled(), option.currentText);
}

// The toolkit calls it for another font or style as well.
void ComboBox::resizeEvent(QResizeEvent* event) {
    m_ownFitted.reset();
    QComboBox::resizeEvent(event);
}

void ComboBox::fill() {
    if (!m_filler || ListCount() > 1)
        return;
    const HourglassPointer hourglass;
    const ListEntries entries = m_filler();
    if (!entries.texts.isEmpty())
        SetItems(entries.texts, entries.chosen);
}

int ComboBox::chromeWidth() const {
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.rect = QRect(0, 0, 10 * sizeHint().height(), sizeHint().height());
    return option.rect.width() - textField(*this, option).width();
}

// Kept, since all lists of one letter size ask for it whenever one is painted.
const QFont& ComboBox::ownFittedFont() const {
    if (!m_ownFitted) {
        QStyleOptionComboBox option;
        initStyleOption(&option);
        m_ownFitted = FittedFont(font(), option.currentText,
                                 textField(*this, option).width() - 2 * textMargin);
    }
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
