// SPDX-License-Identifier: MIT
// How a year grid looks: the mark that moves, the pointer while a year is filled
// in, and what the other windows are told of who changed the day.
#include "yearcals/year_test.h"
#include "yearcals/yeargrid.h"

#include <QAbstractItemModel>
#include <QCursor>
#include <QGuiApplication>
#include <QSignalSpy>
#include <utility>

namespace {

const QColor red(255, 0, 0);
const QColor white(255, 255, 255);
const QColor navy(0, 0, 128);
const QColor lightCyan(192, 255, 255);

/// What is drawn in the inner part of a cell, where no focus outline stands.
struct Drawn {
    QColor ground;
    bool isMixed = true; ///< every pixel from ground and ink, as edges of letters are
    double inkiest = 0;  ///< the ink's share in the pixel with most of it
    double weight = 0;   ///< the ink's area in pixels
};

double distance(const QColor& a, const QColor& b) {
    return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) +
           std::abs(a.blue() - b.blue());
}

class YearGridLook : public YearTest {
protected:
    static Drawn drawn(int c, GridPlace cell, const QColor& ink) {
        const QRect place = grid(c).visualRect(grid(c).model()->index(cell.row, cell.column));
        const QImage image = grid(c).viewport()->grab(place).toImage();
        Drawn result;
        result.ground = image.pixelColor(2, 2);
        for (int y = 2; y < image.height() - 2; ++y) {
            for (int x = 2; x < image.width() - 2; ++x) {
                const QColor pixel = image.pixelColor(x, y);
                const double whole = distance(ink, result.ground);
                const double share = distance(pixel, result.ground) / whole;
                result.isMixed = result.isMixed && share + distance(pixel, ink) / whole < 1.02;
                result.inkiest = std::max(result.inkiest, share);
                result.weight += share;
            }
        }
        return result;
    }
};

TEST_F(YearGridLook, TheMarkedDayIsWhiteOnRedAndHeavierThanBefore) {
    open(Gregorian);
    const GridPlace friday = cellOf(Gregorian, 11, 20);
    const GridPlace monday = cellOf(Gregorian, 11, 23);
    // The thin strokes of some fonts are nowhere as wide as a pixel.
    constexpr double almostPure = 0.7;
    const Drawn plain = drawn(Gregorian, monday, navy);
    EXPECT_EQ(plain.ground, lightCyan);
    EXPECT_TRUE(plain.isMixed);
    EXPECT_GT(plain.inkiest, almostPure);
    const Drawn marked = drawn(Gregorian, friday, white);
    EXPECT_EQ(marked.ground, red);
    EXPECT_TRUE(marked.isMixed);
    EXPECT_GT(marked.inkiest, almostPure);

    press(Gregorian, monday);
    selector(Gregorian).setFocus(); // no outline
    const Drawn nowMarked = drawn(Gregorian, monday, white);
    EXPECT_EQ(nowMarked.ground, red);
    EXPECT_TRUE(nowMarked.isMixed);
    EXPECT_GT(nowMarked.inkiest, almostPure);
    EXPECT_GT(nowMarked.weight, 1.15 * plain.weight);
    const Drawn former = drawn(Gregorian, friday, navy);
    EXPECT_EQ(former.ground, lightCyan);
    EXPECT_TRUE(former.isMixed);
    EXPECT_GT(former.inkiest, almostPure);
    EXPECT_LT(1.15 * former.weight, marked.weight);
}

void expectLook(const GridCell& cell, bool bold, int ink) {
    EXPECT_EQ(cell.bold, bold);
    EXPECT_EQ(cell.fore, ink);
}

TEST_F(YearGridLook, OnlyTheMarkedDayAndTheTitlesAreBold) {
    constexpr int whiteInk = 0xFFFFFF;
    constexpr int navyInk = 0x800000;
    constexpr int brownInk = 0x404080;
    open(Jewish);
    for (const Date& day : {Date{1, 1, 5787}, Date{14, 6, 5787}, Date{3, 2, 5788}}) {
        SCOPED_TRACE(day);
        setDate(Jewish, day.day, day.month, day.year);
        ChangeCals::ChangeCal(Jewish);
        const GridPlace marked = cellOf(Jewish, day.month, day.day);
        for (int row = 0; row < 32; ++row) {
            for (int column = 1; column < 19; ++column) {
                const bool isMark = GridPlace{row, column} == marked;
                const bool isTitle = row % 8 == 0;
                expectLook(cellAt(Jewish, row, column), isMark || isTitle,
                           isTitle  ? brownInk
                           : isMark ? whiteInk
                                    : navyInk);
            }
        }
    }
}

/// The pointers that a grid was seen to change under.
class PointerWatch {
public:
    explicit PointerWatch(MSFlexGrid& grid) {
        QObject::connect(grid.model(), &QAbstractItemModel::dataChanged, &m_context, [this] {
            const QCursor* pointer = QGuiApplication::overrideCursor();
            m_seen.append(pointer != nullptr ? pointer->shape() : Qt::ArrowCursor);
        });
    }

    /// Whether the grid changed since the last call, and only under this one.
    bool SawOnly(Qt::CursorShape pointer) {
        const QList<Qt::CursorShape> seen = std::exchange(m_seen, {});
        return !seen.isEmpty() && seen.count(pointer) == seen.size();
    }

private:
    QObject m_context;
    QList<Qt::CursorShape> m_seen;
};

