// SPDX-License-Identifier: MIT
// How long the lines of the options are, and where their controls stand.
#include "start/frmoptions_test.h"

#include <QCheckBox>
#include <QFontMetricsF>
#include <QLabel>
#include <QRadioButton>
#include <QStyle>

namespace {

/// With letters whose size a test chooses, and texts that have a width.
class OptionsLayout : public Options {
protected:
    ~OptionsLayout() override { QApplication::setFont(m_formerFont); }

    static void setPoints(int points) {
        QFont font = QApplication::font();
        font.setPointSize(points);
        QApplication::setFont(font);
    }

    /// A measure of the style for a window, in pixels.
    static int metric(QStyle::PixelMetric which) {
        const Form window(QStringLiteral("window"));
        return window.style()->pixelMetric(which, nullptr, &window);
    }

    /// In pixels.
    static int seventyLetters() {
        return 70 * QFontMetrics(QApplication::font()).averageCharWidth();
    }
    static int columnWidth() { return seventyLetters() / 2 - metric(QStyle::PM_LayoutLeftMargin); }

    /// A word that is as wide as this many pixels, or narrower by less than one.
    static std::string wordOf(int pixels, const QFont& font = QApplication::font()) {
        const QFontMetricsF metrics(font);
        const double narrow = metrics.horizontalAdvance(QChar(u'i'));
        const double wide = metrics.horizontalAdvance(QChar(u'x'));
        QString widest;
        double width = 0;
        for (int i = 0; i < 60 && i * narrow < pixels; ++i) {
            const int rest = static_cast<int>((pixels - i * narrow) / wide);
            const QString word = QString(rest, u'x') + QString(i, u'i');
            const double drawn = metrics.horizontalAdvance(word);
            if (drawn <= pixels && drawn > width) {
                widest = word;
                width = drawn;
            }
        }
        EXPECT_GT(width, pixels - 1);
        return widest.toStdString();
    }

    static bool isBroken(const QString& text) { return text.contains(u'\n'); }

    QWidget* frameOf(const char* name) { return list(name)->parentWidget(); }
    QLabel* titleOf(const char* name) { return frameOf(name)->findChild<QLabel*>(); }

    /// The name beside the list of a pane; the frame's title is the first label.
    QLabel* nameOf(int pane) { return frameOf("Combo1_1")->findChildren<QLabel*>().at(pane); }

    /// What is told with the variants of the Moslem calendar.
    QString types() {
        const auto* first = child<QRadioButton>(*dialog, "Option1_1");
        return first->parentWidget()->findChildren<QLabel*>().at(1)->text();
    }

