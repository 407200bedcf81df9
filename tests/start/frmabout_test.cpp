// SPDX-License-Identifier: MIT
#include "start/frmabout.h"

#include "platform/color.h"
#include "platform/numbers.h"
#include "platform/twips.h"
#include "shared/colors.h"
#include "support/widget_test.h"

#include <QFrame>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <algorithm>

namespace {

class About : public WidgetTest {
protected:
    About() { startToday(); }
    ~About() override { delete box; }

    void load() {
        delete box;
        box = new frmAbout;
    }

    void show() {
        box->Show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(box));
    }

    QString label(int index) const {
        return child<QLabel>(*box, QByteArray("Label1_" + QByteArray::number(index)).constData())
            ->text();
    }

    QPushButton* ok() const { return child<QPushButton>(*box, "cmdOK"); }
    QFrame* line() const { return child<QFrame>(*box, "Line1"); }

    void expectEnglish() const {
        EXPECT_EQ(box->windowTitle(), QStringLiteral("About Orvalen Years Calendar"));
        EXPECT_EQ(label(1), QStringLiteral("Orvalen Years Calendar"));
        EXPECT_EQ(label(2), QStringLiteral("Version 1.1.0"));
        EXPECT_EQ(box->accessibleName(),
                  QStringLiteral("About Orvalen Years Calendar, Version 1.1.0"));
        EXPECT_EQ(label(3).split(QStringLiteral("\r\n")).value(2),
                  QString::fromUtf8("The Orvalen Years Calendar developers © 1998—2001"));
    }

    QPointer<frmAbout> box;
};

TEST_F(About, IsInEnglish) {
    load();
    expectEnglish();
    const QStringList lines = label(3).split(QStringLiteral("\r\n"));
    ASSERT_EQ(lines.size(), 6);
    EXPECT_EQ(lines[0], QStringLiteral("This program grew out of the wish to have one day before "
                                       "one's eyes in four calendars at once."));
    EXPECT_EQ(lines[1], QString());
    EXPECT_EQ(lines[3], QString());
    EXPECT_EQ(lines[4], QStringLiteral("E-mail: calendar@example.org"));
    EXPECT_EQ(lines[5], QStringLiteral("Home Page: https://example.org/calendar"));
    EXPECT_EQ(ok()->text(), QStringLiteral("OK"));
}

TEST_F(About, IsInRussianInThatLanguage) {
    LanguageName = "Russian";
    load();
    EXPECT_EQ(box->windowTitle(), QString::fromUtf8("О Календаре на Orvalen лет"));
    EXPECT_EQ(label(1), QString::fromUtf8("Календарь на Orvalen лет"));
    EXPECT_EQ(label(2), QString::fromUtf8("Версия 1.1.0"));
    const QStringList lines = label(3).split(QStringLiteral("\r\n"));
    ASSERT_EQ(lines.size(), 6);
    EXPECT_EQ(lines[2], QString::fromUtf8("Разработчики Календаря на Orvalen лет © 1998—2001"));
    EXPECT_EQ(lines[4], QStringLiteral("E-mail: calendar@example.org"));
}

TEST_F(About, IsInEnglishInEveryOtherLanguage) {
    for (const char* language : {"russian", "RUSSIAN", "German", ""}) {
        LanguageName = language;
        load();
        expectEnglish();
    }
}

TEST_F(About, TheVersionIsAppendedOnceHoweverOftenItIsLoaded) {
    load();
    load();
    expectEnglish();
}

TEST_F(About, TextsAreShownAsTheyStandAndWhole) {
    load();
    for (int index = 1; index <= 3; ++index) {
        const QByteArray name = "Label1_" + QByteArray::number(index);
        const auto* label = child<QLabel>(*box, name.constData());
        EXPECT_EQ(label->textFormat(), Qt::PlainText);
        EXPECT_TRUE(label->wordWrap()) << index;
        EXPECT_EQ(label->height(), label->heightForWidth(label->width())) << index;
    }
    const auto* description = child<QLabel>(*box, "Label1_3");
    EXPECT_GT(description->height(), 6 * description->fontMetrics().lineSpacing())
        << "the first of its six lines is wrapped";
}

TEST_F(About, EverythingLiesInsideTheBox) {
    for (const char* language : {"English (Default)", "Russian"}) {
        LanguageName = language;
        load();
        show();
        for (const QWidget* control : box->findChildren<QWidget*>())
            EXPECT_TRUE(box->rect().contains(control->geometry()))
                << language << ' ' << control->objectName().toStdString();
        EXPECT_LT(line()->geometry().bottom(), ok()->y());
    }
}

