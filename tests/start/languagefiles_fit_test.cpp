// SPDX-License-Identifier: MIT
// The texts of every shipped language in year grids and the options, at the sizes
// that desktops use.
#include "calc/calc.h"
#include "changecals/opening.h"
#include "monthly/frmmonthlycal.h"
#include "moon/frmmoon.h"
#include "platform/flexgrid.h"
#include "platform/text.h"
#include "start/frmabout.h"
#include "start/frmoptions.h"
#include "start/language.h"
#include "support/widget_test.h"
#include "yearcals/frmyearcal.h"

#include <QDir>
#include <QFile>
#include <QFontInfo>
#include <QLabel>

namespace {

constexpr int smallestReadable = 7; // pixels

class TextsFit : public WidgetTest, public testing::WithParamInterface<int> {
protected:
    TextsFit() : m_formerFont(QApplication::font()) {
        QFont font = m_formerFont;
        font.setPointSize(GetParam());
        QApplication::setFont(font);
        ChangeCals::BeginRun({[] { return new frmMonthlyCal; },
                              [](int c) { return new frmYearCal(c); }, [] { return new frmMoon; },
                              [] { return new frmOptions; }, [] { return new frmAbout; }});
    }
    ~TextsFit() override {
        ChangeCals::EndRun();
        QApplication::setFont(m_formerFont);
    }

    void placeLanguages() const {
        const QDir shipped(QStringLiteral(LANGUAGES_DIR));
        for (const QString& file : shipped.entryList({QStringLiteral("*.lng")}))
            ASSERT_TRUE(QFile::copy(shipped.filePath(file), programPath(file)));
    }

private:
    QFont m_formerFont;
};

void expectFits(const QFont& font, const QString& text, int width, const std::string& where) {
    const QFont fitted = FittedFont(font, text, width);
    EXPECT_LE(QFontMetrics(fitted).horizontalAdvance(text), width)
        << where << ": " << text.toStdString();
    EXPECT_GE(QFontInfo(fitted).pixelSize(), smallestReadable) << where;
}

void expectYearGridFits(const std::string& language) {
    auto* grid = child<MSFlexGrid>(ChangeCals::LoadYear(Jewish), "MSFlexGrid1");
    QFont bold = grid->font();
    bold.setBold(true);
    for (int c = 1; c <= calendarCount; ++c) {
        for (int month = 1; month <= Calc::MonthsInYear(c); ++month)
            expectFits(bold, QStringLiteral("(12)  ") + Text(MonthNames(c, month)), 120, language);
    }
    for (int weekday = 1; weekday <= 7; ++weekday)
        expectFits(grid->font(), Text(WeekDayAbbrs(weekday)), 17, language);
}

void expectLabelsFit(const Form& options, const std::string& language) {
    for (const QLabel* label : options.findChildren<QLabel*>()) {
        if (!label->isVisible())
            continue;
        EXPECT_GE(label->width(), label->minimumSizeHint().width()) << language;
        EXPECT_GE(label->height(), label->heightForWidth(label->width())) << language;
    }
}

// A layout gives every control of the options at least the size of its text.
void expectOptionsFit(const std::string& language) {
    Form& options = ChangeCals::LoadOptions();
    EXPECT_LE(options.width(), 700) << language;
    EXPECT_LE(options.height(), 560) << language;
    expectLabelsFit(options, language);
    for (const char* name : {"Option1_1", "Option1_2", "Check1"}) {
        auto* control = child<QWidget>(options, name);
        EXPECT_GE(control->width(), control->sizeHint().width()) << language << " " << name;
    }
    options.Unload();
    processEvents();
}

TEST_P(TextsFit, InEveryControlOfEveryWindow) {
    startToday();
    placeLanguages();
    ChangeCals::ShowMonthlyWindow();
    ChangeCals::OpenYearWindow(Jewish);
    for (const QString& name : LanguageList()) {
        std::string language = name.toStdString();
        LoadLanguage(language);
        ChangeCals::SetAllTexts();
        expectYearGridFits(language);
        ChangeCals::ShowOptions();
        expectOptionsFit(language);
    }
    std::string english = englishLanguage;
    LoadLanguage(english);
}

INSTANTIATE_TEST_SUITE_P(AtPoints, TextsFit, testing::Values(8, 9, 10));

} // namespace
