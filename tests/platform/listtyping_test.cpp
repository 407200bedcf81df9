// SPDX-License-Identifier: MIT
#include "platform/combobox_test.h"
#include "platform/listtyping.h"

#include <QShortcut>
#include <QStyleHints>
#include <utility>

namespace {

/// A list that keeps what each choice said: the entry, and from where it is measured.
class TypedNumber : public Combo {
protected:
    TypedNumber() {
        QObject::connect(list, &ComboBox::Click, list, [this] {
            told += list->Text().section(u' ', 0, 0);
            from.push_back(list->Origin());
        });
        list->SetOrigin([this] { return origin; });
    }

    void offer(int first, int last, const QString& rest = {}) {
        const ListEntries numbers = NumberedEntries(
            first, last, last, [&rest](int number) { return QString::number(number) + rest; });
        list->SetItems(numbers.texts, numbers.chosen);
        showList();
    }

    void showList() {
        show();
        focusList();
    }

    /// As a desktop sends a key, with its time in milliseconds.
    void typeAt(quint64 time, char digit) {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_0 + digit - '0', Qt::NoModifier,
                        QString(QLatin1Char(digit)));
        event.setTimestamp(time);
        QCoreApplication::sendEvent(list, &event);
    }

    QStringList takeTold() { return std::exchange(told, {}); }

    static QStringList choices(const char* texts) {
        return QString::fromLatin1(texts).split(u' ', Qt::SkipEmptyParts);
    }

    QStringList told;
    std::vector<int> from;
    int origin = 0;
};

TEST_F(TypedNumber, EachDigitIsAChoice) {
    offer(1, 3000);
    type("2028");
    EXPECT_EQ(told, choices("2 20 202 2028"));
}

TEST_F(TypedNumber, ANumberThatIsNoEntryYetIsShownNowhere) {
    offer(3761, 6761);
    type("5");
    type("7");
    type("8");
    EXPECT_EQ(list->Text(), QStringLiteral("6761"));
    EXPECT_EQ(told, QStringList());
    type("7");
    EXPECT_EQ(told, choices("5787"));
    EXPECT_EQ(m_beeps, 0);
}

TEST_F(TypedNumber, TheEntryOfANumberIsTheWholeNumbers) {
    offer(1, 366, QStringLiteral("/366"));
    type("366");
    EXPECT_EQ(told, choices("3/366 36/366 366/366"));
}

TEST_F(TypedNumber, ADigitWithWhichNoEntryGoesOnIsRefusedWithABeep) {
    offer(1, 12, QStringLiteral("/12  Month"));
    type("0");
    EXPECT_EQ(m_beeps, 1);
    EXPECT_EQ(list->ListIndex(), 11);
    type("13");
    EXPECT_EQ(m_beeps, 2);
    type("2");
    EXPECT_EQ(takeTold(), choices("1/12 12/12"));
    type("1");
    EXPECT_EQ(m_beeps, 3);
    EXPECT_EQ(list->ListIndex(), 11);
    EXPECT_EQ(told, QStringList());
}

TEST_F(TypedNumber, ADigitNeverReachesTheToolkitsSearch) {
    list->SetItems(choices("one two 2x"), 0);
    showList();
    for (const auto modifier : {Qt::NoModifier, Qt::ControlModifier, Qt::AltModifier})
        QTest::keyClick(list, '9', modifier);
    EXPECT_EQ(m_beeps, 3);
    QTest::keyClick(list, Qt::Key_T);
    EXPECT_EQ(told, choices("two")) << "a search that had begun with 9 would find nothing";
}

TEST_F(TypedNumber, ChoicesAreMeasuredFromWhereTheTypingBegan) {
    QObject::connect(list, &ComboBox::Click, list, [this] { origin = list->ListIndex(); });
    origin = 500;
    offer(1, 3000);
    type("2028");
    EXPECT_EQ(from, (std::vector<int>{500, 500, 500, 500}));
    EXPECT_EQ(list->Origin(), 2027);
    QTest::keyClick(list, Qt::Key_Down);
    type("19");
    EXPECT_EQ(from, (std::vector<int>{500, 500, 500, 500, 2027, 2028, 2028}));
}

TEST_F(TypedNumber, AChoiceBesideTheTypingIsMeasuredFromWhereItIs) {
    offer(1, 3000);
    type("2");
    origin = 7;
    Q_EMIT list->activated(40);
    EXPECT_EQ(from, (std::vector<int>{0, 7}));
}

TEST_F(TypedNumber, ANumberThatIsNoEntryYetIsMeasuredFromItsFirstDigit) {
    origin = 500;
    offer(3761, 6761);
    type("5787");
    EXPECT_EQ(from, std::vector<int>{500});
}

