// SPDX-License-Identifier: MIT
#include "changecals/closing.h"

#include "changecals/opening.h"
#include "changecals/windowpositions.h"
#include "support/messageshown.h"
#include "support/recording_windows.h"
#include "support/widget_test.h"

#include <QEvent>
#include <QFile>
#include <QSettings>
#include <utility>

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
        ChangeCals::WindowFactories factories = recordingFactories();
        factories.monthly = [] { return new ClosingMonthly; };
        factories.year = [](int c) { return new ClosingYear(c); };
        ChangeCals::BeginRun(std::move(factories));
    }

    QString monthlyTip() const {
        return static_cast<RecordingMonthly&>(ChangeCals::LoadMonthly()).record.closeTip;
    }
    QString yearTip(int c) const {
        return static_cast<RecordingYear&>(ChangeCals::LoadYear(c)).record.closeTip;
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
    ChangeCals::LoadMoon().Show();
    ChangeCals::LoadOptions().Show();
    ChangeCals::LoadAbout().Show();
    EXPECT_EQ(ChangeCals::CountOpenWindows(), 0);
    ChangeCals::LoadMonthly().Show();
    ChangeCals::LoadYear(Jewish).showMinimized();
    EXPECT_EQ(ChangeCals::CountOpenWindows(), 2);
    ChangeCals::LoadMonthly().Hide();
    EXPECT_EQ(ChangeCals::CountOpenWindows(), 1);
}

TEST_F(Closing, CloseButtonOfTheOnlyWindowSavesThePositionsAndEnds) {
    ChangeCals::LoadMonthly().Show();
    ChangeCals::CloseWindow(ChangeCals::LoadMonthly());
    EXPECT_EQ(m_exitStatus, 0);
    EXPECT_EQ(savedKeys().size(), 2 * mainWindowCount);
}

TEST_F(Closing, OnlyTheRightMouseButtonOnACloseButtonEnds) {
    ChangeCals::LoadMonthly().Show();
    for (const auto button : {Qt::LeftButton, Qt::MiddleButton})
        ChangeCals::MouseDownOnClose(button);
    EXPECT_EQ(m_exitStatus, std::nullopt);
    ChangeCals::MouseDownOnClose(Qt::RightButton);
    EXPECT_EQ(m_exitStatus, 0);
}

TEST_F(Closing, CloseButtonHidesWhileAnotherCalendarWindowIsOpen) {
    ChangeCals::LoadMonthly().Show();
    ChangeCals::LoadYear(Gregorian).Show();
    MonthlyWindow* const window = &ChangeCals::LoadMonthly();
    ChangeCals::CloseWindow(*window);
    EXPECT_FALSE(window->Visible());
    EXPECT_FALSE(window->IsUnloaded());
    EXPECT_EQ(&ChangeCals::LoadMonthly(), window);
    EXPECT_EQ(m_exitStatus, std::nullopt);
    EXPECT_EQ(yearTip(Gregorian), exitTip);
    EXPECT_TRUE(nothingSaved());
}

TEST_F(Closing, TheMoonWindowAloneDoesNotKeepTheProgramAlive) {
    ChangeCals::LoadMonthly().Show();
    ChangeCals::LoadMoon().Show();
    ChangeCals::CloseWindow(ChangeCals::LoadMonthly());
    EXPECT_EQ(m_exitStatus, 0);
    EXPECT_EQ(savedKeys().size(), 2 * mainWindowCount);
}

TEST_F(Closing, FrameCloseOfOneOfTwoLeavesExitOnTheOther) {
    ChangeCals::LoadMonthly().Show();
    ChangeCals::OpenYearWindow(Moslem);
    EXPECT_EQ(monthlyTip(), severalTip);
    EXPECT_EQ(yearTip(Moslem), severalTip);
    ChangeCals::LoadYear(Moslem).close();
    EXPECT_EQ(monthlyTip(), exitTip);
    EXPECT_EQ(m_exitStatus, std::nullopt);
}

TEST_F(Closing, FrameCloseUnloadsAndTheNextUseLoadsAfresh) {
    ChangeCals::LoadMonthly().Show();
    ChangeCals::OpenYearWindow(Moslem);
    QPointer<YearWindow> window = &ChangeCals::LoadYear(Moslem);
    window->close();
    EXPECT_EQ(ChangeCals::LoadedYear(Moslem), nullptr);
    EXPECT_NE(&ChangeCals::LoadYear(Moslem), window.data());
    processEvents();
    EXPECT_TRUE(window.isNull());
}

