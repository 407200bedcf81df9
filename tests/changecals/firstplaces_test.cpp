// SPDX-License-Identifier: MIT
#include "changecals/firstplaces.h"

#include <gtest/gtest.h>

namespace {

const WindowSizes contents{{389, 518}, {389, 518}, {507, 518}, {389, 518}, {656, 400}, {290, 309}};

// The windows as a desktop with thin frames shows them: title and toolbar are a
// year window's upper 82 pixels, its selector lies in the left 73 of them.
constexpr int border = 2;
constexpr int title = 24;
constexpr QRect selector{5, 26, 68, 52};

class FirstPlacesOf : public testing::Test {
protected:
    void use(const QRect& desk) {
        m_desk = desk;
        m_places = FirstPlaces(desk, contents);
    }

    QRect frame(int number) const {
        return {m_places(number), contents(number) + QSize(2 * border, title + border)};
    }

    QRect titleOf(int number) const { return {m_places(number), QSize(selector.right(), title)}; }
    QRect selectorOf(int c) const { return selector.translated(m_places(c)); }

    void expectOnDesk() const {
        for (int number = 1; number <= mainWindowCount; ++number)
            EXPECT_TRUE(m_desk.contains(frame(number))) << number;
    }

    void expectApart(int windows) const {
        for (int one = 1; one <= windows; ++one) {
            for (int other = one + 1; other <= windows; ++other)
                EXPECT_FALSE(frame(one).intersects(frame(other))) << one << " " << other;
        }
    }

    /// The first calendar's window is in front, as after opening all four.
    void expectTitlesAndSelectorsSeen() const {
        for (int behind = 2; behind <= calendarCount; ++behind) {
            for (int before = 1; before < behind; ++before) {
                EXPECT_FALSE(frame(before).intersects(titleOf(behind))) << before << behind;
                EXPECT_FALSE(frame(before).intersects(selectorOf(behind))) << before << behind;
            }
        }
    }

    /// No year window lies over the monthly window's title, nor over the moon.
    void expectOthersSeen() const {
        for (int c = 1; c <= calendarCount; ++c) {
            EXPECT_FALSE(frame(c).intersects(titleOf(MonthlyWindowNumber))) << c;
            EXPECT_FALSE(frame(c).intersects(frame(MoonWindowNumber))) << c;
        }
    }

    /// With frames as thick as they are thought to be.
    void expectInTheMiddle() const {
        QRect all;
        for (int number = 1; number <= mainWindowCount; ++number)
            all |= QRect(m_places(number), contents(number) + QSize(12, 36));
        EXPECT_NEAR(all.left() - m_desk.left(), m_desk.right() - all.right(), 1);
        EXPECT_NEAR(all.top() - m_desk.top(), m_desk.bottom() - all.bottom(), 1);
    }