// What goes on, and what begins anew

TEST_F(TypedNumber, DigitsGoOnWithinTheTimeOfTheToolkitsOwnLists) {
    const auto interval = quint64(QGuiApplication::styleHints()->keyboardInputInterval());
    ASSERT_GT(interval, 0U);
    offer(1, 3000);
    typeAt(5000, '2');
    typeAt(5000 + interval, '0');
    typeAt(5000 + 2 * interval, '3');
    EXPECT_EQ(takeTold(), choices("2 20 203"));
    typeAt(5001 + 3 * interval, '1');
    EXPECT_EQ(told, choices("1"));
}

TEST_F(TypedNumber, ARefusedDigitCountsAsTime) {
    const auto interval = quint64(QGuiApplication::styleHints()->keyboardInputInterval());
    offer(1, 12);
    typeAt(5000, '1');
    typeAt(5000 + interval, '9');
    typeAt(5000 + 2 * interval, '2');
    EXPECT_EQ(told, choices("1 12"));
}

TEST_F(TypedNumber, AClockThatBeginsAnewBeginsANumberAnew) {
    offer(1, 3000);
    typeAt(0xFFFFFFF0, '2');
    typeAt(5, '3');
    EXPECT_EQ(told, choices("2 3"));
}

TEST_F(TypedNumber, TheListThatAChoiceHasShortenedIsFilledForTheNextDigit) {
    QObject::connect(list, &ComboBox::Click, list, [this] { offerYears(list->Text().toInt()); });
    offerYears(2024);
    showList();
    type("2028");
    EXPECT_EQ(told, choices("2 20 202 2028"));
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ(list->Text(), QStringLiteral("2029"));
}

TEST_F(TypedNumber, ShiftAndTheKeypadBelongToTyping) {
    offer(1, 3000);
    type("20");
    QTest::keyClick(list, Qt::Key_ScrollLock);
    QTest::keyClick(list, Qt::Key_Shift, Qt::ShiftModifier);
    QTest::keyClick(list, Qt::Key_3, Qt::ShiftModifier);
    QTest::keyClick(list, Qt::Key_1, Qt::KeypadModifier);
    EXPECT_EQ(list->Text(), QStringLiteral("2031"));
}

TEST_F(TypedNumber, KeysThatLeadToDigitsAreKeptFromTheToolkit) {
    ListTyping typing(*list);
    const auto takes = [&typing](Qt::Key key) {
        return typing.TakesKey(QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier));
    };
    for (const Qt::Key key : {Qt::Key_Shift, Qt::Key_ScrollLock, Qt::Key_AltGr})
        EXPECT_TRUE(takes(key)) << key;
    EXPECT_FALSE(takes(Qt::Key_Left));
}

TEST_F(TypedNumber, ChoicesAreMeasuredFromNothingWhereNobodySaysFromWhere) {
    EXPECT_EQ(ListTyping(*list).Origin(), 0);
}

TEST_F(TypedNumber, WhatStandsBehindANumberMayBeTyped) {
    list->SetItems(choices("0.6 1.6 6.6 10.6"), 2);
    showList();
    type("10.6");
    EXPECT_EQ(list->Text(), QStringLiteral("10.6"));
    EXPECT_EQ(m_beeps, 0);
}

TEST_F(TypedNumber, EverythingElseBeginsAnew) {
    const std::vector<std::pair<const char*, std::function<void()>>> others{
        {"a key", [this] { QTest::keyClick(list, Qt::Key_Left); }},
        {"a key that does nothing", [this] { QTest::keyClick(list, Qt::Key_Escape); }},
        {"a letter", [this] { QTest::keyClick(list, Qt::Key_M); }},
        {"a command", [this] { QTest::keyClick(list, Qt::Key_T, Qt::ControlModifier); }},
        {"a command without Ctrl", [this] { QTest::keyClick(list, Qt::Key_F1); }},
        {"the wheel", [this] { turnWheel(*list); }},
        {"a press", [this] { QTest::mousePress(list, Qt::RightButton); }},
        {"the focus",
         [this] {
             other->setFocus();
             list->setFocus();
         }},
        {"another choice", [this] { ++origin; }},
    };
    // Their keys are the window's: the list never gets them.
    const QShortcut today(Qt::CTRL | Qt::Key_T, &window);
    const QShortcut about(Qt::Key_F1, &window);
    offer(1, 3000);
    for (const auto& [what, act] : others) {
        SCOPED_TRACE(what);
        list->SetListIndex(2499);
        type("2");
        act();
        takeTold();
        type("7");
        EXPECT_EQ(takeTold(), choices("7"));
    }
}

} // namespace
