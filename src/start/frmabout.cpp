// SPDX-License-Identifier: MIT
#include "start/frmabout.h"

#include "platform/color.h"
#include "platform/image.h"
#include "platform/message.h"
#include "platform/text.h"
#include "platform/twips.h"
#include "shared/look.h"
#include "shared/settings.h"
#include "shared/texts.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>

namespace {

// In pixels.
constexpr int boxWidth = 430;
constexpr int margin = 20;
constexpr int pictureSide = 64;
constexpr int gap = 10;

/// The box's own texts; they are not among the translated ones.
struct AboutTexts {
    QString caption;
    QString title;
    QString version;
    QString note;
    QString author;
};

AboutTexts englishTexts() {
    return {QStringLiteral("About Orvalen Years Calendar"),
            QStringLiteral("Orvalen Years Calendar"), QStringLiteral("Version "),
            QStringLiteral("This program grew out of the wish to have one day before one's eyes "
                           "in four calendars at once."),
            QStringLiteral("The Orvalen Years Calendar developers © 1998—2001")};
}

AboutTexts russianTexts() {
    return {QStringLiteral("О Календаре на Orvalen лет"),
            QStringLiteral("Календарь на Orvalen лет"), QStringLiteral("Версия "),
            QStringLiteral("Эта программа выросла из желания видеть один день сразу в четырёх "
                           "календарях."),
            QStringLiteral("Разработчики Календаря на Orvalen лет © 1998—2001")};
}

QString version() {
    return QStringLiteral("%1.%2.%3").arg(VERSION_MAJOR).arg(VERSION_MINOR).arg(VERSION_REVISION);
}

QString description(const AboutTexts& texts) {
    return WithEmptyLine(WithEmptyLine(texts.note, texts.author),
                         QStringLiteral("E-mail: calendar@example.org") + LineBreak() +
                             QStringLiteral("Home Page: https://example.org/calendar"));
}

} // namespace

frmAbout::frmAbout() : Dialog(QStringLiteral("frmAbout")) {
    createControls();
    Form_Load();
}

void frmAbout::BecomeSplash(int backColor) {
    const int lineY = m_line1->y();
    SetCaption(QString());
    setFixedHeight(lineY + (height() - lineY) / 4);
    m_line1->hide();
    m_cmdOK->hide();
    QPalette colors = palette();
    colors.setColor(QPalette::Window, ToColor(backColor));
    colors.setColor(QPalette::WindowText, ToColor(TextColors(OrdinaryText)));
    setPalette(colors);
}

void frmAbout::Form_Load() {
    setTexts();
    placeControls();
    if (ShowTips != 0)
        m_cmdOK->setToolTip(PlainTip(Text(StringTexts(CloseText))));
    Place();
}

void frmAbout::createControls() {
    auto* picture = new Image(QStringLiteral("Image1"), QStringLiteral("icon"), this);
    picture->setGeometry(margin, margin, pictureSide, pictureSide);
    for (int index = 1; index <= 3; ++index) {
        auto* label = new QLabel(this);
        label->setObjectName(QStringLiteral("Label1_%1").arg(index));
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        m_label1(index) = label;
    }
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * 1.7);
    large.setBold(true);
    m_label1(1)->setFont(large);
    m_line1 = new QFrame(this);
    m_line1->setObjectName(QStringLiteral("Line1"));
    m_line1->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    m_cmdOK = new QPushButton(QStringLiteral("OK"), this);
    m_cmdOK->setObjectName(QStringLiteral("cmdOK"));
    m_cmdOK->setDefault(true);
    m_cmdOK->setAutoDefault(true);
    connect(m_cmdOK, &QPushButton::clicked, this, &Form::Unload);
}

void frmAbout::setTexts() {
    const AboutTexts texts = LanguageName == "Russian" ? russianTexts() : englishTexts();
    SetCaption(texts.caption);
    m_label1(1)->setText(texts.title);
    m_label1(2)->setText(texts.version + version());
    m_label1(3)->setText(description(texts));
}

void frmAbout::placeControls() {
    const int textLeft = margin + pictureSide + margin;
    const auto place = [](QLabel* label, int left, int top, int width) {
        label->setGeometry(left, top, width, label->heightForWidth(width));
        return top + label->height();
    };
    int y = place(m_label1(1), textLeft, margin, boxWidth - textLeft - margin);
    y = place(m_label1(2), textLeft, y + gap, boxWidth - textLeft - margin);
    y = std::max(y, margin + pictureSide) + gap;
    y = place(m_label1(3), margin, y, boxWidth - 2 * margin) + gap;
    m_line1->setGeometry(margin, y, boxWidth - 2 * margin, 2);
    const QSize button = m_cmdOK->sizeHint();
    m_cmdOK->setGeometry((boxWidth - button.width()) / 2, y + gap + 2, button.width(),
                         button.height());
    setFixedSize(boxWidth, m_cmdOK->geometry().bottom() + margin);
}
