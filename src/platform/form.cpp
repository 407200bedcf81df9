// SPDX-License-Identifier: MIT
#include "platform/form.h"

#include "platform/twips.h"

#include <QCloseEvent>

Form::Form(const QString& name) {
    setObjectName(name);
    setWindowRole(name); // by which a restored session tells the windows apart
    // Panes and columns keep their places whatever script the texts are in.
    setLayoutDirection(Qt::LeftToRight);
    setWindowFlag(Qt::WindowMaximizeButtonHint, false);
}

int Form::Top() const {
    return ToTwips(pos().y());
}

int Form::Left() const {
    return ToTwips(pos().x());
}

void Form::Move(int left, int top) {
    move(ToPixels(left), ToPixels(top));
}

void Form::SetSize(int width, int height) {
    setFixedSize(ToPixels(width), ToPixels(height));
}

Form::State Form::WindowState() const {
    if (isMinimized())
        return Minimised;
    return isMaximized() ? Maximised : Normal;
}

void Form::SetNormal() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
}

void Form::ShowInFront() {
    if (WindowState() == Minimised)
        SetNormal();
    show();
    raise();
}

void Form::Show() {
    ShowInFront();
    activateWindow();
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

void Form::closeEvent(QCloseEvent* event) {
    event->accept();
    Unload();
}