TEST_F(About, NothingLiesOverAnythingElseAndOkStandsInTheMiddle) {
    load();
    show();
    const auto controls = box->findChildren<QWidget*>();
    for (const QWidget* a : controls) {
        for (const QWidget* b : controls)
            EXPECT_FALSE(a != b && a->geometry().intersects(b->geometry()))
                << a->objectName().toStdString() << ' ' << b->objectName().toStdString();
    }
    EXPECT_NEAR(ok()->geometry().center().x(), box->rect().center().x(), 1);
}

TEST_F(About, OkUnloads) {
    load();
    show();
    QTest::mousePress(ok(), Qt::LeftButton);
    EXPECT_TRUE(box->Visible()) << "until it is let go";
    QTest::mouseRelease(ok(), Qt::LeftButton);
    EXPECT_FALSE(box->Visible());
    EXPECT_TRUE(box->IsUnloaded());
    processEvents();
    EXPECT_TRUE(box.isNull());
}

TEST_F(About, ReturnIsOk) {
    load();
    show();
    QTest::keyClick(ok(), Qt::Key_Return);
    processEvents();
    EXPECT_TRUE(box.isNull());
}

TEST_F(About, TheTipIsShownWithTipsOnly) {
    load();
    EXPECT_EQ(ok()->toolTip(), QStringLiteral("Close"));
    ShowTips = 0;
    load();
    EXPECT_EQ(ok()->toolTip(), QString());
    ShowTips = 5;
    load();
    EXPECT_EQ(ok()->toolTip(), QStringLiteral("Close"));
}

TEST_F(About, TheTipIsShownAsItStands) {
    StringTexts(CloseText) = "<b>Close</b>";
    load();
    EXPECT_EQ(ok()->toolTip(), QStringLiteral("&lt;b&gt;Close&lt;/b&gt;"));
}

TEST_F(About, StandsAtAThirdOfTheFreeHeightAndHalfTheFreeWidth) {
    load();
    const QSize free = QGuiApplication::primaryScreen()->size() - box->size();
    const int left = CLng(ToTwips(free.width()).count / 2.0).value_or(0);
    const int top = CLng(ToTwips(free.height()).count / 3.0).value_or(0);
    EXPECT_EQ(box->pos(), QPoint(ToPixels({left}), ToPixels({top})));
    show();
    EXPECT_NEAR(box->Left().count, left, twipsPerPixel);
    EXPECT_NEAR(box->Top().count, top, twipsPerPixel);
}

TEST_F(About, EscClosesIt) {
    load();
    show();
    QTest::keyClick(box, Qt::Key_Escape);
    EXPECT_TRUE(box->IsUnloaded());
}

TEST_F(About, ItsFrameClosesIt) {
    load();
    show();
    box->close();
    EXPECT_TRUE(box->IsUnloaded());
}

TEST_F(About, CtrlWClosesIt) {
    load();
    show();
    QTest::keyClick(ok(), Qt::Key_W, Qt::ControlModifier);
    EXPECT_TRUE(box->IsUnloaded());
}

TEST_F(About, GrowsWithTheFont) {
    load();
    const QSize usual = box->size();
    const QFont former = QApplication::font();
    for (const int points : {14, 18, 22}) {
        QFont font = former;
        font.setPointSize(points);
        QApplication::setFont(font);
        load();
        show();
        EXPECT_GT(box->width(), usual.width());
        EXPECT_GT(box->height(), usual.height());
        EXPECT_LE(box->width(), box->screen()->geometry().width());
        for (const QLabel* label : box->findChildren<QLabel*>())
            EXPECT_GE(label->height(), label->heightForWidth(label->width())) << points;
        EXPECT_GT(ok()->y(), line()->geometry().bottom());
        EXPECT_LT(ok()->geometry().bottom(), box->height());
    }
    QApplication::setFont(former);
}

