// SPDX-License-Identifier: MIT
#include "moon/frmmoon.h"

#include "calc/state.h"
#include "changecals/opening.h"
#include "changecals/placing.h"
#include "moon/moonpicture.h"
#include "platform/message.h"
#include "platform/numbers.h"
#include "platform/program.h"
#include "platform/text.h"
#include "platform/twips.h"
#include "shared/settings.h"
#include "shared/texts.h"

#include <QKeyEvent>
#include <QLabel>

namespace {

// In twips.
constexpr int pictureSide = 4200;
constexpr int backdropMargin = 30;
constexpr int labelMargin = 60;

void setColors(QWidget* widget, const QColor& back, const QColor& text) {
    QPalette colors = widget->palette();
    colors.setColor(QPalette::Window, back);
    colors.setColor(QPalette::WindowText, text);
    widget->setPalette(colors);
    widget->setAutoFillBackground(true);
}

} // namespace

frmMoon::frmMoon()
    : MoonWindow(QStringLiteral("frmMoon")),
      m_label2(new QLabel(this)),
      m_picture1(new MoonPicture(QStringLiteral("Picture1"), this)),
      m_label1(new QLabel(m_picture1)) {
    m_label1->setObjectName(QStringLiteral("Label1"));
    m_label2->setObjectName(QStringLiteral("Label2"));
    connect(m_picture1, &MoonPicture::DblClick, this, &ChangeCals::ShowMonthlyWindow);
    Form_Load();
}

void frmMoon::SetTexts() {
    SetCaption(Text(LabelTexts(MoonLabel)));
    const QString tip = Text(StringTexts(MoonPictureText));
    m_picture1->setToolTip(ShowTips != 0 ? PlainTip(tip) : QString());
    m_picture1->setAccessibleName(tip);
}

void frmMoon::ReSetForm() {
    m_picture1->SetShadow(ShadowOf(MoonAge, m_picture1->Width(), m_picture1->Height()));
    m_label1->setText(FormatOneDecimal(MoonAge));
    m_label1->adjustSize();
    m_label1->move(ToPixels(labelMargin),
                   m_picture1->height() - m_label1->height() - ToPixels(labelMargin));
}

void frmMoon::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        Hide();
    else
        MoonWindow::keyPressEvent(event);
}

void frmMoon::Form_Load() {
    SetTexts();
    setColors(this, QColor(24, 26, 36), Qt::white);
    setColors(m_label2, QColor(70, 76, 96), Qt::white);
    m_label1->setAutoFillBackground(false);
    setColors(m_label1, Qt::black, QColor(255, 236, 170));
    loadPicture();
    placeControls();
    ChangeCals::PlaceForm(*this, MoonWindowNumber);
}

void frmMoon::loadPicture() {
    const QString path = ProgramFile(QStringLiteral("Moon.bmp"));
    const QImage picture = LoadMoonPicture(path);
    if (picture.isNull())
        MsgBox(WithEmptyLine(path, Text(StringTexts(FileNotFoundText))));
    m_picture1->SetPicture(picture);
}

void frmMoon::placeControls() {
    SetSize(pictureSide + 150, pictureSide + 440);
    const int side = ToPixels(pictureSide);
    m_picture1->setGeometry((width() - side) / 2, (height() - side) / 2, side, side);
    const int margin = ToPixels(backdropMargin);
    m_label2->setGeometry(m_picture1->geometry().adjusted(-margin, -margin, margin, margin));
}
