// SPDX-License-Identifier: MIT
// The texts of every shipped language in the lists of every window, judged on
// pixels: what a list draws is what one twice as wide draws in some letter size.
#include "calc/calc.h"
#include "changecals/opening.h"
#include "monthly/frmmonthlycal.h"
#include "moon/frmmoon.h"
#include "platform/combobox.h"
#include "platform/text.h"
#include "shared/english.h"
#include "start/frmabout.h"
#include "start/frmoptions.h"
#include "start/language.h"
#include "support/widget_test.h"
#include "yearcals/frmyearcal.h"

#include <QDir>
#include <QFile>
#include <QFontInfo>
#include <QRegularExpression>
#include <QStyle>
#include <tuple>

namespace {

constexpr int smallestLetters = 6; // pixels

// What a list with this text shows that an empty one does not, cut to its edges.
QImage ink(ComboBox& list, const QString& text) {
    const auto drawn = [&list](const QString& shown) {
        list.SetOnlyItem(shown);
        return list.grab().toImage().convertToFormat(QImage::Format_RGB32);
    };
    const QImage empty = drawn({});
    const QImage full = drawn(text);
    QImage marks(full.size(), QImage::Format_RGB32);
    marks.fill(Qt::white);
    QRect edges;
    for (int y = 0; y < full.height(); ++y) {
        const auto* before = reinterpret_cast<const QRgb*>(empty.constScanLine(y));
        const auto* after = reinterpret_cast<const QRgb*>(full.constScanLine(y));
        for (int x = 0; x < full.width(); ++x) {
            if (after[x] == before[x])
                continue;
            marks.setPixel(x, y, after[x]);
            edges |= QRect(x, y, 1, 1);
        }
    }
    return marks.copy(edges);
}

class InkInLists : public WidgetTest,
                   public testing::WithParamInterface<std::tuple<const char*, int>> {
protected:
    InkInLists()
        : m_formerFont(QApplication::font()), m_formerStyle(QApplication::style()->name()) {
        QApplication::setStyle(QLatin1String(std::get<0>(GetParam())));
        QFont font = m_formerFont;
        font.setPointSize(std::get<1>(GetParam()));
        QApplication::setFont(font);
        ChangeCals::BeginRun({[] { return new frmMonthlyCal; },
                              [](int c) { return new frmYearCal(c); }, [] { return new frmMoon; },
                              [] { return new frmOptions; }, [] { return new frmAbout; }});
        startToday();
        ChangeCals::ShowMonthlyWindow();
        bringToFront(ChangeCals::LoadMonthly());
    }
    ~InkInLists() override {
        ChangeCals::EndRun();
        QApplication::setFont(m_formerFont);
        QApplication::setStyle(m_formerStyle);
    }

    // Some styles draw the texts of other windows paler.
    static void bringToFront(Form& window) {
        window.activateWindow();
        ASSERT_TRUE(waitUntil([&window] { return window.isActiveWindow(); }));
    }

    void placeLanguages() const {
        const QDir shipped(QStringLiteral(LANGUAGES_DIR));
        for (const QString& file : shipped.entryList({QStringLiteral("*.lng")}))
            ASSERT_TRUE(QFile::copy(shipped.filePath(file), programPath(file)));
    }

    // The text on one line, and broken at each of its blanks and hyphens.
    static QStringList inLines(const QString& text) {
        static const QRegularExpression blanks(QStringLiteral(" +|(?<=-)"));
        QStringList broken{text};
        for (auto found = blanks.globalMatch(text); found.hasNext();) {
            const auto blank = found.next();
            broken << text.left(blank.capturedStart()) + u'\n' + text.mid(blank.capturedEnd());
        }
        return broken;
    }

    // Whether a list twice as wide draws the same, on one line or two, in a size
    // between that of the list and the smallest that can be read.
    static bool isDrawnWhole(ComboBox& list, const QString& text) {
        const QImage drawn = ink(list, text);
        ComboBox wide(QStringLiteral("Wide"), list.parentWidget());
        wide.setEditable(list.isEditable());
        wide.resize(2 * list.width(), list.height());
        QFont font = list.font();
        for (int size = QFontInfo(font).pixelSize(); size >= smallestLetters; --size) {
            font.setPixelSize(size);
            wide.setFont(font);
            for (const QString& lines : inLines(text)) {
                if (ink(wide, lines) == drawn)
                    return true;
            }
        }
        return false;
    }

    static void expectWhole(ComboBox& list, const QString& text, const std::string& where) {
        EXPECT_TRUE(isDrawnWhole(list, text))
            << where << ", " << list.objectName().toStdString() << ": " << text.toStdString();
    }

    // The same text in all four panes: none makes the others' letters small.
    static void expectWholeInRow(const char* name, const QString& text, const std::string& where) {
        const QString pattern = QString::fromLatin1(name) + QStringLiteral("_%1");
        for (int pane = paneCount; pane >= 1; --pane) {
            auto* list = child<ComboBox>(ChangeCals::LoadMonthly(), qPrintable(pattern.arg(pane)));
            list->SetOnlyItem(text);
            if (pane == 1)
                expectWhole(*list, text, where);
        }
    }

private:
    QFont m_formerFont;
    QString m_formerStyle;
};

class InkOfNames : public InkInLists {};
class InkOfDigits : public InkInLists {};

TEST_P(InkOfNames, IsWholeInEveryLanguage) {
    placeLanguages();
    for (const QString& name : LanguageList()) {
        std::string language = name.toStdString();
        LoadLanguage(language);
        ChangeCals::SetAllTexts();
        for (int c = 1; c <= calendarCount; ++c) {
            expectWholeInRow("Combo1", Text(CalendarNames(c)), language);
            for (int month = 1; month <= Calc::MonthsInYear(c) && c != Gregorian; ++month)
                expectWholeInRow(
                    "Combo3", QStringLiteral("12/12  ") + AmidNumbers(Text(MonthNames(c, month))),
                    language);
        }
        auto* weekdays = child<ComboBox>(ChangeCals::LoadMonthly(), "Combo6");
        for (int weekday = 1; weekday <= 7; ++weekday)
            expectWhole(*weekdays, Text(WeekDayNames(weekday)), language);
    }
    std::string english = englishLanguage;
    LoadLanguage(english);
}

TEST_P(InkOfDigits, IsWhole) {
    expectWholeInRow("Combo2", QStringLiteral("2888"), "year");
    expectWholeInRow("Combo4", QStringLiteral("288/385"), "day");
    expectWholeInRow("Combo5", QStringLiteral("48/54"), "week");
    Form& monthly = ChangeCals::LoadMonthly();
    expectWhole(*child<ComboBox>(monthly, "Combo6"), QStringLiteral("Wednesday"), "weekday");
    expectWhole(*child<ComboBox>(monthly, "Combo7"), QStringLiteral("28.8"), "moon's age");
    expectWhole(*child<ComboBox>(monthly, "Combo8"), QStringLiteral("2808808"), "Julian Day");
    for (const int c : {Julian, Jewish}) {
        ChangeCals::OpenYearWindow(c);
        bringToFront(ChangeCals::LoadYear(c));
        expectWhole(*child<ComboBox>(ChangeCals::LoadYear(c), "Combo1"), QStringLiteral("2888"),
                    "year window");
    }
}

TEST_P(InkOfDigits, EveryControlOfTheMonthlyWindowHasRoomOfItsOwn) {
    Form& monthly = ChangeCals::LoadMonthly();
    const auto controls = monthly.findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    for (QWidget* a : controls) {
        if (!a->isVisible())
            continue;
        EXPECT_TRUE(monthly.rect().contains(a->geometry())) << a->objectName().toStdString();
        for (QWidget* b : controls) {
            const bool stacked = a->objectName().left(8) == b->objectName().left(8);
            if (b->isVisible() && a != b && !stacked) {
                EXPECT_FALSE(a->geometry().intersects(b->geometry()))
                    << a->objectName().toStdString() << " " << b->objectName().toStdString();
            }
        }
    }
}

/// In one style, in a font that grows.
class GrowingInk : public InkInLists {
protected:
    static void setPoints(int points) {
        QFont font = QApplication::font();
        font.setPointSize(points);
        QApplication::setFont(font);
        processEvents();
    }