TEST_F(About, TheSplashIsASplashWindowOfTheDesktop) {
    load();
    EXPECT_EQ(box->windowType(), Qt::Dialog);
    box->BecomeSplash(CalendarColors(Gregorian));
    EXPECT_EQ(box->windowType(), Qt::SplashScreen);
    EXPECT_TRUE(box->windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_EQ(box->accessibleName(), QStringLiteral("Orvalen Years Calendar"));
}

TEST_F(About, TheSplashStaysWhenTheDesktopAsksItToClose) {
    frmAbout splash;
    splash.BecomeSplash(CalendarColors(Gregorian));
    splash.show();
    EXPECT_FALSE(splash.close());
    EXPECT_TRUE(splash.isVisible());
    EXPECT_FALSE(splash.IsUnloaded());
}

TEST_F(About, TheSplashIsCutBelowTheLine) {
    load();
    const QPoint place = box->pos();
    const int lineY = line()->y();
    const int height = box->height();
    const int width = box->width();
    box->BecomeSplash(CalendarColors(Gregorian));
    EXPECT_EQ(box->windowTitle().trimmed(), QString());
    EXPECT_EQ(box->height(), lineY + (height - lineY) / 4);
    EXPECT_EQ(box->width(), width);
    EXPECT_EQ(box->pos(), place);
    show();
    EXPECT_FALSE(line()->isVisible());
    EXPECT_FALSE(ok()->isVisible());
    EXPECT_TRUE(child<QLabel>(*box, "Label1_1")->isVisible());
}

TEST_F(About, TheSplashHasItsBackgroundAndOrdinaryText) {
    load();
    box->BecomeSplash(0xC0FFC0);
    show();
    const QImage image = box->grab().toImage();
    EXPECT_EQ(image.pixelColor(2, 2), ToColor(0xC0FFC0));
    EXPECT_EQ(image.pixelColor(image.width() - 3, image.height() - 3), ToColor(0xC0FFC0));
    EXPECT_EQ(box->palette().color(QPalette::WindowText), ToColor(TextColors(OrdinaryText)));
}

TEST_F(About, TheTitleAloneIsLargeAndBold) {
    load();
    const QFont title = child<QLabel>(*box, "Label1_1")->font();
    EXPECT_TRUE(title.bold());
    EXPECT_NEAR(title.pointSizeF(), 1.7 * box->font().pointSizeF(), 0.01);
    EXPECT_EQ(child<QLabel>(*box, "Label1_2")->font(), box->font());
}

TEST_F(About, ItsPartsAreAMarginApart) {
    load();
    const auto metric = [this](QStyle::PixelMetric which) {
        return box->style()->pixelMetric(which, nullptr, box);
    };
    const int margin = metric(QStyle::PM_LayoutLeftMargin);
    const QFontMetrics letters = box->fontMetrics();
    const int width = 66 * letters.averageCharWidth() + 2 * margin;
    const int side = 4 * letters.height();
    const QRect title = child<QLabel>(*box, "Label1_1")->geometry();
    const QRect version = child<QLabel>(*box, "Label1_2")->geometry();
    const QRect description = child<QLabel>(*box, "Label1_3")->geometry();
    EXPECT_EQ(box->width(), width);
    EXPECT_EQ(child<QWidget>(*box, "Image1")->geometry(), QRect(margin, margin, side, side));
    EXPECT_EQ(title.topLeft(), QPoint(2 * margin + side, margin));
    EXPECT_EQ(title.right() + 1, width - margin);
    EXPECT_EQ(version.x(), title.x());
    EXPECT_EQ(version.right(), title.right());
    EXPECT_EQ(version.y(), title.bottom() + 1 + metric(QStyle::PM_LayoutVerticalSpacing));
    EXPECT_EQ(description.x(), margin);
    EXPECT_EQ(description.right() + 1, width - margin);
    EXPECT_EQ(description.y(), std::max(version.bottom() + 1, margin + side) + margin);
    EXPECT_EQ(line()->geometry(),
              QRect(margin, description.bottom() + 1 + margin, width - 2 * margin, 2));
    EXPECT_EQ(ok()->y(), line()->y() + margin);
    EXPECT_EQ(ok()->size(), ok()->sizeHint());
    EXPECT_EQ(box->height(), ok()->geometry().bottom() + 1 + margin);
}

TEST_F(About, AssistiveToolsFindItsPartsFromTopToBottom) {
    load();
    const auto parts = box->findChildren<QWidget*>();
    EXPECT_TRUE(std::ranges::is_sorted(parts, {}, &QWidget::y));
}

TEST_F(About, OkIsTheDefaultButton) {
    load();
    EXPECT_TRUE(ok()->isDefault());
    EXPECT_TRUE(ok()->autoDefault());
}

} // namespace
