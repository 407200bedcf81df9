// SPDX-License-Identifier: MIT
#include "changecals/windowpositions.h"

#include "platform/program.h"
#include "platform/twips.h"
#include "support/recording_windows.h"
#include "support/widget_test.h"

#include <QScreen>

namespace {

class PositionsOfWindows : public WidgetTest {
protected:
    PositionsOfWindows() { useRecordingWindows(); }
};

TEST_F(PositionsOfWindows, AreTheStoredOnesWhereTheyAreOnTheDesktop) {
    const QSize screen = QGuiApplication::primaryScreen()->size();
    const int width = ToTwips(screen.width()).count;
    const int height = ToTwips(screen.height()).count;
    const MainWindowNumber julian = YearWindowNumber(Julian);
    const auto first = ChangeCals::PlaceOf(julian);
    const struct {
        int left, top;
        bool used;
    } rows[] = {{600, 300, true},         {-600, -300, true},      {width - 1, 0, true},
                {width, 0, false},        {0, height, false},      {0, height - 1, true},
                {noPosition, 300, false}, {600, noPosition, false}};
    for (const auto& row : rows) {
        FormLeft(Julian) = row.left;
        FormTop(Julian) = row.top;
        const auto place = ChangeCals::PlaceOf(julian);
        EXPECT_EQ(place.left, row.used ? Twips{row.left} : first.left)
            << row.left << " " << row.top;
        EXPECT_EQ(place.top, row.used ? Twips{row.top} : first.top) << row.left << " " << row.top;
    }
}

// Where the moon has no room below the monthly window, it stands above.
TEST_F(PositionsOfWindows, ReckonWithTheSizeOfAWindowThatIsPlaced) {
    ASSERT_EQ(QGuiApplication::primaryScreen()->geometry(), QRect(0, 0, 800, 800));
    EXPECT_EQ(ChangeCals::PlaceOf(MoonWindowNumber).top, Twips{6675});
    Form monthly(QStringLiteral("frmMonthlyCal"));
    monthly.resize(656, 450);
    ChangeCals::PlaceForm(monthly, MonthlyWindowNumber);
    EXPECT_EQ(monthly.pos(), QPoint(0, 314));
    EXPECT_EQ(ChangeCals::PlaceOf(MoonWindowNumber).top, Twips{0});
    Form smaller(QStringLiteral("frmMonthlyCal"));
    smaller.resize(656, 400);
    ChangeCals::PlaceForm(smaller, MonthlyWindowNumber);
    EXPECT_EQ(ChangeCals::PlaceOf(MoonWindowNumber).top, Twips{0}) << "the largest is known";
}

TEST_F(PositionsOfWindows, AreReadBackFromTheWindows) {
    ChangeCals::LoadMoon().move(33, -20);
    EXPECT_EQ(ChangeCals::ReadPositions(), nullptr);
    EXPECT_EQ(FormLeft(MoonWindowNumber), 495);
    EXPECT_EQ(FormTop(MoonWindowNumber), -300);
}

TEST_F(PositionsOfWindows, AreLeftAsTheyWereStoredWhereTheDesktopDoesNotTellThem) {
    HasWindowPositions = [] { return false; };
    ChangeCals::LoadYear(Moslem).move(2185, 10);
    ChangeCals::LoadMoon().move(33, -20);
    EXPECT_EQ(ChangeCals::ReadPositions(), nullptr);
    EXPECT_EQ(FormLeft(MoonWindowNumber), 32737);
}

TEST_F(PositionsOfWindows, TellTheWindowThatStandsTooFarOut) {
    const QPoint places[] = {{2185, 10}, {10, 2185}, {-2185, 10}, {10, -2185}};
    for (const QPoint& place : places) {
        ChangeCals::LoadYear(Moslem).move(place);
        EXPECT_EQ(ChangeCals::ReadPositions(), &ChangeCals::LoadYear(Moslem));
        EXPECT_EQ(FormTop(Julian), noPosition) << "nothing is taken over";
    }
}

} // namespace
