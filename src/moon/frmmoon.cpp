// SPDX-License-Identifier: MIT
#include "moon/frmmoon.h"

#include "calc/state.h"
#include "changecals/opening.h"
#include "changecals/windowpositions.h"
#include "controls/tips.h"
#include "moon/moonfile.h"
#include "moon/moonpicture.h"
#include "platform/message.h"
#include "platform/numbers.h"
#include "platform/program.h"
#include "platform/text.h"
#include "shared/mainwindows.h"
#include "shared/texts.h"

#include <QKeyEvent>
#include <QLabel>

namespace {

constexpr Twips pictureSide{4200};
constexpr Twips windowWidth = pictureSide + Twips{150};
constexpr Twips windowHeight = pictureSide + Twips{440};
constexpr Twips backdropMargin{30};
constexpr Twips labelMargin{60};

void setColor(QWidget* widget, QPalette::ColorRole role, const QColor& color) {
    QPalette colors = widget->palette();
    colors.setColor(role, color);
    widget->setPalette(colors);
}

void setBackground(QWidget* widget, const QColor& color) {
    setColor(widget, QPalette::Window, color);
    widget->setAutoFillBackground(true);
}

} // namespace

frmMoon::frmMoon()
    : MoonWindow(QStringLiteral("frmMoon")),
      m_commands(*this, MoonWindowNumber, [this] { Hide(); }),
      m_label2(new QLabel(this)),
      m_picture1(new MoonPicture(QStringLiteral("Picture1"), this)),
      m_label1(new QLabel(m_picture1)) {
    m_label1->setObjectName(QStringLiteral("Label1"));
    m_label2->setObjectName(QStringLiteral("Label2"));
    connect(m_picture1, &MoonPicture::DblClick, this, &ChangeCals::ShowMonthlyWindow);
    Form_Load();
}

QSize frmMoon::LargestSize() {
    return {ToPixels(windowWidth), ToPixels(windowHeight)};
}

void frmMoon::SetTexts() {
    SetCaption(Text(LabelTexts(MoonLabel)));
    Controls::SetTip(m_picture1, MoonPictureText);
}

void frmMoon::ReSetForm() {
    m_picture1->SetShadow(ShadowOf(MoonAge, m_picture1->Width(), m_picture1->Height()));
    const QString age = FormatOneDecimal(MoonAge);
    const QString spokenAge = Text(StringTexts(MoonAgeText)) + u' ' + age;
    m_label1->setText(age);
    m_label1->setAccessibleName(spokenAge);
    m_picture1->setAccessibleDescription(spokenAge);
    m_label1->adjustSize();
    m_label1->move(ToPixels(labelMargin),
                   m_picture1->height() - m_label1->height() - ToPixels(labelMargin));
}

QString frmMoon::Answer() const {
    return m_picture1->accessibleDescription();
}

void frmMoon::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        Hide();
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        ChangeCals::ShowMonthlyWindow();
    else
        MoonWindow::keyPressEvent(event);
}

void frmMoon::Form_Load() {
    SetTexts();
    setBackground(this, QColor(24, 26, 36));
    setBackground(m_label2, QColor(70, 76, 96));
    setColor(m_label1, QPalette::WindowText, QColor(255, 236, 170));
    placeControls();
    loadPicture();
    ChangeCals::PlaceForm(*this, MoonWindowNumber);
}

void frmMoon::loadPicture() {
    const QString path = ProgramFile(QStringLiteral("Moon.bmp"));
    const MoonFile file = LoadMoonPicture(path);
    if (file.isTooLarge)
        MsgBox(WithEmptyLine(path, QStringLiteral("The picture is too large.")));
    else if (file.picture.isNull())
        MsgBox(WithEmptyLine(path, Text(StringTexts(FileNotFoundText))));
    m_picture1->SetPicture(file.picture, [path] { return LoadMoonPicture(path).picture; });
}

void frmMoon::placeControls() {
    SetSize(LargestSize());
    const int side = ToPixels(pictureSide);
    m_picture1->setGeometry((width() - side) / 2, (height() - side) / 2, side, side);
    const int margin = ToPixels(backdropMargin);
    m_label2->setGeometry(m_picture1->geometry().adjusted(-margin, -margin, margin, margin));
}
