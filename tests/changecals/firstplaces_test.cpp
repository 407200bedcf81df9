// SPDX-License-Identifier: MIT
#include "changecals/firstplaces.h"

#include <gtest/gtest.h>

namespace {

constexpr int monthlyHeight = 400;

// The windows as a desktop with thin frames shows them: title and toolbar are a
// year window's upper 82 pixels, its selector lies in the left 73 of them.
constexpr int border = 2;
constexpr int title = 24;
constexpr QRect selector{5, 26, 68, 52};

class FirstPlacesOf : public testing::Test {
protected:
    void use(const QRect& desk) {
        m_desk = desk;
        m_places = FirstPlaces(desk, monthlyHeight);
    }

    QRect frame(int number) const {
        const Table<QSize, mainWindowCount> contents{{389, 518}, {389, 518},           {507, 518},
                                                     {389, 518}, {656, monthlyHeight}, {290, 309}};
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
        for (int c = 1; c <= calendarCount; ++c)
            EXPECT_FALSE(frame(c).intersects(titleOf(MonthlyWindowNumber))) << c;
    }

    QRect m_desk;
    Table<QPoint, mainWindowCount> m_places;
};

TEST_F(FirstPlacesOf, AWideScreenStandApart) {
    for (const QRect& desk : {QRect(0, 0, 1920, 1040), QRect(0, 30, 2560, 1410),
                              QRect(100, 50, 1722, 1000), QRect(0, 0, 3840, 2160)}) {
        use(desk);
        expectOnDesk();
        expectApart(mainWindowCount);
    }
}

TEST_F(FirstPlacesOf, AHighScreenStandApart) {
    for (const QRect& desk : {QRect(0, 0, 1600, 1170), QRect(0, 0, 1588, 1108)}) {
        use(desk);
        expectOnDesk();
        expectApart(mainWindowCount);
    }
}

TEST_F(FirstPlacesOf, ASmallScreenLetTitlesAndSelectorsBeSeen) {
    for (const QRect& desk :
         {QRect(0, 0, 1024, 738), QRect(0, 27, 1366, 741), QRect(0, 0, 1440, 870),
          QRect(0, 0, 1680, 1020), QRect(0, 0, 1280, 994)}) {
        use(desk);
        expectOnDesk();
        expectTitlesAndSelectorsSeen();
    }
}

TEST_F(FirstPlacesOf, AScreenOf1366LeaveTheMonthlyWindowFree) {
    use(QRect(0, 0, 1366, 728));
    for (int c = 1; c <= calendarCount; ++c)
        EXPECT_FALSE(frame(c).intersects(frame(MonthlyWindowNumber))) << c;
}

TEST_F(FirstPlacesOf, ATinyScreenBeginOnIt) {
    use(QRect(0, 0, 640, 480));
    for (int number = 1; number <= mainWindowCount; ++number)
        EXPECT_TRUE(m_desk.contains(m_places(number))) << number;
    expectTitlesAndSelectorsSeen();
}

TEST_F(FirstPlacesOf, TheEdgeOfWhatCanBeStoredFit) {
    for (const QRect& screen : {QRect(1700, 0, 3840, 2160), QRect(0, 1900, 1920, 1080)}) {
        use(screen & storableDesk);
        for (int number = 1; number <= mainWindowCount; ++number) {
            EXPECT_LE(m_places(number).x(), 2184) << number;
            EXPECT_LE(m_places(number).y(), 2184) << number;
        }
    }
}

// Counted out by hand, for windows with the frames that most desktops draw.
TEST_F(FirstPlacesOf, ThreeScreensAreTheseToThePixel) {
    const struct {
        QRect desk;
        Table<QPoint, mainWindowCount> places;
    } rows[] = {
        {{0, 0, 1920, 1040}, {{0, 436}, {401, 436}, {802, 436}, {1321, 436}, {0, 0}, {668, 0}}},
        {{0, 0, 1600, 1170}, {{668, 0}, {1069, 0}, {668, 554}, {1187, 554}, {0, 0}, {0, 436}}},
        {{0, 0, 1024, 738}, {{623, 144}, {539, 108}, {455, 72}, {371, 36}, {0, 0}, {722, 393}}}};
    for (const auto& row : rows) {
        use(row.desk);
        for (int number = 1; number <= mainWindowCount; ++number)
            EXPECT_EQ(m_places(number), row.places(number)) << row.desk.width() << " " << number;
    }
}

TEST(DeskOfFirstPlaces, IsThePrimaryMonitorsWhereTheMonthlyWindowFits) {
    EXPECT_EQ(DeskOfFirstPlaces({{100, 0, 668, 480}, {768, 0, 1920, 1080}}),
              QRect(100, 0, 668, 480));
}

TEST(DeskOfFirstPlaces, IsTheFirstWideOneWhereThePrimaryIsNarrow) {
    EXPECT_EQ(DeskOfFirstPlaces({{0, 0, 667, 900}, {667, 0, 600, 900}, {-1024, 0, 1024, 768}}),
              QRect(-1024, 0, 1024, 768));
}

TEST(DeskOfFirstPlaces, IsThePrimaryMonitorsWhereAllAreNarrow) {
    EXPECT_EQ(DeskOfFirstPlaces({{0, 0, 480, 640}, {480, 0, 600, 900}}), QRect(0, 0, 480, 640));
}

TEST(DeskOfFirstPlaces, IsOnlyWhatCanBeStored) {
    EXPECT_EQ(DeskOfFirstPlaces({{1000, 0, 7680, 4320}}), QRect(1000, 0, 1485, 2485));
    EXPECT_EQ(DeskOfFirstPlaces({{9000, 0, 1920, 1080}}), QRect(-2184, -2184, 4669, 4669));
}

} // namespace
