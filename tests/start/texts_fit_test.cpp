// SPDX-License-Identifier: MIT
// The texts of every shipped language in the controls of every window, at the
// sizes that desktops use.
#include "changecals/changecals.h"
#include "changecals/opening.h"
#include "monthly/frmmonthlycal.h"
#include "moon/frmmoon.h"
#include "platform/combobox.h"
#include "platform/text.h"
#include "start/frmabout.h"
#include "start/frmoptions.h"
#include "start/language.h"
#include "support/widget_test.h"
#include "yearcals/yearwindow.h"

#include <QDir>
#include <QFile>
#include <QFontInfo>
#include <QLabel>
#include <QStyle>
#include <QStyleOptionComboBox>

namespace {

constexpr int smallestReadable = 7; // pixels

class TextsFit : public WidgetTest, public testing::WithParamInterface<int> {
protected:
    TextsFit() : m_formerFont(QApplication::font()) {
        QFont font = m_formerFont;
        font.setPointSize(GetParam());
        QApplication::setFont(font);
        ChangeCals::SetFactories({[] { return new frmMonthlyCal; },
                                  [](int c) { return new frmYearCal(c); },
                                  [] { return new frmMoon; }, [] { return new frmOptions; },
                                  [] { return new frmAbout; }});
    }
    ~TextsFit() override {
        ChangeCals::DestroyAllWindows();
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

void expectListFits(ComboBox& list, const QString& text, const std::string& where) {
    QStyleOptionComboBox option;
    option.initFrom(&list);
    option.editable = list.isEditable();
    const int width =
        list.style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &list)
            .width();
    expectFits(list.font(), text, width, where + ", " + list.objectName().toStdString());
}

// Month names of the longest form, with numbers of two digits.
void expectMonthlyFits(const std::string& language) {
    Form& window = ChangeCals::Monthly();
    auto* chooser = child<ComboBox>(window, "Combo1_1");
    auto* months = child<ComboBox>(window, "Combo3_1");
    auto* weekdays = child<ComboBox>(window, "Combo6");
    for (int c = 1; c <= calendarCount; ++c) {
        expectListFits(*chooser, Text(CalendarNames(c)), language);
        for (int month = 1; month <= 12; ++month)
            expectListFits(*months, QStringLiteral("12/12  ") + Text(MonthNames(c, month)),
                           language);
    }
    for (int weekday = 1; weekday <= 7; ++weekday)
        expectListFits(*weekdays, Text(WeekDayNames(weekday)), language);
}

void expectYearGridFits(const std::string& language) {
    auto* grid = child<MSFlexGrid>(ChangeCals::Year(Jewish), "MSFlexGrid1");
    QFont bold = grid->font();
    bold.setBold(true);
    for (int c = 1; c <= calendarCount; ++c) {
        for (int month = 1; month <= 12; ++month)
            expectFits(bold, QStringLiteral("(12)  ") + Text(MonthNames(c, month)), 120, language);
    }
    for (int weekday = 1; weekday <= 7; ++weekday)
        expectFits(grid->font(), Text(WeekDayAbbrs(weekday)), 17, language);
}

// A layout gives every control of the options at least the size of its text.
void expectOptionsFit(const std::string& language) {
    Form& options = ChangeCals::Options();
    EXPECT_LE(options.width(), 700) << language;
    EXPECT_LE(options.height(), 560) << language;
    const auto controls = options.findChildren<QWidget*>();
    for (QWidget* control : controls) {
        if (qobject_cast<QLabel*>(control) == nullptr || !control->isVisible())
            continue;
        EXPECT_GE(control->width(), control->minimumSizeHint().width()) << language;
        EXPECT_GE(control->height(), control->heightForWidth(control->width())) << language;
    }
    for (const char* name : {"Option1_1", "Option1_2", "Check1"}) {
        auto* control = child<QWidget>(options, name);
        EXPECT_GE(control->width(), control->sizeHint().width()) << language << " " << name;
    }
    for (const char* name : {"Combo2", "Combo3"}) {
        auto* list = child<ComboBox>(options, name);
        for (int item = 0; item < list->count(); ++item)
            expectListFits(*list, list->itemText(item), language);
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
        expectMonthlyFits(language);
        expectYearGridFits(language);
        ChangeCals::ShowOptions();
        expectOptionsFit(language);
    }
    std::string english = englishLanguage;
    LoadLanguage(english);
}

INSTANTIATE_TEST_SUITE_P(AtPoints, TextsFit, testing::Values(8, 9, 10));

} // namespace