    // Of the highest band of ink without a blank row: a line, as dots above a letter
    // make a low one of their own.
    static int letterHeight(ComboBox& list, const QString& text) {
        const QImage drawn = ink(list, text);
        int highest = 0;
        int band = 0;
        for (int y = 0; y < drawn.height(); ++y) {
            bool blank = true;
            for (int x = 0; x < drawn.width(); ++x)
                blank = blank && drawn.pixel(x, y) == qRgb(255, 255, 255);
            band = blank ? 0 : band + 1;
            highest = std::max(highest, band);
        }
        return highest;
    }

    // Of the calendars' names and the months of the longest names, in the language now
    // chosen.
    static std::vector<int> letterHeights() {
        std::vector<int> heights;
        const auto add = [&heights](const char* list, const QString& text) {
            const QString pattern = QString::fromLatin1(list) + QStringLiteral("_%1");
            for (int pane = 2; pane <= paneCount; ++pane)
                child<ComboBox>(ChangeCals::LoadMonthly(), qPrintable(pattern.arg(pane)))
                    ->SetOnlyItem(text);
            auto* first = child<ComboBox>(ChangeCals::LoadMonthly(), qPrintable(pattern.arg(1)));
            heights.push_back(letterHeight(*first, text));
        };
        for (int c = 1; c <= calendarCount; ++c)
            add("Combo1", Text(CalendarNames(c)));
        for (int month = 1; month <= 12; ++month)
            add("Combo3", QStringLiteral("12/12  ") + AmidNumbers(Text(MonthNames(Moslem, month))));
        add("Combo4", QStringLiteral("288/385"));
        auto* year = child<ComboBox>(ChangeCals::LoadYear(Julian), "Combo1");
        heights.push_back(letterHeight(*year, QStringLiteral("2888")));
        return heights;
    }
};

TEST_P(GrowingInk, IsNowhereSmallerInALargerFont) {
    placeLanguages();
    ChangeCals::OpenYearWindow(Julian);
    for (const QString& name : LanguageList()) {
        std::string language = name.toStdString();
        LoadLanguage(language);
        setPoints(9);
        ChangeCals::SetAllTexts();
        const std::vector<int> usual = letterHeights();
        for (const int points : {16, 22}) {
            setPoints(points);
            const std::vector<int> large = letterHeights();
            for (std::size_t text = 0; text < usual.size(); ++text)
                EXPECT_GE(large[text], usual[text]) << language << " " << text << " " << points;
        }
    }
    std::string english = englishLanguage;
    LoadLanguage(english);
}

INSTANTIATE_TEST_SUITE_P(InStyles, GrowingInk,
                         testing::Combine(testing::Values("fusion", "adwaita"),
                                          testing::Values(9)));
INSTANTIATE_TEST_SUITE_P(AtPoints, InkOfNames,
                         testing::Combine(testing::Values("fusion", "adwaita"),
                                          testing::Values(8, 9, 11, 14)));
INSTANTIATE_TEST_SUITE_P(AtPoints, InkOfDigits,
                         testing::Combine(testing::Values("fusion", "adwaita"),
                                          testing::Values(9, 11, 14, 16, 22)));

} // namespace