TEST_F(Closing, FrameCloseOfTheLastEndsWithoutSavingWhateverElseIsOpen) {
    ChangeCals::LoadMonthly().Show();
    ChangeCals::LoadMoon().Show();
    ChangeCals::LoadOptions().Show();
    ChangeCals::LoadAbout().Show();
    ChangeCals::LoadMonthly().close();
    EXPECT_EQ(m_exitStatus, 0);
    EXPECT_FALSE(ChangeCals::LoadMoon().Visible());
    EXPECT_FALSE(ChangeCals::LoadOptions().Visible());
    EXPECT_FALSE(ChangeCals::LoadAbout().Visible());
    EXPECT_TRUE(nothingSaved());
}

TEST_F(Closing, EndingHappensOnce) {
    ChangeCals::LoadMonthly().Show();
    ChangeCals::ExitProgram();
    m_exitStatus.reset();
    ChangeCals::LoadMonthly().close();
    ChangeCals::ExitProgram();
    EXPECT_EQ(m_exitStatus, std::nullopt);
}

TEST_F(Closing, WindowsAreToldWhatAPressDoesWhileTipsAreOffToo) {
    ShowTips = 0;
    ChangeCals::ShowMonthlyWindow();
    EXPECT_EQ(monthlyTip(), exitTip);
    ChangeCals::OpenYearWindow(Moslem);
    EXPECT_EQ(monthlyTip(), severalTip);
}

TEST_F(Closing, TipsFollowTheNumberOfOpenWindows) {
    ChangeCals::ShowMonthlyWindow();
    EXPECT_EQ(monthlyTip(), exitTip);
    ChangeCals::OpenYearWindow(Julian);
    EXPECT_EQ(monthlyTip(), severalTip);
    ChangeCals::CloseWindow(ChangeCals::LoadYear(Julian));
    EXPECT_EQ(monthlyTip(), exitTip);
    ChangeCals::LoadYear(Julian).ShowInFront();
    EXPECT_EQ(monthlyTip(), severalTip);
    ChangeCals::LoadYear(Julian).Hide();
    EXPECT_EQ(monthlyTip(), exitTip);
}

TEST_F(Closing, OnlyAWindowThatComesOrGoesChangesTheTips) {
    ChangeCals::ShowMonthlyWindow();
    static_cast<RecordingMonthly&>(ChangeCals::LoadMonthly()).record.closeTip.clear();
    QEvent other(QEvent::User);
    QCoreApplication::sendEvent(&ChangeCals::LoadMonthly(), &other);
    EXPECT_EQ(monthlyTip(), QString());
}

TEST_F(Closing, WindowsThatGoWithTheProgramLeaveTheTips) {
    ChangeCals::ShowMonthlyWindow();
    ChangeCals::OpenYearWindow(Moslem);
    ChangeCals::LeaveProgram(3);
    EXPECT_EQ(m_exitStatus, 3);
    EXPECT_FALSE(ChangeCals::LoadMonthly().Visible());
    EXPECT_EQ(monthlyTip(), severalTip);
    EXPECT_EQ(yearTip(Moslem), severalTip);
}

TEST_F(Closing, PositionsAreThoseOfTheFramesInTwips) {
    ChangeCals::LoadMonthly().Show();
    ChangeCals::LoadMonthly().move(100, 50);
    ChangeCals::ExitProgram();
    EXPECT_EQ(saved("Monthly/Left"), QStringLiteral("1500"));
    EXPECT_EQ(saved("Monthly/Top"), QStringLiteral("750"));
}

TEST_F(Closing, MinimisedWindowsKeepWhatWasReadAtStart) {
    FormTop(MoonWindowNumber) = 1234;
    FormLeft(MoonWindowNumber) = -77;
    ChangeCals::LoadMonthly().Show();
    ChangeCals::LoadMoon().Show();
    ChangeCals::LoadMoon().move(10, 10);
    ChangeCals::LoadMoon().showMinimized();
    ChangeCals::ExitProgram();
    EXPECT_EQ(saved("Moon/Top"), QStringLiteral("1234"));
    EXPECT_EQ(saved("Moon/Left"), QStringLiteral("-77"));
}

TEST_F(Closing, WindowsThatAreNotLoadedKeepTheirPlaceAndAreNotCreated) {
    FormTop(Jewish) = 300;
    FormLeft(Jewish) = 450;
    ChangeCals::LoadMonthly().Show();
    ChangeCals::ExitProgram();
    EXPECT_EQ(saved("Jewish/Top"), QStringLiteral("300"));
    EXPECT_EQ(saved("Jewish/Left"), QStringLiteral("450"));
    EXPECT_EQ(saved("Julian/Top"),
              QString::number(ChangeCals::PlaceOf(YearWindowNumber(Julian)).top.count));
    EXPECT_EQ(ChangeCals::LoadedWindow(MoonWindowNumber), nullptr);
}