    static QPoint placeOf(const QWidget& control) {
        return control.mapTo(control.window(), QPoint());
    }

private:
    const QFont m_formerFont = QApplication::font();
};

TEST_F(OptionsLayout, LinesAreAsLongAsSeventyLetters) {
    setPoints(9);
    const int line = seventyLetters();
    const int option = line - metric(QStyle::PM_ExclusiveIndicatorWidth) -
                       metric(QStyle::PM_RadioButtonLabelSpacing);
    const int besideButtons =
        line - metric(QStyle::PM_IndicatorWidth) - metric(QStyle::PM_CheckBoxLabelSpacing) - 2 * 30;
    LabelTexts(MoslemEra1Label).clear();
    for (const int over : {0, 1}) {
        LabelTexts(MoslemTypesLabel) = wordOf(line + over);
        LabelTexts(MoslemLeapYears1Label) = wordOf(option + over);
        LabelTexts(ShowTipsLabel) = wordOf(besideButtons + over);
        open();
        EXPECT_EQ(isBroken(types()), over == 1);
        EXPECT_EQ(isBroken(child<QRadioButton>(*dialog, "Option1_1")->text()), over == 1);
        EXPECT_EQ(isBroken(child<QCheckBox>(*dialog, "Check1")->text()), over == 1);
        close();
    }
}

// Five margins and a scroll bar stand beside them.
TEST_F(OptionsLayout, LinesOfLargeLettersAreAsLongAs640PixelsAllow) {
    setPoints(22);
    const int line =
        640 - 5 * metric(QStyle::PM_LayoutLeftMargin) - metric(QStyle::PM_ScrollBarExtent);
    for (const int over : {0, 1}) {
        LabelTexts(MoslemTypesLabel) = wordOf(line + over);
        open();
        EXPECT_EQ(isBroken(types()), over == 1);
        close();
    }
}

TEST_F(OptionsLayout, TitlesMayBeAsWideAsTheirColumns) {
    setPoints(9);
    QFont bold = QApplication::font();
    bold.setBold(true);
    const std::string half = wordOf(columnWidth() / 2, bold) + " ";
    const int rest = columnWidth() - QFontMetrics(bold).horizontalAdvance(Text(half));
    for (const int over : {-3, 9}) {
        LabelTexts(LanguageLabel) = half + wordOf(rest + over, bold);
        open();
        EXPECT_EQ(isBroken(titleOf("Combo2")->text()), over > 0);
        close();
    }
}

TEST_F(OptionsLayout, TheSecondColumnStandsOnTheRightAndHasWhatIsLeftOver) {
    setPoints(9);
    LabelTexts(MoslemTypesLabel) = wordOf(seventyLetters()); // wider than the columns
    open();
    const QWidget* left = frameOf("Combo1_1");
    const QWidget* right = frameOf("Combo2");
    EXPECT_LT(placeOf(*left).x(), placeOf(*right).x());
    EXPECT_EQ(placeOf(*left).y(), placeOf(*right).y());
    EXPECT_EQ(left->width(), left->sizeHint().width());
    EXPECT_LT(placeOf(*right).y(), placeOf(*frameOf("Combo3")).y());
    close();
}

TEST_F(OptionsLayout, ListsStandBelowTheirTitleAndBesideTheirName) {
    setPoints(9);
    CalendarNames(Julian) = "J\nu\nl\ni\na\nn"; // so that the frames beside it have room to spare
    open();
    for (const char* name : {"Combo2", "Combo3"}) {
        const QRect title = titleOf(name)->geometry();
        EXPECT_EQ(title.height(), titleOf(name)->sizeHint().height()) << name;
        EXPECT_GT(list(name)->y(), title.bottom()) << name;
        EXPECT_LT(list(name)->y(), title.bottom() + title.height()) << name;
    }
    int above = titleOf("Combo1_1")->geometry().bottom();
    for (int pane = 1; pane <= paneCount; ++pane) {
        const QRect name = nameOf(pane)->geometry();
        const QRect box = list(("Combo1_" + std::to_string(pane)).c_str())->geometry();
        EXPECT_EQ(nameOf(pane)->text(), Text(CalendarNames(pane)));
        EXPECT_LT(name.right(), box.x()) << pane;
        EXPECT_NEAR(name.center().y(), box.center().y(), 1) << pane;
        EXPECT_GT(box.y(), above) << pane;
        above = box.bottom();
    }
    close();
}

TEST_F(OptionsLayout, CommandsStandBelowTheFramesAtTheRight) {
    setPoints(9);
    open();
    const auto* check = child<QCheckBox>(*dialog, "Check1");
    const QRect first = child<CommandButton>(*dialog, "Command1_1")->geometry();
    const QRect second = child<CommandButton>(*dialog, "Command1_2")->geometry();
    const ComboBox& lowest = *list("Combo3");
    EXPECT_GT(first.y(), placeOf(lowest).y() + lowest.height());
    EXPECT_GT(check->geometry().center().y(), placeOf(lowest).y() + lowest.height());
    EXPECT_EQ(check->width(), check->sizeHint().width());
    EXPECT_LT(check->geometry().right(), dialog->width() / 2);
    EXPECT_GT(first.x(), dialog->width() / 2);
    EXPECT_LT(first.right(), second.x());
    EXPECT_EQ(dialog->minimumSize(), dialog->maximumSize());
    close();
}

TEST_F(OptionsLayout, ListsHaveRoomForTheirLetters) {
    open();
    EXPECT_EQ(list("Combo1_1")->minimumContentsLength(), 4);
    EXPECT_EQ(list("Combo1_4")->minimumContentsLength(), 4);
    EXPECT_EQ(list("Combo2")->minimumContentsLength(), 18);
    EXPECT_EQ(list("Combo3")->minimumContentsLength(), 18);
    close();
}

} // namespace