    QRect m_desk;
    Table<QPoint, mainWindowCount> m_places;
};

TEST_F(FirstPlacesOf, AWideScreenStandApart) {
    for (const QRect& desk :
         {QRect(0, 0, 1920, 1040), QRect(0, 30, 2560, 1410), QRect(100, 50, 1722, 1000)}) {
        use(desk);
        expectOnDesk();
        expectApart(mainWindowCount);
        expectInTheMiddle();
    }
}

TEST_F(FirstPlacesOf, AHighScreenStandApart) {
    for (const QRect& desk : {QRect(0, 0, 1600, 1170), QRect(0, 0, 1588, 1108)}) {
        use(desk);
        expectOnDesk();
        expectApart(mainWindowCount);
        expectInTheMiddle();
    }
}

TEST_F(FirstPlacesOf, ASmallScreenLetTitlesAndSelectorsBeSeen) {
    for (const QRect& desk :
         {QRect(0, 0, 1024, 768), QRect(0, 27, 1024, 738), QRect(0, 0, 1280, 720),
          QRect(0, 27, 1366, 741), QRect(0, 0, 1440, 870), QRect(0, 0, 1280, 994)}) {
        use(desk);
        expectOnDesk();
        expectTitlesAndSelectorsSeen();
        expectOthersSeen();
    }
}

TEST_F(FirstPlacesOf, AScreenOf800AreOnIt) {
    use(QRect(0, 0, 800, 600));
    expectOnDesk();
    expectTitlesAndSelectorsSeen();
}

// The moon may lie over the monthly window's title and emblems, 72 pixels with the title.
TEST_F(FirstPlacesOf, AScreenOf1280LeaveAllControlsOfTheMonthlyWindowFree) {
    for (const QRect& desk : {QRect(0, 0, 1280, 720), QRect(0, 0, 1366, 728)}) {
        use(desk);
        const QRect controls = frame(MonthlyWindowNumber).adjusted(0, 72, 0, 0);
        EXPECT_FALSE(frame(MoonWindowNumber).intersects(controls));
        for (int c = 1; c <= calendarCount; ++c)
            EXPECT_FALSE(frame(c).intersects(frame(MonthlyWindowNumber))) << c;
        expectInTheMiddle();
    }
}

// What would be further right could not be stored.
TEST_F(FirstPlacesOf, AVeryWideScreenStandApartAsNearTheMiddleAsCanBeStored) {
    use(QRect(0, 0, 3840, 2160));
    expectOnDesk();
    expectApart(mainWindowCount);
    EXPECT_EQ(m_places(Julian), QPoint(763, 1021));
    EXPECT_EQ(m_places(Moslem), QPoint(2084, 1021));
}

TEST_F(FirstPlacesOf, ATinyScreenBeginOnIt) {
    use(QRect(0, 0, 640, 480));
    for (int number = 1; number <= mainWindowCount; ++number)
        EXPECT_TRUE(m_desk.contains(m_places(number))) << number;
    expectTitlesAndSelectorsSeen();
}

TEST_F(FirstPlacesOf, TheEdgeOfWhatCanBeStoredFit) {
    for (const QRect& screen : {QRect(1700, 0, 3840, 2160), QRect(0, 1900, 1920, 1080)}) {
        use(screen);
        for (int number = 1; number <= mainWindowCount; ++number) {
            EXPECT_LE(m_places(number).x(), 2184) << number;
            EXPECT_LE(m_places(number).y(), 2184) << number;
        }
    }
}

// Counted out by hand, for windows with the frames that most desktops draw.
TEST_F(FirstPlacesOf, SixScreensAreTheseToThePixel) {
    const struct {
        QRect desk;
        Table<QPoint, mainWindowCount> places;
    } rows[] = {
        {{0, 0, 1920, 1040},
         {{99, 461}, {500, 461}, {901, 461}, {1420, 461}, {475, 25}, {1143, 25}}},
        {{0, 0, 1600, 1170}, {{674, 31}, {1075, 31}, {674, 585}, {1193, 585}, {6, 31}, {6, 467}}},
        {{0, 0, 1024, 738}, {{589, 83}, {589, 0}, {505, 83}, {505, 0}, {0, 302}, {0, 0}}},
        {{0, 0, 1024, 781}, {{589, 83}, {589, 0}, {505, 83}, {505, 0}, {0, 0}, {0, 436}}},
        {{0, 0, 640, 480}, {{252, 0}, {168, 0}, {84, 0}, {0, 0}, {0, 44}, {0, 0}}},
        {{0, 0, 640, 400}, {{252, 0}, {168, 0}, {84, 0}, {0, 0}, {0, 0}, {0, 0}}}};
    for (const auto& row : rows) {
        use(row.desk);
        for (int number = 1; number <= mainWindowCount; ++number)
            EXPECT_EQ(m_places(number), row.places(number)) << row.desk.width() << " " << number;
    }
}

TEST(DeskOfFirstPlaces, IsThePrimaryMonitorsWhereTheMonthlyWindowFits) {
    EXPECT_EQ(DeskOfFirstPlaces({{100, 0, 668, 480}, {768, 0, 1920, 1080}}, contents),
              QRect(100, 0, 668, 480));
}

TEST(DeskOfFirstPlaces, IsTheFirstWideOneWhereThePrimaryIsNarrow) {
    EXPECT_EQ(
        DeskOfFirstPlaces({{0, 0, 667, 900}, {667, 0, 600, 900}, {-1024, 0, 1024, 768}}, contents),
        QRect(-1024, 0, 1024, 768));
}

TEST(DeskOfFirstPlaces, IsThePrimaryMonitorsWhereAllAreNarrow) {
    EXPECT_EQ(DeskOfFirstPlaces({{0, 0, 480, 640}, {480, 0, 600, 900}}, contents),
              QRect(0, 0, 480, 640));
}

TEST(DeskOfFirstPlaces, IsOneWherePositionsCanBeStored) {
    EXPECT_EQ(DeskOfFirstPlaces({{1000, 0, 7680, 4320}}, contents), QRect(1000, 0, 7680, 4320));
    EXPECT_EQ(DeskOfFirstPlaces({{9000, 0, 1920, 1080}}, contents),
              QRect(-2184, -2184, 4669, 4669));
}

// 436 and 736 pixels do not fit below one another; the cascade is 1187 by 819.
TEST_F(FirstPlacesOf, AScreenTooLowForOneWindowAloneLetsThemOverlap) {
    WindowSizes sizes = contents;
    sizes(Julian) = QSize(389, 700);
    EXPECT_EQ(FirstPlaces({0, 0, 1920, 1040}, sizes)(Julian), QPoint(1118, 193));
}

TEST_F(FirstPlacesOf, AHighScreenHaveTheirLowerRowBelowTheJulianWindow) {
    WindowSizes sizes = contents;
    sizes(Gregorian) = QSize(389, 500);
    EXPECT_EQ(FirstPlaces({0, 0, 1600, 1170}, sizes)(Jewish), QPoint(674, 585));
}

} // namespace
