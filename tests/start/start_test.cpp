// SPDX-License-Identifier: MIT
#include "start/start.h"

#include "changecals/opening.h"
#include "changecals/windows.h"
#include "platform/clock.h"
#include "platform/combobox.h"
#include "platform/commandbutton.h"
#include "platform/flexgrid.h"
#include "shared/english.h"
#include "start/splashwatch.h"
#include "support/texttables.h"
#include "support/widget_test.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QScrollBar>

namespace {

class Starting : public WidgetTest {
protected:
    Starting() {
        clearTexts();
        Today = [] { return QDate(2026, 11, 20); };
        MonthDays = {};
        QImage moon(16, 16, QImage::Format_RGB32);
        moon.fill(Qt::yellow);
        EXPECT_TRUE(moon.save(moonPath(), "BMP"));
    }

    QString moonPath() const { return programPath(QStringLiteral("Moon.bmp")); }

    void store(const QByteArray& lines) const { writeFile(settingsPath(), lines); }

    template <typename Widget>
    Widget* inWindow(MainWindowNumber number, const char* name) {
        return child<Widget>(*ChangeCals::LoadedWindow(number), name);
    }

    QString closeTip(MainWindowNumber number) {
        const char* name = number == MonthlyWindowNumber ? "Command1_5" : "Command1_6";
        return inWindow<CommandButton>(number, name)->toolTip();
    }

    /// The names of the windows on the screen.
    static QStringList visibleWindows() {
        QStringList names;
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            if (window->isVisible())
                names.append(window->objectName());
        }
        return names;
    }

    /// Nobody waits for a message after the program was asked to end, until the
    /// application's own loop has run again.
    static void runOnAfterTheEnd() {
        QMetaObject::invokeMethod(
            qApp, [] { QCoreApplication::exit(); }, Qt::QueuedConnection);
        QCoreApplication::exec();
    }

    SplashWatch splash;
};

/// Keeps what a calendar window shows as it comes: the Julian Day, or else the year.
class FirstSight : public QObject {
public:
    FirstSight() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() != QEvent::Show || qobject_cast<CalendarWindow*>(object) == nullptr)
            return false;
        const bool isMonthly = qobject_cast<MonthlyWindow*>(object) != nullptr;
        shown = child<ComboBox>(*object, isMonthly ? "Combo8" : "Combo1")->Text();
        return false;
    }

    QString shown;
};

class StartupWindows : public Starting, public testing::WithParamInterface<int> {
protected:
    QStringList expectedWindows() const {
        const char* const names[] = {"frmMonthlyCal", "frmJulian", "frmGregorian", "frmJewish",
                                     "frmMoslem"};
        const int window = GetParam();
        if (window < 0 || window > calendarCount)
            return {};
        return {QLatin1String(names[window])};
    }

    QString expectedSight() const {
        const char* const texts[] = {"2461365", "2026", "2026", "5787", "1448"};
        const int window = GetParam();
        return window < 0 || window > calendarCount ? QString() : QLatin1String(texts[window]);
    }
};

