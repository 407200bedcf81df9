// SPDX-License-Identifier: MIT
#include "platform/spokenanswer.h"

#include "platform/combobox.h"
#include "platform/flexgrid.h"
#include "platform/form.h"
#include "support/platform_accessible.h"
#include "support/platform_test.h"

#include <QPushButton>

namespace {

using Told = AccessibleWatch::Told;

class TalkingForm : public Form {
public:
    TalkingForm() : Form(QStringLiteral("frmTalking")) {}
    QString Answer() const override { return QStringLiteral("the day"); }
};

class Answers : public PlatformTest {
protected:
    Answers()
        : list(new ComboBox(QStringLiteral("Combo1"), &window)),
          button(new QPushButton(&window)),
          grid(new MSFlexGrid(QStringLiteral("MSFlexGrid1"), 2, 2, &window)) {
        list->SetItems({QStringLiteral("2025"), QStringLiteral("2026"), QStringLiteral("2027")}, 0);
        button->move(0, 50);
        grid->move(0, 100);
        showWithFocus(window, *list);
        processEvents();
    }

    std::vector<Told> of(const char* text) {
        return {{QAccessible::Focus, &window, QLatin1String(text)}};
    }

    /// Answers the user so often, and gives what was told.
    static std::vector<QAccessible::Id> answer(int times) {
        const AccessibleWatch active;
        static std::vector<QAccessible::Id> told;
        told.clear();
        QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
            if (event->type() == QAccessible::Focus)
                told.push_back(event->uniqueId());
        });
        for (int time = 0; time < times; ++time) {
            AnswerUser();
            processEvents();
        }
        QAccessible::installUpdateHandler(nullptr);
        return told;
    }

    TalkingForm window;
    ComboBox* list;
    QPushButton* button;
    MSFlexGrid* grid;
};

TEST_F(Answers, AListSaysEachEntryThatIsChosenInIt) {
    AccessibleWatch watch;
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ(watch.take(QAccessible::Focus), of("2026"));
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ(watch.take(QAccessible::Focus), of("2027"));
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ(watch.take(QAccessible::Focus), std::vector<Told>{}) << "nothing has changed";
}

TEST_F(Answers, AreGivenOnceForAllThatAChangeDoes) {
    QObject::connect(list, &ComboBox::Click, &window, [this] {
        AnswerUser();
        list->SetOnlyItem(QStringLiteral("2030"));
        AnswerUser();
    });
    AccessibleWatch watch;
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ(watch.take(QAccessible::Focus), of("2030"));
}

TEST_F(Answers, TheWindowSpeaksForAControlThatCannot) {
    button->setFocus();
    AccessibleWatch watch;
    AnswerUser();
    EXPECT_EQ(watch.take(QAccessible::Focus), of("the day"));
}

TEST_F(Answers, AGridSpeaksForItself) {
    grid->setFocus();
    AccessibleWatch watch;
    AnswerUser();
    EXPECT_EQ(watch.take(QAccessible::Focus), std::vector<Told>{});
}

TEST_F(Answers, AFocusThatMovesIsAnswerEnough) {
    AccessibleWatch watch;
    AnswerUser();
    button->setFocus();
    EXPECT_EQ(watch.take(QAccessible::Focus),
              (std::vector<Told>{{QAccessible::Focus, button, QString()}}));
}

TEST_F(Answers, AreGivenToNobodyWhoListensOnlyLater) {
    AnswerUser();
    AccessibleWatch watch;
    EXPECT_EQ(watch.take(QAccessible::Focus), std::vector<Told>{});
}

// A tool passes over what has no place, and tells no entry twice.
TEST_F(Answers, AreAnEntryOfTheWindowEachAnother) {
    const auto told = answer(2);
    ASSERT_EQ(told.size(), 2U);
    EXPECT_NE(told[0], told[1]);
    QAccessibleInterface* entry = QAccessible::accessibleInterface(told[1]);
    EXPECT_EQ(entry->role(), QAccessible::ListItem);
    EXPECT_TRUE(entry->state().focusable);
    EXPECT_TRUE(entry->state().focused);
    EXPECT_EQ(entry->childCount(), 0);
    EXPECT_EQ(entry->parent(), &accessible(window));
    EXPECT_GE(accessible(window).indexOfChild(entry), 0);
    EXPECT_EQ(entry->indexOfChild(&accessible(*list)), -1);
    button->setFocus();
    EXPECT_FALSE(entry->state().focused);
}

TEST_F(Answers, TheLastAndTheOneBeforeAreKept) {
    const auto told = answer(4);
    ASSERT_EQ(told.size(), 4U);
    EXPECT_EQ(QAccessible::accessibleInterface(told[0]), nullptr);
    EXPECT_EQ(QAccessible::accessibleInterface(told[1]), nullptr);
    EXPECT_NE(QAccessible::accessibleInterface(told[2]), nullptr);
    EXPECT_NE(QAccessible::accessibleInterface(told[3]), nullptr);
}

} // namespace
