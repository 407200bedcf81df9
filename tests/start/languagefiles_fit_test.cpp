// SPDX-License-Identifier: MIT
// The texts of every shipped language in year grids and the options, at the sizes
// that desktops use.
#include "changecals/opening.h"
#include "changecals/windows.h"
#include "monthly/frmmonthlycal.h"
#include "moon/frmmoon.h"
#include "platform/flexgrid.h"
#include "shared/english.h"
#include "start/frmabout.h"
#include "start/frmoptions.h"
#include "start/language.h"
#include "support/widget_test.h"
#include "yearcals/frmyearcal.h"

#include <QDir>
#include <QFile>
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

// Whatever the grid itself does with a text that is too wide.
void expectFits(const MSFlexGrid& grid, const QModelIndex& cell, const std::string& language) {
    QFont font = grid.font();
    font.setPixelSize(smallestReadable);
    font.setBold(grid.columnSpan(cell.row(), cell.column()) > 1); // a title
    const QString text = cell.data().toString();
    EXPECT_LE(QFontMetrics(font).horizontalAdvance(text), grid.visualRect(cell).width())
        << language << ": " << text.toStdString();
}

void expectYearGridFits(int c, const std::string& language) {
    YearWindow& year = ChangeCals::LoadYear(c);
    year.ForgetYear();
    year.ShowYear();
    const auto& grid = *child<MSFlexGrid>(year, "MSFlexGrid1");
    for (int row = 0; row < grid.Rows(); ++row) {
        for (int column = 0; column < grid.Cols(); ++column)
            expectFits(grid, grid.model()->index(row, column), language);
    }
}

/// The weekdays' names leave the pixels beside the frame of their grid free.
void expectFrameStandsFree(const std::string& language) {
    constexpr int besideFrame = 1;
    for (const char* name : {"MSFlexGrid1_1", "MSFlexGrid1_2", "MSFlexGrid1_3", "MSFlexGrid1_4"}) {
        const QImage image = child<QWidget>(ChangeCals::LoadMonthly(), name)->grab().toImage();
        const QColor ground = image.pixelColor(besideFrame, besideFrame);
        for (int y = besideFrame; y < image.height() - besideFrame; ++y)
            ASSERT_EQ(image.pixelColor(besideFrame, y), ground)
                << language << " " << name << " " << y;
    }
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
    for (int c = 1; c <= calendarCount; ++c)
        ChangeCals::OpenYearWindow(c);
    for (const QString& name : LanguageList()) {
        std::string language = name.toStdString();
        LoadLanguage(language);
        ChangeCals::SetAllTexts();
        for (int c = 1; c <= calendarCount; ++c)
            expectYearGridFits(c, language);
        ChangeCals::LoadMonthly().ReSetForm();
        expectFrameStandsFree(language);
        ChangeCals::LoadOptions().Show();
        expectOptionsFit(language);
    }
    std::string english = englishLanguage;
    LoadLanguage(english);
}

INSTANTIATE_TEST_SUITE_P(AtPoints, TextsFit, testing::Values(8, 9, 10));

} // namespace
