// SPDX-License-Identifier: MIT
#include "platform/form.h"

#include <cmath>
#include <cstdlib>

Form::Form(const QString& name) {
    setObjectName(name);
    setWindowRole(name); // by which a restored session tells the windows apart
    // Panes and columns keep their places whatever script the texts are in.
    setLayoutDirection(Qt::LeftToRight);
    setWindowFlag(Qt::WindowMaximizeButtonHint, false);
}

Twips Form::Top() const {
    return ToTwips(settled(pos().y(), m_put.y()));
}

Twips Form::Left() const {
    return ToTwips(settled(pos().x(), m_put.x()));
}

void Form::Move(Twips left, Twips top) {
    m_put = {ToPixels(left), ToPixels(top)};
    move(m_put);
}

// At a fractional scale the desktop is told to resize in steps, by which it would
// round the size down if they were not counted from the size itself.
void Form::SetSize(const QSize& size) {
    setBaseSize(size);
    setFixedSize(size);
}

Form::State Form::WindowState() const {
    if (isMinimized())
        return Minimised;
    return isMaximized() ? Maximised : Normal;
}

// The desktop would else give the keyboard to each of several windows in turn.
void Form::ShowInFront() {
    setAttribute(Qt::WA_ShowWithoutActivating);
    bringUp();
}

void Form::Show() {
    setAttribute(Qt::WA_ShowWithoutActivating, false);
    bringUp();
    activateWindow();
}

void Form::bringUp() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
}

// The toolkit would put the program's name in the place of an empty title.
void Form::SetCaption(const QString& caption) {
    setWindowTitle(caption.isEmpty() ? QStringLiteral(" ") : caption);
}

void Form::Unload() {
    if (m_unloaded)
        return;
    m_unloaded = true;
    hide();
    Form_Unload();
    deleteLater();
}

// At a fractional scale the thickness of the desktop's frame is no whole number of
// pixels, and a place can be read back one pixel beside where the frame was put.
int Form::settled(int place, int put) const {
    const bool fractional = devicePixelRatioF() != std::floor(devicePixelRatioF());
    return fractional && std::abs(place - put) <= 1 ? put : place;
}

void Form::closeEvent(QCloseEvent*) {
    Unload();
}
