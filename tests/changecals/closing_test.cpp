// SPDX-License-Identifier: MIT
#include "changecals/closing.h"

#include "changecals/opening.h"
#include "changecals/placing.h"
#include "platform/twips.h"
#include "support/recording_windows.h"
#include "support/widget_test.h"

#include <QFile>
#include <QScreen>
#include <QSettings>

namespace {

/// Windows that act on their unloading as the real ones do.
class ClosingMonthly : public RecordingMonthly {
protected:
    void Form_Unload() override { ChangeCals::AfterWindowClosed(); }
};

class ClosingYear : public RecordingYear {
public:
    using RecordingYear::RecordingYear;

protected:
    void Form_Unload() override { ChangeCals::AfterWindowClosed(); }
};

class Closing : public WidgetTest {
protected:
    Closing() {
        startToday();
        ChangeCals::SetFactories({
            [] { return new ClosingMonthly; },
            [](int c) { return new ClosingYear(c); },
            [] { return new RecordingMoon; },
            [] { return new Form(QStringLiteral("frmOptions")); },
            [] { return new Form(QStringLiteral("frmAbout")); },
        });
    }

    QString monthlyTip() const {
        return static_cast<RecordingMonthly&>(ChangeCals::Monthly()).closeTip;
    }
    QString yearTip(int c) const {
        return static_cast<RecordingYear&>(ChangeCals::Year(c)).closeTip;
    }
    bool nothingSaved() const { return !QFile::exists(settingsPath()); }

