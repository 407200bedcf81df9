// SPDX-License-Identifier: MIT
#include "platform/gridaccessible.h"

#include "platform/flexgrid.h"
#include "platform/twips.h"
#include "support/platform_accessible.h"
#include "support/platform_test.h"

#include <QLineEdit>
#include <algorithm>

namespace {

using Told = AccessibleWatch::Told;

constexpr int rows = 4;
constexpr int columns = 3;

/// A title over all columns, a blank in the middle of the second row, days
/// elsewhere: 20, 30 and so on down the columns.
class AccessibleGrid : public PlatformTest {
protected:
    AccessibleGrid()
        : other(new QLineEdit(&window)),
          grid(new MSFlexGrid(QStringLiteral("MSFlexGrid1"), rows, columns, &window)),
          neighbour(new MSFlexGrid(QStringLiteral("MSFlexGrid2"), 2, 2, &window)) {
        window.resize(400, 300);
        grid->move(0, 50);
        neighbour->move(200, 50);
        grid->setAccessibleName(QStringLiteral("Month"));
        grid->setToolTip(QStringLiteral("Month"));
        for (MSFlexGrid* each : {grid, neighbour}) {
            each->SetSize(ToTwips(150), ToTwips(120));
            for (int row = 0; row < each->Rows(); ++row)
                each->SetRowHeight(row, ToTwips(20));
            for (int column = 0; column < each->Cols(); ++column)
                each->SetColWidth(column, ToTwips(30));
        }
        grid->SetAccessibleText([this](int row, int column) {
            const QString text = grid->TextMatrix(row, column);
            return row == 0 || text.isEmpty() ? QString() : spoken + text;
        });
        fill();
        QObject::connect(grid, &MSFlexGrid::MouseDown, grid, [this](Qt::MouseButton button) {
            presses.push_back({QPoint(grid->Col(), grid->Row()), button});
        });
    }

    void fill() {
        grid->SetMergeRow(0);
        for (int column = 0; column < columns; ++column) {
            grid->SetTextMatrix(0, column, QStringLiteral("May"));
            for (int row = 1; row < rows; ++row)
                grid->SetTextMatrix(row, column, QString::number(10 * (row + 1) + column));
        }
        grid->SetTextMatrix(1, 1, QString());
        neighbour->SetTextMatrix(0, 0, QStringLiteral("a"));
        neighbour->SetTextMatrix(1, 1, QStringLiteral("b"));
    }

    /// Moves the mark, as a refill does.
    void mark(MSFlexGrid& of, int row, int column) {
        of.SetRedraw(false);
        of.SetRow(row);
        of.SetCol(column);
        of.SetSelectedCell({row, column});
        of.SetRedraw(true);
    }

    void show() {
        showWithFocus(window, *other);
        processEvents();
    }

    QAccessibleInterface& cell(int row, int column) { return *accessibleCell(*grid, row, column); }

    QAccessible::State state(int row, int column) { return cell(row, column).state(); }