TEST_F(Closing, APositionBeyond16BitsEndsWithAMessageAndSavesNothing) {
    ChangeCals::LoadYear(Jewish).SetCaption(QStringLiteral("The Jewish\nyear"));
    ChangeCals::LoadYear(Jewish).move(-2185, 10);
    ChangeCals::LoadMonthly().Show();
    ChangeCals::ExitProgram();
    EXPECT_EQ(m_exitStatus, 1);
    EXPECT_EQ(m_messages.take(), QStringList{QStringLiteral(
                                     "Overflow: the window “The Jewish\u240Ayear” stands too far "
                                     "out for its position to be stored. No position was "
                                     "saved.")});
    EXPECT_TRUE(nothingSaved());
}

TEST_F(Closing, TheLastPositionThatFitsIsSaved) {
    ChangeCals::LoadMonthly().Show();
    ChangeCals::LoadMonthly().move(2184, -2184);
    ChangeCals::ExitProgram();
    EXPECT_EQ(m_exitStatus, 0);
    EXPECT_EQ(saved("Monthly/Left"), QStringLiteral("32760"));
    EXPECT_EQ(saved("Monthly/Top"), QStringLiteral("-32760"));
}

TEST_F(Closing, OtherStoredKeysSurviveTheExit) {
    writeFile(settingsPath(), "[Startup]\nLanguage=German\n");
    ChangeCals::LoadMonthly().Show();
    ChangeCals::ExitProgram();
    EXPECT_EQ(saved("Startup/Language"), QStringLiteral("German"));
    EXPECT_EQ(savedKeys().size(), 2 * mainWindowCount + 1);
}

TEST_F(Closing, SettingsThatCannotBeWrittenAreToldOnceAndTheProgramEnds) {
    writeFile(m_folder.filePath(QStringLiteral("config")), "a file, not a folder");
    ChangeCals::LoadMonthly().Show();
    ChangeCals::ExitProgram();
    const QStringList messages = m_messages.take();
    ASSERT_EQ(messages.size(), 1);
    EXPECT_TRUE(messages.front().contains(settingsPath())) << messages.front().toStdString();
    EXPECT_EQ(m_exitStatus, 0);
}

TEST_F(Closing, EndingIsNotBegunAgainWhileItsMessageStands) {
    ChangeCals::LoadYear(Jewish).move(-2185, 10);
    ChangeCals::LoadMonthly().Show();
    bool again = false;
    const MessageShown endAgain([&again](QMessageBox&) {
        EXPECT_TRUE(ChangeCals::LoadMonthly().Visible());
        if (!std::exchange(again, true))
            ChangeCals::ExitProgram();
    });
    ChangeCals::ExitProgram();
    EXPECT_TRUE(again);
    EXPECT_EQ(m_messages.take().size(), 1);
    EXPECT_EQ(m_exitStatus, 1);
}

TEST_F(Closing, NothingEndsItAgainAfterTheLastFrameWasClosed) {
    ChangeCals::LoadMonthly().Show();
    ChangeCals::LoadMonthly().close();
    EXPECT_EQ(m_exitStatus, 0);
    EXPECT_TRUE(ChangeCals::IsLeaving());
    m_exitStatus.reset();
    ChangeCals::ExitProgram();
    EXPECT_EQ(m_exitStatus, std::nullopt);
    EXPECT_TRUE(nothingSaved());
}

TEST_F(Closing, PositionsAreSavedBeforeTheEnd) {
    bool saved = false;
    EndProgram = [this, &saved](int) { saved = QFile::exists(settingsPath()); };
    ChangeCals::LoadMonthly().Show();
    ChangeCals::ExitProgram();
    EXPECT_TRUE(saved);
}

TEST_F(Closing, AMainWindowIsNoneAsSoonAsItIsUnloaded) {
    ChangeCals::OpenYearWindow(Moslem);
    ChangeCals::LoadMonthly().Show();
    ChangeCals::LoadMonthly().close();
    EXPECT_EQ(ChangeCals::LoadedWindow(MonthlyWindowNumber), nullptr);
    ChangeCals::LoadMoon().Show();
    ChangeCals::LoadMoon().close();
    EXPECT_EQ(ChangeCals::LoadedWindow(MoonWindowNumber), nullptr);
}

} // namespace
