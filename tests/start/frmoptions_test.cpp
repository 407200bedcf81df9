// SPDX-License-Identifier: MIT
#include "start/frmoptions_test.h"

#include "platform/numbers.h"
#include "platform/twips.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>

namespace {

TEST_F(Options, ShowsTheSettings) {
    copyLanguage("German");
    FirstWeekDay = {1, 2, 3, 7};
    StartupWindow = 2;
    open();
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Options"));
    EXPECT_TRUE(child<QCheckBox>(*dialog, "Check1")->isChecked());
    EXPECT_TRUE(child<QRadioButton>(*dialog, "Option1_1")->isChecked());
    EXPECT_EQ(list("Combo1_1")->Text(), QStringLiteral("Mo"));
    EXPECT_EQ(list("Combo1_3")->Text(), QStringLiteral("We"));
    EXPECT_EQ(list("Combo1_4")->Text(), QStringLiteral("Su"));
    EXPECT_EQ(list("Combo1_4")->Spoken(), QStringLiteral("Sunday"));
    EXPECT_EQ(list("Combo2")->Text(), QStringLiteral("English (Default)"));
    EXPECT_EQ(list("Combo2")->ListCount(), 2);
    EXPECT_EQ(list("Combo3")->ListCount(), 5);
    EXPECT_EQ(list("Combo3")->Text(), QStringLiteral("Gregorian calendar"));
    close();
}

TEST_F(Options, ListsTheCalendarsInTheOrderOfThePanes) {
    CalendarOrder = {4, 3, 2, 1};
    FirstWeekDay = {1, 2, 3, 4};
    open();
    for (int pane = 1; pane <= paneCount; ++pane) {
        ComboBox* box = list(("Combo1_" + std::to_string(pane)).c_str());
        EXPECT_EQ(box->accessibleName(), Text(CalendarNames(5 - pane)));
        EXPECT_EQ(box->ListIndex(), 4 - pane);
    }
    close();
}

TEST_F(Options, StandsAtAThirdOfTheFreeHeight) {
    open();
    const QSize free = QGuiApplication::primaryScreen()->size() - dialog->size();
    EXPECT_NEAR(dialog->Left().count, CLng(ToTwips(free.width()).count / 2.0).value_or(0),
                twipsPerPixel);
    EXPECT_NEAR(dialog->Top().count, CLng(ToTwips(free.height()).count / 3.0).value_or(0),
                twipsPerPixel);
    close();
}

TEST_F(Options, AFirstWeekdayThatIsNoneIsShownInSevens) {
    FirstWeekDay = {8, 0, -1, 15};
    open();
    EXPECT_EQ(list("Combo1_1")->ListIndex(), 0);
    for (int pane = 2; pane <= paneCount; ++pane)
        EXPECT_EQ(list(("Combo1_" + std::to_string(pane)).c_str())->ListIndex(),
                  Calc::WeekStart(pane) - 1);
    apply();
    EXPECT_EQ(FirstWeekDay, (Table<int, 4>{8, 0, -1, 15})) << "kept while it is not chosen anew";
}

TEST_F(Options, APaneWithoutACalendarHasAnEmptyDisabledList) {
    CalendarOrder = {9, 2, 3, 4};
    open();
    EXPECT_EQ(list("Combo1_1")->ListCount(), 0);
    EXPECT_FALSE(list("Combo1_1")->isEnabled());
    EXPECT_TRUE(list("Combo1_2")->isEnabled());
    apply();
    EXPECT_EQ(FirstWeekDay, (Table<int, 4>{Sunday, Sunday, Sunday, Sunday}));
}

TEST_F(Options, AnEmptyEraLeavesTheLeapYearsAlone) {
    LabelTexts(MoslemEra1Label).clear();
    LabelTexts(MoslemLeapYears1Label) = "2 & 5";
    open();
    EXPECT_EQ(child<QRadioButton>(*dialog, "Option1_1")->text(), QStringLiteral("2 && 5"));
    EXPECT_EQ(child<QRadioButton>(*dialog, "Option1_2")->text(),
              Text(LabelTexts(MoslemEra2Label)) + u'\n' + Text(LabelTexts(MoslemLeapYears2Label)));
    close();
}

void setAllLabels(const std::string& text) {
    for (int label = OptionsLabel; label <= ShowTipsLabel; ++label)
        LabelTexts(label) = text;
    for (int c = 1; c <= calendarCount; ++c)
        CalendarNames(c) = text;
}

// Whole lines, told by their uppermost and lowest rows of ink, from the right.
std::vector<int> rightEdgesOfLines(const QImage& picture, int left, int right) {
    std::vector<int> edges;
    bool within = false;
    for (int y = 0; y < picture.height(); ++y) {
        int edge = -1;
        for (int x = left; x < right; ++x) {
            if (qGray(picture.pixel(x, y)) < 128)
                edge = x;
        }
        if (edge >= 0 && !within)
            edges.push_back(edge);
        else if (edge >= 0)
            edges.back() = std::max(edges.back(), edge);
        within = edge >= 0;
    }
    return edges;
}

TEST_F(Options, TheLinesOfAVariantBeginAtOneEdgeFromRightToLeft) {
    const std::string word = "\u05D5\u05D5\u05D5";
    setAllLabels(word);
    open();
    auto* option = child<QRadioButton>(*dialog, "Option1_2");
    const QImage picture = option->grab().toImage();
    const int indicator = option->style()->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth);
    const std::vector<int> edges = rightEdgesOfLines(picture, 0, picture.width() - indicator - 2);
    ASSERT_EQ(edges.size(), 2U);
    EXPECT_EQ(edges[0], edges[1]);
    close();
}