    QWidget window;
    QLineEdit* other;
    MSFlexGrid* grid;
    MSFlexGrid* neighbour;
    QString spoken = QStringLiteral("day ");
    std::vector<std::pair<QPoint, Qt::MouseButton>> presses;
};

TEST_F(AccessibleGrid, ACellHasANameAndNoOtherText) {
    ASSERT_NE(cell(1, 0).text(QAccessible::Name), QString());
    for (const auto kind : {QAccessible::Description, QAccessible::Value, QAccessible::Help})
        EXPECT_EQ(cell(1, 0).text(kind), QString()) << kind;
    EXPECT_EQ(cell(1, 0).childCount(), 0);
}

TEST_F(AccessibleGrid, IsAListOfTheCellsThatSaySomething) {
    QAccessibleInterface& list = accessible(*grid);
    EXPECT_EQ(list.role(), QAccessible::List);
    EXPECT_EQ(list.tableInterface(), nullptr) << "a tool would read whole rows";
    EXPECT_EQ(list.text(QAccessible::Name), QStringLiteral("Month"));
    EXPECT_EQ(list.text(QAccessible::Description), QString()) << "not the name once more";
    QStringList said;
    for (int i = 0; i < list.childCount(); ++i) {
        EXPECT_EQ(list.child(i)->role(), QAccessible::ListItem) << i;
        EXPECT_EQ(list.indexOfChild(list.child(i)), i);
        EXPECT_EQ(list.child(i)->parent(), &list);
        said.append(list.child(i)->text(QAccessible::Name));
    }
    EXPECT_EQ(said.join(u';'),
              QStringLiteral("day 20;day 30;day 40;day 31;day 41;day 22;day 32;day 42"));
    EXPECT_EQ(list.child(-1), nullptr);
    EXPECT_EQ(list.child(8), nullptr);
    EXPECT_EQ(accessibleCell(*grid, 0, 1), nullptr) << "the title";
    EXPECT_EQ(accessibleCell(*grid, 1, 1), nullptr) << "the blank";
    EXPECT_EQ(accessibleCell(*grid, 0, 3), nullptr) << "beside the grid";
    EXPECT_EQ(list.indexOfChild(&accessible(*other)), -1);
}

TEST_F(AccessibleGrid, CellsStandWhereTheyAreSeen) {
    show();
    const QPoint middle = grid->viewport()->mapToGlobal(QPoint(30 + 15, 2 * 20 + 10));
    EXPECT_EQ(cell(2, 1).window(), window.windowHandle());
    EXPECT_EQ(cell(2, 1).indexOfChild(&accessible(*other)), -1);
    EXPECT_TRUE(cell(2, 1).rect().contains(middle));
    EXPECT_EQ(accessible(*grid).childAt(middle.x(), middle.y()), &cell(2, 1));
    EXPECT_EQ(accessible(*grid).childAt(-5, -5), nullptr);
    EXPECT_FALSE(state(2, 1).invisible);
    grid->hide();
    EXPECT_TRUE(state(2, 1).invisible);
}

TEST_F(AccessibleGrid, TheMarkedCellIsSelected) {
    mark(*grid, 2, 1);
    EXPECT_TRUE(state(2, 1).selected);
    mark(*grid, 3, 0);
    EXPECT_FALSE(state(2, 1).selected);
    EXPECT_TRUE(state(3, 0).selected);
    EXPECT_TRUE(state(2, 1).selectable);
    EXPECT_TRUE(state(2, 1).focusable);
}

TEST_F(AccessibleGrid, TheCurrentCellHasTheFocusOfTheGrid) {
    mark(*grid, 2, 1);
    show();
    EXPECT_EQ(accessible(*grid).focusChild(), nullptr);
    EXPECT_FALSE(state(2, 1).focused);
    grid->setFocus();
    EXPECT_TRUE(state(2, 1).focused);
    EXPECT_FALSE(state(2, 0).focused);
    EXPECT_EQ(accessible(*grid).focusChild(), &cell(2, 1));
}

TEST_F(AccessibleGrid, PressingACellDoesWhatReturnDoes) {
    mark(*grid, 3, 2);
    show();
    const QString& press = QAccessibleActionInterface::pressAction();
    ASSERT_EQ(cell(2, 1).actionInterface()->actionNames().first(), press);
    EXPECT_EQ(cell(2, 1).actionInterface()->keyBindingsForAction(press),
              QStringList{QStringLiteral("Return")});
    EXPECT_EQ(cell(2, 1).actionInterface()->keyBindingsForAction(
                  QAccessibleActionInterface::setFocusAction()),
              QStringList());
    cell(2, 1).actionInterface()->doAction(press);
    EXPECT_EQ(presses.size(), 1U);
    EXPECT_EQ(presses.at(0), std::pair(QPoint(1, 2), Qt::LeftButton));
    EXPECT_TRUE(grid->hasFocus());
    grid->setEnabled(false);
    cell(3, 1).actionInterface()->doAction(press);
    EXPECT_EQ(presses.size(), 1U);
    EXPECT_TRUE(state(3, 1).disabled);
}

TEST_F(AccessibleGrid, ACellTakesTheFocusWhenAsked) {
    mark(*grid, 2, 1);
    show();
    cell(3, 2).actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_TRUE(grid->hasFocus());
    EXPECT_TRUE(state(3, 2).focused);
    EXPECT_EQ(presses.size(), 0U);
}

TEST_F(AccessibleGrid, SaysTheMarkedCellWhenItGetsTheFocus) {
    mark(*grid, 2, 1);
    show();
    AccessibleWatch watch;
    grid->setFocus();
    EXPECT_EQ(watch.take(QAccessible::Focus),
              (std::vector<Told>{{QAccessible::Focus, grid, QStringLiteral("Month")},
                                 {QAccessible::Focus, grid, QStringLiteral("day 31")}}));
    QTest::keyClick(grid, Qt::Key_Down);
    EXPECT_EQ(watch.take(QAccessible::Focus),
              (std::vector<Told>{{QAccessible::Focus, grid, QStringLiteral("day 41")}}));
    other->setFocus();
    grid->setFocus();
    EXPECT_EQ(watch.take(QAccessible::Focus).back(),
              (Told{QAccessible::Focus, grid, QStringLiteral("day 31")}));
    other->setFocus();
    grid->setFocus();
    EXPECT_EQ(watch.take(QAccessible::Focus).back(),
              (Told{QAccessible::Focus, grid, QStringLiteral("day 31")}))
        << "once more";
}

TEST_F(AccessibleGrid, APressThatBringsTheFocusIsSaidOnce) {
    mark(*grid, 2, 1);
    show();
    AccessibleWatch watch;
    const QPoint cell(30 + 15, 3 * 20 + 10);
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, cell);
    const std::vector<Told> told = watch.take(QAccessible::Focus);
    EXPECT_EQ(std::count(told.begin(), told.end(),
                         Told{QAccessible::Focus, grid, QStringLiteral("day 41")}),
              1);
    EXPECT_EQ(told.back(), (Told{QAccessible::Focus, grid, QStringLiteral("day 41")}));
}

