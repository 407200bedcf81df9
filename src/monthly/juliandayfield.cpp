// SPDX-License-Identifier: MIT
#include "monthly/juliandayfield.h"

#include "calc/range.h"
#include "calc/state.h"
#include "changecals/changecals.h"
#include "changecals/windows.h"
#include "platform/beep.h"
#include "platform/form.h"
#include "platform/message.h"
#include "platform/numbers.h"
#include "platform/text.h"
#include "shared/flags.h"
#include "shared/mainwindows.h"
#include "shared/texts.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QWindow>

namespace {

QString rangeText() {
    return Text(StringTexts(JulianDayRangeText)) + LineBreak() +
           QStringLiteral("%1 \u2014 %2").arg(Calc::LowestDay()).arg(Calc::HighestDay());
}

// A popup is not leaving the field; of another window its activation tells.
bool leavesField(Qt::FocusReason reason) {
    return reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason ||
           reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
}

} // namespace

JulianDayField::JulianDayField(const QString& name, QWidget* parent) : ComboBox(name, parent) {
    setEditable(true);
    setCompleter(nullptr);
    connect(lineEdit(), &QLineEdit::textEdited, this, &JulianDayField::Combo8_Change);
    connect(this, &ComboBox::Click, this, &JulianDayField::Combo8_Click);
    connect(qApp, &QGuiApplication::focusWindowChanged, this, &JulianDayField::focusWindowChanged);
}

int JulianDayField::OwnWidth() const {
    return WidthFor(QString::number(Calc::HighestDay()));
}

QString JulianDayField::Answer() const {
    const auto* form = qobject_cast<const Form*>(window());
    return form == nullptr ? QString() : form->Answer();
}

void JulianDayField::Show(int julianDay) {
    m_shown = m_accepted = QString::number(julianDay);
    SetOnlyItem(m_shown); // whatever was typed over it
}

void JulianDayField::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Escape)
        return Combo8_KeyDown(key);
    m_cursor = lineEdit()->cursorPosition();
    ComboBox::keyPressEvent(event);
}

// With nothing selected there is nothing that the field could copy: the key is the
// window's then.
bool JulianDayField::event(QEvent* event) {
    const bool isKey = event->type() == QEvent::ShortcutOverride;
    if (isKey && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy) &&
        !lineEdit()->hasSelectedText()) {
        event->ignore();
        return false;
    }
    return ComboBox::event(event);
}

void JulianDayField::focusOutEvent(QFocusEvent* event) {
    ComboBox::focusOutEvent(event);
    if (leavesField(event->reason()))
        Combo8_LostFocus();
}

// The press that took the focus from a refused number does nothing else.
bool JulianDayField::eventFilter(QObject* receiver, QEvent* event) {
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        return receiver->isWidgetType();
    default:
        return ComboBox::eventFilter(receiver, event);
    }
}

void JulianDayField::Combo8_Change(const QString& text) {
    if (text.isEmpty() || IsWholeNumber(text))
        m_accepted = text;
    else
        refuseText();
}

void JulianDayField::Combo8_KeyDown(int key) {
    if (key != Qt::Key_Escape)
        return accept();
    Show(CurJD);
    AnswerUser();
}

void JulianDayField::Combo8_LostFocus() {
    if (ChangeCals::IsLeaving())
        return;
    if (QApplication::focusWidget() == m_leavingControl)
        Leave();
    else
        accept();
}

void JulianDayField::Combo8_Click() {
    if (!Updating)
        accept();
}

void JulianDayField::Leave() {
    if (typedDay())
        accept();
    else
        Show(CurJD);
}

// While another program has the keyboard no window of ours has it, and the number
// waits. A popup belongs to the window below it.
void JulianDayField::focusWindowChanged(const QWindow* focus) {
    const bool isOther = focus != nullptr && focus != window()->windowHandle();
    if (isOther && focus->type() != Qt::Popup)
        Combo8_LostFocus();
}

void JulianDayField::accept() {
    if (m_refusing)
        return;
    m_accepted = Text();
    if (m_accepted == m_shown)
        return;
    const auto day = typedDay();
    if (!day)
        refuseNumber();
    else if (*day != CurJD)
        ChangeCals::ChooseJulianDay(*day, MonthlyWindowNumber);
}

// Nothing when the number is none that the program can show.
std::optional<int> JulianDayField::typedDay() const {
    const double number = Val(Text());
    if (number < Calc::LowestDay() || number > Calc::HighestDay())
        return std::nullopt;
    return CLng(number);
}

void JulianDayField::refuseText() {
    Beep();
    setEditText(m_accepted);
    lineEdit()->setCursorPosition(m_cursor);
}

// The focus cannot be taken back while it is still on its way elsewhere.
void JulianDayField::refuseNumber() {
    m_refusing = true;
    qApp->installEventFilter(this);
    QMetaObject::invokeMethod(this, &JulianDayField::tellRange, Qt::QueuedConnection);
}

void JulianDayField::tellRange() {
    qApp->removeEventFilter(this);
    if (!ChangeCals::IsLeaving()) {
        setFocus();
        MsgBox(rangeText(), window());
        window()->activateWindow();
        lineEdit()->selectAll(); // the next digit replaces it
    }
    m_refusing = false;
}
