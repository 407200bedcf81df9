// SPDX-License-Identifier: MIT
// The options in the letters of several desktops, from small to large.
#include "shared/english.h"
#include "shared/texts.h"
#include "start/frmoptions_test.h"
#include "start/language.h"
#include "support/ink.h"

#include <QLabel>
#include <QStyle>
#include <tuple>

namespace {

/// By language, style and size of the letters.
class OptionsInLargeLetters
    : public Options,
      public testing::WithParamInterface<std::tuple<const char*, const char*, int>> {
protected:
    OptionsInLargeLetters()
        : m_formerFont(QApplication::font()), m_formerStyle(QApplication::style()->name()) {
        const auto& [language, style, points] = GetParam();
        QApplication::setStyle(QLatin1String(style));
        QFont font = m_formerFont;
        font.setPointSize(points);
        QApplication::setFont(font);
        copyLanguage(language);
        std::string name = language;
        LoadLanguage(name);
    }
    ~OptionsInLargeLetters() override {
        QApplication::setStyle(m_formerStyle);
        QApplication::setFont(m_formerFont);
        std::string english = englishLanguage;
        LoadLanguage(english);
    }

    /// The label that shows a text, wherever its lines are broken between words.
    QLabel* labelOf(const QString& text) {
        for (QLabel* label : dialog->findChildren<QLabel*>()) {
            if (label->text().replace(u'\n', u' ') == text)
                return label;
        }
        ADD_FAILURE() << text.toStdString();
        return dialog->findChild<QLabel*>();
    }

private:
    QFont m_formerFont;
    QString m_formerStyle;
};

QRect inkOf(QLabel& label) {
    return InkOf(label.grab().toImage());
}

int baseLineOf(QLabel& label) {
    label.setText(QStringLiteral("H"));
    return label.mapTo(label.window(), inkOf(label).bottomLeft()).y();
}

TEST_P(OptionsInLargeLetters, WordsAreWholeAndListsNoWiderThanTheyNeed) {
    open();
    for (int c = 1; c <= calendarCount; ++c)
        labelOf(Text(CalendarNames(c)));
    for (const int title :
         {MoslemCalendarLabel, FirstWeekDayLabel, LanguageLabel, StartupWindowLabel}) {
        QLabel& label = *labelOf(Text(LabelTexts(title)));
        const int drawn = inkOf(label).width();
        label.resize(label.width() + 100, label.height());
        EXPECT_EQ(inkOf(label).width(), drawn) << "no letter is cut";
    }
    for (const char* name : {"Combo1_1", "Combo1_4"})
        EXPECT_LE(list(name)->width(), 9 * list(name)->fontMetrics().averageCharWidth() + 80);
    close();
}

TEST_P(OptionsInLargeLetters, TitlesOfFramesSideBySideStandOnOneLine) {
    open();
    QLabel& left = *labelOf(Text(LabelTexts(FirstWeekDayLabel)));
    QLabel& right = *labelOf(Text(LabelTexts(LanguageLabel)));
    if (left.parentWidget()->y() == right.parentWidget()->y()) {
        EXPECT_EQ(baseLineOf(left), baseLineOf(right));
    }
    close();
}

INSTANTIATE_TEST_SUITE_P(AtPoints, OptionsInLargeLetters,
                         testing::Combine(testing::Values("Russian", "German", "Hebrew"),
                                          testing::Values("fusion", "adwaita"),
                                          testing::Values(9, 16, 22)));

} // namespace
