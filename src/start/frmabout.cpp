// SPDX-License-Identifier: MIT
#include "start/frmabout.h"

#include "platform/color.h"
#include "platform/image.h"
#include "platform/line.h"
#include "platform/message.h"
#include "platform/text.h"
#include "shared/colors.h"
#include "shared/settings.h"
#include "shared/texts.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <algorithm>

namespace {

constexpr int charactersOfDescription = 66;
constexpr int linesOfPicture = 4; // its height

// The box's own texts; they are not among the translated ones.
QString told(const char16_t* english, const char16_t* russian) {
    return QString::fromUtf16(LanguageName == "Russian" ? russian : english);
}

QString version() {
    return QStringLiteral("%1.%2.%3").arg(VERSION_MAJOR).arg(VERSION_MINOR).arg(VERSION_REVISION);
}

QString description() {
    const QString note = told(
        u"This program grew out of the wish to have one day before one's eyes in four calendars "
        u"at once.",
        u"Эта программа выросла из желания видеть один день сразу в четырёх календарях.");
    const QString author = told(u"The Orvalen Years Calendar developers © 1998—2001",
                                u"Разработчики Календаря на Orvalen лет © 1998—2001");
    return WithEmptyLine(WithEmptyLine(note, author),
                         QStringLiteral("E-mail: calendar@example.org") + LineBreak() +
                             QStringLiteral("Home Page: https://example.org/calendar"));
}

} // namespace

frmAbout::frmAbout() : Dialog(QStringLiteral("frmAbout")) {
    createControls();
    Form_Load();
}

void frmAbout::BecomeSplash(int backColor) {
    m_isSplash = true;
    const int lineY = m_line1->y();
    setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
    SetCaption(QString());
    setAccessibleName(m_label1(1)->text()); // in the place of the caption
    setFixedHeight(lineY + (height() - lineY) / 4);
    m_line1->hide();
    m_cmdOK->hide();
    QPalette colors = palette();
    colors.setColor(QPalette::Window, ToColor(backColor));
    colors.setColor(QPalette::WindowText, ToColor(TextColors(OrdinaryText)));
    setPalette(colors);
}

void frmAbout::closeEvent(QCloseEvent* event) {
    if (m_isSplash)
        event->ignore();
    else
        Dialog::closeEvent(event);
}

void frmAbout::Form_Load() {
    setTexts();
    placeControls();
    if (ShowTips != 0)
        m_cmdOK->setToolTip(PlainTip(Text(StringTexts(CloseText))));
    Place();
}

void frmAbout::createControls() {
    m_image1 = new Image(QStringLiteral("Image1"), QStringLiteral("icon"), this);
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
    m_line1 = new Line(QStringLiteral("Line1"), this);
    m_cmdOK = new QPushButton(QStringLiteral("OK"), this);
    m_cmdOK->setObjectName(QStringLiteral("cmdOK"));
    m_cmdOK->setDefault(true);
    m_cmdOK->setAutoDefault(true);
    connect(m_cmdOK, &QPushButton::clicked, this, &Form::Unload);
}

void frmAbout::setTexts() {
    const QString caption = told(u"About Orvalen Years Calendar", u"О Календаре на Orvalen лет");
    SetCaption(caption);
    m_label1(1)->setText(told(u"Orvalen Years Calendar", u"Календарь на Orvalen лет"));
    m_label1(2)->setText(told(u"Version ", u"Версия ") + version());
    m_label1(3)->setText(description());
    setAccessibleName(caption + QStringLiteral(", ") + m_label1(2)->text());
}

// By hand, since the splash is cut where the line stands.
void frmAbout::placeControls() {
    const int margin = Metric(QStyle::PM_LayoutLeftMargin);
    const int gap = Metric(QStyle::PM_LayoutVerticalSpacing);
    const int screenWidth = QGuiApplication::primaryScreen()->availableSize().width();
    const int width = std::min(
        charactersOfDescription * fontMetrics().averageCharWidth() + 2 * margin, screenWidth);
    const int side = linesOfPicture * fontMetrics().height();
    const int textLeft = 2 * margin + side;
    const auto place = [](QLabel* label, int left, int top, int right) {
        const int labelWidth = right - left;
        label->setGeometry(left, top, labelWidth, label->heightForWidth(labelWidth));
        return top + label->height();
    };
    m_image1->setGeometry(margin, margin, side, side);
    int y = place(m_label1(1), textLeft, margin, width - margin);
    y = place(m_label1(2), textLeft, y + gap, width - margin);
    y = std::max(y, margin + side) + margin;
    y = place(m_label1(3), margin, y, width - margin) + margin;
    m_line1->setGeometry(margin, y, width - 2 * margin, 2);
    const QSize button = m_cmdOK->sizeHint();
    m_cmdOK->setGeometry((width - button.width()) / 2, y + margin, button.width(), button.height());
    setFixedSize(width, m_cmdOK->geometry().bottom() + 1 + margin);
}