    QStringList savedKeys() const {
        return QSettings(settingsPath(), QSettings::IniFormat).allKeys();
    }
    QString saved(const char* key) const {
        return QSettings(settingsPath(), QSettings::IniFormat).value(QLatin1String(key)).toString();
    }
};

const QString exitTip = QStringLiteral("Exit");
const QString severalTip =
    QStringLiteral("Left mouse button \u2014 Close window. Right mouse button \u2014 Exit");

TEST_F(Closing, OnlyVisibleCalendarWindowsCount) {
    EXPECT_EQ(ChangeCals::CountOpenWindows(), 0);
    ChangeCals::Moon().Show();
    ChangeCals::Options().Show();
    ChangeCals::About().Show();
    EXPECT_EQ(ChangeCals::CountOpenWindows(), 0);
    ChangeCals::Monthly().Show();
    ChangeCals::Year(Jewish).showMinimized();
    EXPECT_EQ(ChangeCals::CountOpenWindows(), 2);
    ChangeCals::Monthly().Hide();
    EXPECT_EQ(ChangeCals::CountOpenWindows(), 1);
}

TEST_F(Closing, CloseButtonOfTheOnlyWindowSavesThePositionsAndEnds) {
    ChangeCals::Monthly().Show();
    ChangeCals::CloseWindow(ChangeCals::Monthly());
    EXPECT_EQ(m_exitStatus, 0);
    EXPECT_EQ(savedKeys().size(), 12);
}

TEST_F(Closing, CloseButtonHidesWhileAnotherCalendarWindowIsOpen) {
    ChangeCals::Monthly().Show();
    ChangeCals::Year(Gregorian).Show();
    MonthlyWindow* const window = &ChangeCals::Monthly();
    ChangeCals::CloseWindow(*window);
    EXPECT_FALSE(window->Visible());
    EXPECT_FALSE(window->IsUnloaded());
    EXPECT_EQ(&ChangeCals::Monthly(), window);
    EXPECT_EQ(m_exitStatus, std::nullopt);
    EXPECT_EQ(yearTip(Gregorian), exitTip);
    EXPECT_TRUE(nothingSaved());
}

TEST_F(Closing, TheMoonWindowAloneDoesNotKeepTheProgramAlive) {
    ChangeCals::Monthly().Show();
    ChangeCals::Moon().Show();
    ChangeCals::CloseWindow(ChangeCals::Monthly());
    EXPECT_EQ(m_exitStatus, 0);
    EXPECT_EQ(savedKeys().size(), 12);
}

TEST_F(Closing, FrameCloseOfOneOfTwoLeavesExitOnTheOther) {
    ChangeCals::Monthly().Show();
    ChangeCals::OpenYearWindow(Moslem);
    EXPECT_EQ(monthlyTip(), severalTip);
    EXPECT_EQ(yearTip(Moslem), severalTip);
    ChangeCals::Year(Moslem).close();
    EXPECT_EQ(monthlyTip(), exitTip);
    EXPECT_EQ(m_exitStatus, std::nullopt);
}

TEST_F(Closing, FrameCloseUnloadsAndTheNextUseLoadsAfresh) {
    ChangeCals::Monthly().Show();
    ChangeCals::OpenYearWindow(Moslem);
    QPointer<YearWindow> window = &ChangeCals::Year(Moslem);
    window->close();
    EXPECT_EQ(ChangeCals::LoadedWindow(Moslem), nullptr);
    EXPECT_NE(&ChangeCals::Year(Moslem), window.data());
    processEvents();
    EXPECT_TRUE(window.isNull());
}

TEST_F(Closing, FrameCloseOfTheLastEndsWithoutSavingWhateverElseIsOpen) {
    ChangeCals::Monthly().Show();
    ChangeCals::Moon().Show();
    ChangeCals::Options().Show();
    ChangeCals::About().Show();
    ChangeCals::Monthly().close();
    EXPECT_EQ(m_exitStatus, 0);
    EXPECT_FALSE(ChangeCals::Moon().Visible());
    EXPECT_TRUE(nothingSaved());
}

TEST_F(Closing, EndingHappensOnce) {
    ChangeCals::Monthly().Show();
    ChangeCals::ExitProgram();
    m_exitStatus.reset();
    ChangeCals::Monthly().close();
    ChangeCals::ExitProgram();
    EXPECT_EQ(m_exitStatus, std::nullopt);
}

TEST_F(Closing, TipsAreLeftAloneWhileTheyAreOff) {
    ShowTips = 0;
    ChangeCals::Monthly().Show();
    ChangeCals::OpenYearWindow(Moslem);
    ChangeCals::SetCloseTipsSeveral();
    EXPECT_EQ(monthlyTip(), QString());
}

TEST_F(Closing, TipsFollowTheNumberOfOpenWindows) {
    ChangeCals::ShowMonthlyWindow();
    EXPECT_EQ(monthlyTip(), exitTip);
    ChangeCals::OpenYearWindow(Julian);
    EXPECT_EQ(monthlyTip(), severalTip);
    ChangeCals::CloseWindow(ChangeCals::Year(Julian));
    EXPECT_EQ(monthlyTip(), exitTip);
    ChangeCals::OpenYearWindow(Julian);
    EXPECT_EQ(monthlyTip(), severalTip);
}

TEST_F(Closing, PositionsAreThoseOfTheFramesInTwips) {
    ChangeCals::Monthly().Show();
    ChangeCals::Monthly().move(100, 50);
    ChangeCals::ExitProgram();
    EXPECT_EQ(saved("Monthly/Left"), QStringLiteral("1500"));
    EXPECT_EQ(saved("Monthly/Top"), QStringLiteral("750"));
}

TEST_F(Closing, MinimisedWindowsKeepWhatWasReadAtStart) {
    FormTop(MoonWindowNumber) = 1234;
    FormLeft(MoonWindowNumber) = -77;
    ChangeCals::Monthly().Show();
    ChangeCals::Moon().Show();
    ChangeCals::Moon().move(10, 10);
    ChangeCals::Moon().showMinimized();
    ChangeCals::ExitProgram();
    EXPECT_EQ(saved("Moon/Top"), QStringLiteral("1234"));
    EXPECT_EQ(saved("Moon/Left"), QStringLiteral("-77"));
}

TEST_F(Closing, WindowsThatAreNotLoadedKeepTheirPlaceAndAreNotCreated) {
    FormTop(Jewish) = 300;
    FormLeft(Jewish) = 450;
    ChangeCals::Monthly().Show();
    ChangeCals::ExitProgram();
    EXPECT_EQ(saved("Jewish/Top"), QStringLiteral("300"));
    EXPECT_EQ(saved("Jewish/Left"), QStringLiteral("450"));
    EXPECT_EQ(saved("Julian/Top"), QString::number(ChangeCals::PlaceOf(Julian).top));
    EXPECT_EQ(ChangeCals::LoadedWindow(MoonWindowNumber), nullptr);
}

TEST_F(Closing, APositionBeyond16BitsEndsWithAMessageAndSavesNothing) {
    ChangeCals::Monthly().Show();
    ChangeCals::Monthly().move(2185, 10);
    ChangeCals::ExitProgram();
    EXPECT_EQ(m_exitStatus, 1);
    EXPECT_EQ(m_messages.take().size(), 1);
    EXPECT_TRUE(nothingSaved());
}

TEST_F(Closing, TheLastPositionThatFitsIsSaved) {
    ChangeCals::Monthly().Show();
    ChangeCals::Monthly().move(2184, -2184);
    ChangeCals::ExitProgram();
    EXPECT_EQ(m_exitStatus, 0);
    EXPECT_EQ(saved("Monthly/Left"), QStringLiteral("32760"));
    EXPECT_EQ(saved("Monthly/Top"), QStringLiteral("-32760"));
}

TEST_F(Closing, OtherStoredKeysSurviveTheExit) {
    writeFile(settingsPath(), "[Startup]\nLanguage=German\n");
    ChangeCals::Monthly().Show();
    ChangeCals::ExitProgram();
    EXPECT_EQ(saved("Startup/Language"), QStringLiteral("German"));
    EXPECT_EQ(savedKeys().size(), 13);
}

TEST_F(Closing, SettingsThatCannotBeWrittenAreToldOnceAndTheProgramEnds) {
    writeFile(m_folder.filePath(QStringLiteral("config")), "a file, not a folder");
    ChangeCals::Monthly().Show();
    ChangeCals::ExitProgram();
    const QStringList messages = m_messages.take();
    ASSERT_EQ(messages.size(), 1);
    EXPECT_TRUE(messages.front().contains(settingsPath())) << messages.front().toStdString();
    EXPECT_EQ(m_exitStatus, 0);
}

// Placing

TEST_F(Closing, PlacesByTheStoredPositionWhereItIsOnTheScreen) {
    const QSize screen = QGuiApplication::primaryScreen()->size();
    const int width = ToTwips(screen.width());
    const int height = ToTwips(screen.height());
    const auto designed = ChangeCals::PlaceOf(Julian);
    const struct {
        int left, top;
        bool used;
    } rows[] = {{600, 300, true},         {-600, -300, true},      {width - 1, 0, true},
                {width, 0, false},        {0, height, false},      {0, height - 1, true},
                {noPosition, 300, false}, {600, noPosition, false}};
    for (const auto& row : rows) {
        FormLeft(Julian) = row.left;
        FormTop(Julian) = row.top;
        const auto place = ChangeCals::PlaceOf(Julian);
        EXPECT_EQ(place.left, row.used ? row.left : designed.left) << row.left << " " << row.top;
        EXPECT_EQ(place.top, row.used ? row.top : designed.top) << row.left << " " << row.top;
    }
}

} // namespace