TEST_F(Options, NeverGrowWiderThan640PixelsNorHigherThanTheScreen) {
    std::string tenWords = "Tenletters";
    for (int word = 2; word <= 10; ++word)
        tenWords += " Tenletters";
    const std::string texts[] = {tenWords, std::string(254, 'W'), "Options"};
    const QFont former = QApplication::font();
    for (const int points : {9, 14, 22}) {
        QFont font = former;
        font.setPointSize(points);
        QApplication::setFont(font);
        for (const std::string& text : texts) {
            setAllLabels(text);
            open();
            EXPECT_LE(dialog->width(), 640) << points << text;
            EXPECT_LE(dialog->height(), dialog->screen()->availableGeometry().height());
            for (const char* name : {"Command1_1", "Command1_2", "Check1"}) {
                const auto* control = child<QWidget>(*dialog, name);
                EXPECT_TRUE(dialog->rect().contains(control->geometry())) << name << points;
            }
            const auto* box = child<QCheckBox>(*dialog, "Check1");
            EXPECT_GE(box->width(), box->sizeHint().width()) << points;
            for (const QLabel* label : dialog->findChildren<QLabel*>()) {
                EXPECT_GE(label->width(), label->sizeHint().width()) << points;
                EXPECT_GE(label->height(), label->sizeHint().height()) << points;
            }
            close();
        }
    }
    QApplication::setFont(former);
}

TEST_F(Options, GrowWithTheFont) {
    open();
    const QSize usual = dialog->size();
    close();
    const QFont former = QApplication::font();
    QFont font = former;
    font.setPointSize(14);
    QApplication::setFont(font);
    open();
    EXPECT_GT(dialog->width(), usual.width());
    EXPECT_GT(dialog->height(), usual.height());
    close();
    QApplication::setFont(former);
}

TEST_F(Options, FramesAreNamedAlsoWhereTheirTitleIsWrapped) {
    LabelTexts(LanguageLabel) = std::string(254, 'W');
    open();
    const auto* frame = qobject_cast<QGroupBox*>(list("Combo2")->parentWidget());
    ASSERT_NE(frame, nullptr);
    EXPECT_EQ(frame->accessibleName(), QString(254, u'W'));
    EXPECT_EQ(frame->findChild<QLabel*>()->text().remove(u'\n'), QString(254, u'W'));
    const auto* other = qobject_cast<QGroupBox*>(list("Combo3")->parentWidget());
    EXPECT_EQ(other->findChild<QLabel*>()->text(), QStringLiteral("Startup window"));
    EXPECT_TRUE(other->findChild<QLabel*>()->font().bold());
    EXPECT_EQ(list("Combo3")->accessibleName(), QStringLiteral("Startup window"));
    close();
}