TEST_P(StartupWindows, OnlyTheOneStoredIsShown) {
    const FirstSight sight;
    store("[Startup]\nWindow=" + QByteArray::number(GetParam()) + "\n");
    ASSERT_TRUE(Start::Main());
    processEvents();
    for (const MainWindowNumber number : mainWindows)
        EXPECT_NE(ChangeCals::LoadedWindow(number), nullptr) << number;
    EXPECT_EQ(visibleWindows(), expectedWindows());
    EXPECT_EQ(sight.shown, expectedSight()) << "it comes filled";
    EXPECT_EQ(CurrentWindow, GetParam());
    EXPECT_EQ(StartupWindow, GetParam());
    for (const MainWindowNumber number : mainWindows) {
        if (number != MoonWindowNumber) {
            EXPECT_EQ(closeTip(number), QStringLiteral("Exit")) << number;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Stored, StartupWindows, testing::Values(0, 1, 2, 3, 4, 9, -1),
                         [](const testing::TestParamInfo<int>& number) {
                             return number.param < 0 ? std::string("Negative")
                                                     : "Number" + std::to_string(number.param);
                         });

TEST_F(Starting, LeavesItToTheClosingWhenTheProgramEnds) {
    QApplication::setQuitOnLastWindowClosed(true);
    ASSERT_TRUE(Start::Main());
    EXPECT_FALSE(QApplication::quitOnLastWindowClosed());
    QApplication::setQuitOnLastWindowClosed(false);
}

TEST_F(Starting, ChoosesTodayInAllCalendars) {
    ASSERT_TRUE(Start::Main());
    EXPECT_EQ(dateIn(Gregorian), (Date{20, 11, 2026}));
    EXPECT_EQ(dateIn(Julian), (Date{7, 11, 2026}));
    EXPECT_EQ(dateIn(Jewish), (Date{10, 3, 5787}));
    EXPECT_EQ(CurJD, 2461365);
    EXPECT_EQ(WeekDayNo, 5);
    for (int c = 1; c <= calendarCount; ++c)
        EXPECT_TRUE(invariantsHold(c)) << c;
}

TEST_F(Starting, DerivesByTheStoredMoslemVariant) {
    store("[Moslem]\nType=2\n");
    ASSERT_TRUE(Start::Main());
    EXPECT_EQ(dateIn(Moslem), (Date{9, 6, 1448}));
}

TEST_F(Starting, ShowsASplashForItsTime) {
    store("[Startup]\nWindow=3\n");
    ASSERT_TRUE(Start::Main());
    EXPECT_GE(splash.secondsAlone, 1.0368) << "0.000012 days";
    EXPECT_GE(splash.seconds, splash.secondsAlone) << "it goes when the window is there";
    EXPECT_EQ(splash.ground, QColor(0xFF, 0xFF, 0xC0)) << "the start-up calendar's colour";
}

TEST_F(Starting, AMissingMoonPictureIsToldOnce) {
    ASSERT_TRUE(QFile::remove(moonPath()));
    ASSERT_TRUE(Start::Main());
    processEvents();
    EXPECT_EQ(m_messages.take(), QStringList{QDir::toNativeSeparators(moonPath()) +
                                             QStringLiteral("\r\n\r\nFile not found")});
    EXPECT_EQ(visibleWindows(), QStringList{QStringLiteral("frmMonthlyCal")});
}

TEST_F(Starting, ABadSettingEndsItBeforeAnyWindow) {
    store("[Startup]\nWindow=abc\n");
    EXPECT_FALSE(Start::Main());
    EXPECT_EQ(m_messages.take().size(), 1);
    for (const MainWindowNumber number : mainWindows)
        EXPECT_EQ(ChangeCals::LoadedWindow(number), nullptr) << number;
    EXPECT_EQ(visibleWindows(), QStringList());
    EXPECT_EQ(splash.seconds, 0);
}

TEST_F(Starting, WithoutTipsThereAreNone) {
    store("[Startup]\nShowTips=0\n");
    ASSERT_TRUE(Start::Main());
    for (const MainWindowNumber number : mainWindows) {
        for (const QWidget* control : ChangeCals::LoadedWindow(number)->findChildren<QWidget*>())
            EXPECT_EQ(control->toolTip(), QString())
                << number << ' ' << control->objectName().toStdString();
    }
}

TEST_F(Starting, AFirstPaneWithoutACalendarStandsEmpty) {
    store("[Startup]\nCalendar1=9\n");
    ASSERT_TRUE(Start::Main());
    EXPECT_EQ(CalendarOrder(1), 9);
    EXPECT_EQ(visibleWindows(), QStringList{QStringLiteral("frmMonthlyCal")});
    EXPECT_FALSE(Updating);
}

TEST_F(Starting, SpeaksTheStoredLanguage) {
    EXPECT_TRUE(QFile::copy(QStringLiteral(LANGUAGES_DIR "/German.lng"),
                            programPath(QStringLiteral("German.lng"))));
    store("[Startup]\nLanguage=German\n");
    ASSERT_TRUE(Start::Main());
    EXPECT_EQ(ChangeCals::LoadedWindow(MonthlyWindowNumber)->windowTitle(),
              QStringLiteral("Monatskalender"));
    EXPECT_EQ(ChangeCals::LoadedWindow(MoonWindowNumber)->windowTitle(), QStringLiteral("Mond"));
    EXPECT_EQ(closeTip(MonthlyWindowNumber), QStringLiteral("Beenden"));
}

TEST_F(Starting, AMissingLanguageFileIsToldAndTheStartGoesOn) {
    store("[Startup]\nLanguage=German\n");
    ASSERT_TRUE(Start::Main());
    EXPECT_EQ(m_messages.take(),
              QStringList{QDir::toNativeSeparators(programPath(QStringLiteral("German.lng"))) +
                          QStringLiteral("\r\n\r\nFile not found")});
    EXPECT_EQ(LanguageName, englishLanguage);
    EXPECT_EQ(readFile(settingsPath()), "[Startup]\nLanguage=German\n") << "the choice is kept";
}

TEST_F(Starting, WindowsStandWhereTheSettingsPutThem) {
    store("[Monthly]\nTop=600\nLeft=750\n[Moon]\nTop=32737\nLeft=300\n");
    ASSERT_TRUE(Start::Main());
    MainWindow* monthly = ChangeCals::LoadedWindow(MonthlyWindowNumber);
    EXPECT_EQ(monthly->Top(), Twips{600});
    EXPECT_EQ(monthly->Left(), Twips{750});
    EXPECT_NE(ChangeCals::LoadedWindow(MoonWindowNumber)->Left(), Twips{300})
        << "half a place is none";
}

// A session that ends asks the toolkit, which asks each window.
// At their largest: the Jewish year window in a leap year, also in a common one.
TEST_F(Starting, FirstPlacesReckonWithTheSizesOfTheWindows) {
    Today = [] { return QDate(2025, 11, 20); };
    ASSERT_TRUE(Start::Main());
    ASSERT_EQ(ChangeCals::LoadYear(Jewish).width(), 389);
    const WindowSizes& sizes = ChangeCals::LargestSizes();
    for (const int c : {Julian, Gregorian, Moslem})
        EXPECT_EQ(sizes(c), QSize(389, 518)) << c;
    EXPECT_EQ(sizes(Jewish), QSize(507, 518));
    EXPECT_EQ(sizes(MonthlyWindowNumber), ChangeCals::LoadMonthly().size());
    EXPECT_EQ(sizes(MoonWindowNumber), QSize(290, 309));
}

TEST_F(Starting, TheSessionsEndClosesEveryWindowAndSavesNothing) {
    ASSERT_TRUE(Start::Main());
    ChangeCals::OpenYearWindowsOfPanes();
    ChangeCals::ShowMoonWindow();
    ChangeCals::LoadOptions().Show();
    ChangeCals::LoadAbout().Show();
    QEvent end(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &end);
    runOnAfterTheEnd();
    EXPECT_EQ(m_exitStatus, 0);
    EXPECT_EQ(visibleWindows(), QStringList());
    EXPECT_FALSE(QFile::exists(settingsPath()));
}

class Clocks : public Starting, public testing::WithParamInterface<QDate> {};

TEST_P(Clocks, TheDayOfTheClockIsChosen) {
    const QDate today = GetParam();
    Today = [today] { return today; };
    ASSERT_TRUE(Start::Main());
    EXPECT_EQ(visibleWindows(), QStringList{QStringLiteral("frmMonthlyCal")});
    EXPECT_EQ(dateIn(Gregorian), (Date{today.day(), today.month(), today.year()}));
    // Days from 1 January 1970, which is Julian Day 2440588.
    const std::chrono::sys_days day{std::chrono::year(today.year()) / today.month() / today.day()};
    EXPECT_EQ(CurJD, 2440588 + day.time_since_epoch().count());
    for (const int c : {int{Julian}, int{Gregorian}, int{Jewish}, int{Moslem}}) {
        ChangeCals::OpenYearWindow(c);
        ChangeCals::LoadYear(c).Hide();
    }
    EXPECT_FALSE(Updating);
}

INSTANTIATE_TEST_SUITE_P(Years, Clocks,
                         testing::Values(QDate(1, 1, 1), QDate(3000, 12, 31), QDate(3001, 1, 1),
                                         QDate(9999, 12, 31)),
                         [](const testing::TestParamInfo<QDate>& today) {
                             return "Year" + std::to_string(today.param.year());
                         });

TEST_F(Starting, GridsShowAllTheirCells) {
    ASSERT_TRUE(Start::Main());
    ChangeCals::OpenYearWindowsOfPanes();
    processEvents();
    for (const MainWindowNumber number : mainWindows) {
        for (const MSFlexGrid* grid :
             ChangeCals::LoadedWindow(number)->findChildren<MSFlexGrid*>()) {
            EXPECT_EQ(grid->horizontalScrollBar()->maximum(), 0) << number;
            EXPECT_EQ(grid->verticalScrollBar()->maximum(), 0) << number;
        }
    }
}

} // namespace