TEST_F(YearGridLook, ThePointerIsAnHourglassWhileAYearIsFilledInAndOnlyThen) {
    for (const int c : {Julian, Gregorian, Jewish, Moslem}) {
        open(c);
        PointerWatch pointers(grid(c));
        goTo(2461365 + 400);
        EXPECT_TRUE(pointers.SawOnly(Qt::WaitCursor)) << c;
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        goTo(2461365 + 401);
        EXPECT_TRUE(pointers.SawOnly(Qt::ArrowCursor)) << c;
        goTo(2461365);
    }
}

TEST_F(YearGridLook, TheEndsOfAYearBelongToIt) {
    open(Gregorian);
    PointerWatch pointers(grid(Gregorian));
    for (const int day : {2461406, 2461042}) { // 31 December and 1 January
        goTo(day);
        EXPECT_TRUE(pointers.SawOnly(Qt::ArrowCursor)) << day;
    }
    for (const int day : {2461041, 2461407}) {
        goTo(day);
        EXPECT_TRUE(pointers.SawOnly(Qt::WaitCursor)) << day;
        goTo(2461365);
        pointers.SawOnly(Qt::WaitCursor);
    }
}

/// Tells which window was said to ask, once a change of the day arrives.
class AskedMonthly : public RecordingMonthly {
public:
    static inline std::vector<int> asking;
    void SetCal(int pane) override {
        if (pane == 1)
            asking.push_back(CurrentWindow);
    }
};

class AskingWindow : public YearTest {
protected:
    AskingWindow() {
        auto factories = recordingFactories();
        factories.monthly = [] { return new AskedMonthly; };
        factories.year = [](int c) { return new frmYearCal(c); };
        ChangeCals::BeginRun(factories);
        ChangeCals::LoadMonthly().Show();
        AskedMonthly::asking.clear();
    }

    static std::vector<int> take() { return std::exchange(AskedMonthly::asking, {}); }
};

TEST_F(AskingWindow, IsTheOneInWhichTheDayWasChosenByWhateverMeans) {
    for (const int c : {Julian, Gregorian, Jewish, Moslem}) {
        const std::vector<int> once{c};
        open(c);
        press(c, cellOf(c, CurDate(c, Month), CurDate(c, Day) == 3 ? 4 : 3));
        EXPECT_EQ(take(), once) << "press " << c;
        click(&command(c, NextYear));
        EXPECT_EQ(take(), once) << "next " << c;
        click(&command(c, PreviousYear));
        EXPECT_EQ(take(), once) << "previous " << c;
        QTest::keyClick(&grid(c), Qt::Key_PageUp);
        EXPECT_EQ(take(), once) << "page " << c;
        selector(c).setFocus();
        QTest::keyClick(&selector(c), Qt::Key_Up);
        EXPECT_EQ(take(), once) << "selector " << c;
        click(&command(c, TodayButton));
        EXPECT_EQ(take(), once) << "today " << c;
        EXPECT_EQ(CurrentWindow, 0);
    }
}

TEST_F(YearGridLook, TheJewishWindowIsLeftAloneWhileItIsMinimisedOrMaximised) {
    setDate(Jewish, 1, 1, 5784);
    ChangeCals::ChangeCal(Jewish);
    open(Jewish);
    YearWindow& window = year(Jewish);
    for (const auto state : {Qt::WindowMinimized, Qt::WindowMaximized}) {
        window.setWindowState(state);
        processEvents();
        const QSize before = window.size();
        setDate(Jewish, 1, 1, 5785);
        ChangeCals::ChangeCal(Jewish);
        processEvents();
        EXPECT_EQ(window.size(), before) << state;
        EXPECT_EQ(window.windowState() & state, state);
        EXPECT_EQ(grid(Jewish).width(), 387) << "the grid is as wide as its year all the same";
        setDate(Jewish, 1, 1, 5784);
        ChangeCals::ChangeCal(Jewish);
        window.setWindowState(Qt::WindowNoState);
        EXPECT_TRUE(waitUntil([&window] { return window.width() == 507; }));
    }
}

TEST_F(YearGridLook, TheJewishGridTellsOfItsSizeWhenItChanges) {
    setDate(Jewish, 1, 1, 5784);
    ChangeCals::ChangeCal(Jewish);
    open(Jewish);
    QSignalSpy fitted(child<YearGrid>(year(Jewish), "MSFlexGrid1"), &YearGrid::Fitted);
    const struct {
        int year;
        int told;
    } rows[] = {{5785, 1}, {5786, 1}, {5787, 2}, {5786, 3}};
    for (const auto& row : rows) {
        setDate(Jewish, 1, 1, row.year);
        ChangeCals::ChangeCal(Jewish);
        EXPECT_EQ(fitted.count(), row.told) << row.year;
    }
}

TEST_F(YearGridLook, OnlyTheRightButtonOnCloseEndsTheProgram) {
    ChangeCals::LoadMonthly().Show();
    open(Moslem);
    QTest::mousePress(&command(Moslem, CloseButton), Qt::MiddleButton);
    EXPECT_EQ(m_exitStatus, std::nullopt);
    EXPECT_TRUE(year(Moslem).Visible());
}

} // namespace
