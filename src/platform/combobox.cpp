// SPDX-License-Identifier: MIT
#include "platform/combobox.h"

#include "platform/pointer.h"
#include "platform/text.h"

#include <QAbstractItemView>
#include <QFocusEvent>
#include <QFontInfo>
#include <QStringListModel>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QWheelEvent>
#include <algorithm>
#include <chrono>

namespace {

constexpr int visibleEntries = 15;
constexpr std::chrono::milliseconds typingPause{1000};

/// What stays free beside a text inside its field, for the overhang of letters, and
/// what an editable field takes for itself, on each side in pixels.
constexpr int textMargin = 2;
constexpr int editMargin = 10;

QRect textField(const QComboBox& list, const QStyleOptionComboBox& option) {
    return list.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField,
                                        &list);
}

// Shift leads to the digits of some keyboards: it neither types nor ends typing.
bool isModifier(int key) {
    return (key >= Qt::Key_Shift && key <= Qt::Key_ScrollLock) || key == Qt::Key_AltGr;
}

bool isText(const QString& text) {
    return !text.isEmpty() && text.front().isPrint();
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
    : QComboBox(parent), m_items(new QStringListModel(this)) {
    setObjectName(name);
    setModel(m_items);
    setFocusPolicy(Qt::StrongFocus);
    setMaxVisibleItems(visibleEntries);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(1);
    m_pause.setSingleShot(true);
    m_pause.setInterval(typingPause);
    connect(&m_pause, &QTimer::timeout, this, &ComboBox::endTyping);
    connect(this, &QComboBox::activated, this, &ComboBox::Click);
}

void ComboBox::Clear() {
    m_pending = false;
    clear();
}

void ComboBox::SetItems(const QStringList& texts, int position) {
    if (m_items->stringList() != texts)
        m_items->setStringList(texts);
    SetListIndex(position);
}

void ComboBox::SetListIndex(int position) {
    m_pending = false;
    setCurrentIndex(position);
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
    endTyping();
    fill();
    view()->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    view()->setAccessibleName(accessibleName());
    view()->setTextElideMode(Qt::ElideNone);
    view()->setMinimumWidth(view()->sizeHintForColumn(0) +
                            style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    QComboBox::showPopup();
    view()->scrollTo(view()->currentIndex(), QAbstractItemView::PositionAtCenter);
}

void ComboBox::focusInEvent(QFocusEvent* event) {
    // The list gives the focus back when its popup closes: that is no arrival.
    if (event->reason() != Qt::PopupFocusReason)
        fill();
    QComboBox::focusInEvent(event);
}

void ComboBox::focusOutEvent(QFocusEvent* event) {
    // A window that is being closed may lose the focus before it is told to hide.
    if (!window()->isHidden())
        endTyping();
    QComboBox::focusOutEvent(event);
}

// A window that is closed lets the typed number go.
void ComboBox::hideEvent(QHideEvent* event) {
    letGo();
    QComboBox::hideEvent(event);
}

void ComboBox::keyPressEvent(QKeyEvent* event) {
    if (isModifier(event->key()) || (!isEditable() && takeTypedKey(*event)))
        return;
    endTyping();
    fill();
    QComboBox::keyPressEvent(event);
}

void ComboBox::wheelEvent(QWheelEvent* event) {
    if (!hasFocus()) {
        event->ignore();
        return;
    }
    endTyping();
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

void ComboBox::fill() {
    if (!m_filler || ListCount() > 1)
        return;
    const HourglassPointer hourglass;
    const ListEntries entries = m_filler();
    if (!entries.texts.isEmpty())
        SetItems(entries.texts, entries.chosen);
}

// Whether the key belongs to a number that is being typed.
bool ComboBox::takeTypedKey(const QKeyEvent& event) {
    const bool corrects = m_pending && event.modifiers() == Qt::NoModifier;
    if (corrects && event.key() == Qt::Key_Backspace)
        takeBack(1);
    else if (corrects && event.key() == Qt::Key_Escape)
        takeBack(m_typed.size());
    else if (m_pending && (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter))
        endTyping();
    else
        return isText(event.text()) && takeTypedText(event.text());
    return true;
}

// A digit that cannot follow those before it begins a number of its own. Names
// are left to the toolkit, which chooses at each letter.
bool ComboBox::takeTypedText(const QString& text) {
    if (!m_typed.isEmpty() && showTyped(m_typed + text))
        return true;
    return text.front().isDigit() && showTyped(text);
}

bool ComboBox::showTyped(const QString& text) {
    fill();
    const QModelIndexList found =
        m_items->match(m_items->index(0), Qt::DisplayRole, text, 2, Qt::MatchStartsWith);
    if (found.isEmpty())
        return false;
    if (!m_pending)
        m_before = currentIndex();
    m_typed = text;
    m_pending = true;
    m_pause.start();
    setCurrentIndex(found.front().row());
    if (found.size() == 1)
        choose();
    return true;
}

void ComboBox::takeBack(qsizetype digits) {
    m_typed.chop(digits);
    if (!m_typed.isEmpty()) {
        showTyped(m_typed);
        return;
    }
    letGo();
}

void ComboBox::choose() {
    m_pending = false;
    Q_EMIT activated(currentIndex());
}

void ComboBox::letGo() {
    m_pause.stop();
    m_typed.clear();
    if (m_pending)
        SetListIndex(m_before);
}

void ComboBox::endTyping() {
    if (m_pending)
        choose();
    letGo();
}

int ComboBox::chromeWidth() const {
    QStyleOptionComboBox option;
    initStyleOption(&option);
    option.rect = QRect(0, 0, 10 * sizeHint().height(), sizeHint().height());
    return option.rect.width() - textField(*this, option).width();
}

QFont ComboBox::ownFittedFont() const {
    QStyleOptionComboBox option;
    initStyleOption(&option);
    return FittedFont(font(), option.currentText,
                      textField(*this, option).width() - 2 * textMargin);
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