TEST_F(AccessibleGrid, SaysNothingOfTheFocusWithoutHavingIt) {
    mark(*grid, 2, 1);
    mark(*neighbour, 0, 0);
    show();
    AccessibleWatch watch;
    mark(*grid, 3, 1);
    mark(*neighbour, 1, 1);
    EXPECT_EQ(watch.take(QAccessible::Focus), std::vector<Told>{});
    grid->setFocus();
    watch.take(QAccessible::Focus);
    mark(*neighbour, 0, 0);
    mark(*grid, 2, 2);
    EXPECT_EQ(watch.take(QAccessible::Focus),
              (std::vector<Told>{{QAccessible::Focus, grid, QStringLiteral("day 32")}}));
}

TEST_F(AccessibleGrid, SaysNothingOfTitlesAndBlanks) {
    mark(*grid, 2, 1);
    show();
    grid->setFocus();
    AccessibleWatch watch;
    QTest::keyClick(grid, Qt::Key_Up);
    QTest::keyClick(grid, Qt::Key_Up);
    EXPECT_EQ(watch.take(QAccessible::Focus), std::vector<Told>{});
}

TEST_F(AccessibleGrid, ACellThatSaysSomethingElseIsToldAgainAsAnotherEntry) {
    mark(*grid, 2, 1);
    show();
    AccessibleWatch watch;
    grid->setFocus();
    watch.take(QAccessible::Focus);
    const QAccessible::Id former = QAccessible::uniqueId(&cell(2, 1));
    grid->SetRedraw(true);
    EXPECT_EQ(watch.take(QAccessible::Focus), std::vector<Told>{});
    EXPECT_EQ(QAccessible::uniqueId(&cell(2, 1)), former);
    spoken = QStringLiteral("next year, day ");
    grid->SetRedraw(true);
    EXPECT_EQ(watch.take(QAccessible::Focus),
              (std::vector<Told>{{QAccessible::Focus, grid, QStringLiteral("next year, day 31")}}));
    EXPECT_NE(QAccessible::uniqueId(&cell(2, 1)), former) << "a tool tells no entry twice";
    other->setFocus();
    watch.take(QAccessible::Focus);
    spoken = QStringLiteral("day ");
    grid->SetRedraw(true);
    EXPECT_EQ(watch.take(QAccessible::Focus), std::vector<Told>{});
}

TEST_F(AccessibleGrid, ItsEntriesGoWithIt) {
    const QAccessible::Id entry = QAccessible::uniqueId(&cell(2, 1));
    ASSERT_NE(QAccessible::accessibleInterface(entry), nullptr);
    delete grid;
    EXPECT_EQ(QAccessible::accessibleInterface(entry), nullptr);
}

TEST_F(AccessibleGrid, WithoutWordsOfItsOwnItsTextsAreItsEntriesFromTheFirstRowOn) {
    QAccessibleInterface& list = accessible(*neighbour);
    ASSERT_EQ(list.childCount(), 2);
    EXPECT_EQ(list.child(0)->text(QAccessible::Name), QStringLiteral("a"));
    EXPECT_EQ(list.child(1)->text(QAccessible::Name), QStringLiteral("b"));
}

TEST_F(AccessibleGrid, AMarkThatMovesWhileAllTextsChangeIsToldAlone) {
    mark(*grid, 2, 1);
    show();
    AccessibleWatch watch;
    grid->setFocus();
    watch.take(QAccessible::Focus);
    spoken = QStringLiteral("next year, day ");
    mark(*grid, 3, 1);
    EXPECT_EQ(watch.take(QAccessible::Focus),
              (std::vector<Told>{{QAccessible::Focus, grid, QStringLiteral("next year, day 41")}}));
}

} // namespace