TEST_F(Options, ButtonsAreAsHighAsTheListsButNeverSmall) {
    open();
    EXPECT_EQ(child<CommandButton>(*dialog, "Command1_1")->size(), QSize(30, 30));
    close();
    const QFont former = QApplication::font();
    QFont font = former;
    font.setPointSize(22);
    QApplication::setFont(font);
    open();
    const int height = list("Combo3")->height();
    EXPECT_GT(height, 36);
    EXPECT_EQ(child<CommandButton>(*dialog, "Command1_1")->size(), QSize(height, height));
    EXPECT_EQ(child<CommandButton>(*dialog, "Command1_2")->size(), QSize(height, height));
    close();
    QApplication::setFont(former);
}

TEST_F(Options, TipsAreShownWithTipsOnly) {
    for (const bool tips : {true, false}) {
        ShowTips = tips ? 1 : 0;
        open();
        const auto* button = child<CommandButton>(*dialog, "Command1_1");
        EXPECT_EQ(button->toolTip(), tips ? QStringLiteral("Apply") : QString());
        EXPECT_EQ(button->accessibleName(), QStringLiteral("Apply"));
        const auto* other = child<CommandButton>(*dialog, "Command1_2");
        EXPECT_EQ(other->toolTip(), tips ? QStringLiteral("Close") : QString());
        EXPECT_EQ(other->accessibleName(), QStringLiteral("Close"));
        EXPECT_EQ(child<QCheckBox>(*dialog, "Check1")->text(), QStringLiteral("Show tips"));
        close();
    }
}

TEST_F(Options, RunsAsItsLanguageDoes) {
    copyLanguage("Hebrew");
    open();
    EXPECT_EQ(dialog->layoutDirection(), Qt::LeftToRight);
    chooseLanguage("Hebrew");
    apply();
    open();
    EXPECT_EQ(dialog->layoutDirection(), Qt::RightToLeft);
    EXPECT_GT(child<CommandButton>(*dialog, "Command1_1")->x(),
              child<CommandButton>(*dialog, "Command1_2")->x());
    EXPECT_EQ(monthly->layoutDirection(), Qt::LeftToRight);
    close();
}

TEST_F(Options, WhatTheVariantsAreIsToldWithTheFirst) {
    LabelTexts(MoslemTypesLabel) = "Eras & years";
    open();
    const auto* first = child<QRadioButton>(*dialog, "Option1_1");
    const auto labels = first->parentWidget()->findChildren<QLabel*>(); // the frame's title first
    ASSERT_EQ(labels.size(), 2);
    EXPECT_EQ(labels[1]->text(), QStringLiteral("Eras && years"));
    EXPECT_EQ(labels[1]->buddy(), first);
    close();
}

TEST_F(Options, TextsAreShownAsTheyStand) {
    LabelTexts(LanguageLabel) = "<b>Language</b>";
    open();
    for (const QLabel* label : dialog->findChildren<QLabel*>())
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->text().toStdString();
    close();
}

TEST_F(Options, ScrollUpAndDownOnlyAndLeaveRoomForTheFrameWhereTheyAreTooHigh) {
    const QFont former = QApplication::font();
    QFont font = former;
    font.setPointSize(22);
    QApplication::setFont(font);
    setAllLabels(std::string(254, 'W'));
    open();
    const int titleBar = dialog->style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, dialog);
    EXPECT_EQ(dialog->height(), dialog->screen()->availableGeometry().height() - 2 * titleBar);
    EXPECT_GE(dialog->y(), 0);
    const auto* area = dialog->findChild<QScrollArea*>();
    EXPECT_NE(area, nullptr);
    if (area != nullptr) {
        EXPECT_GT(area->verticalScrollBar()->maximum(), 0);
        EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);
        EXPECT_EQ(area->frameWidth(), 0);
    }
    close();
    QApplication::setFont(former);
}

TEST_F(Options, FramesHaveHalfTheUsualMarginsAboveAndBelow) {
    open();
    QWidget parent;
    QGroupBox plain(&parent);
    const QVBoxLayout rows(&plain);
    const QMargins usual = rows.contentsMargins();
    const QMargins half(usual.left(), usual.top() - usual.top() / 2, usual.right(),
                        usual.bottom() - usual.bottom() / 2);
    for (const char* name : {"Combo1_1", "Combo2", "Combo3"})
        EXPECT_EQ(list(name)->parentWidget()->layout()->contentsMargins(), half) << name;
    close();
}

} // namespace
