// SPDX-License-Identifier: MIT
#pragma once

#include "platform/combobox.h"
#include "support/platform_test.h"

#include <QAbstractItemView>
#include <QLineEdit>

class Combo : public PlatformTest {
protected:
    Combo() : other(new QLineEdit(&window)), list(new ComboBox(QStringLiteral("Combo1"), &window)) {
        window.resize(300, 200);
        list->setGeometry(10, 50, 80, 24);
        list->SetItems({QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")}, 0);
        QObject::connect(list, &ComboBox::Click, list, [this] { ++clicks; });
    }

    ~Combo() override { list->hidePopup(); }

    void show() { showWithFocus(window, *other); }

    void focusList() {
        list->setFocus();
        ASSERT_TRUE(waitUntil([this] { return list->hasFocus(); }));
    }

    bool isOpen() const { return list->view()->isVisible(); }

    void openByKey() {
        QTest::keyClick(list, Qt::Key_F4);
        ASSERT_TRUE(waitUntil([this] { return isOpen(); }));
    }

    void chooseByMouse(int position) {
        QAbstractItemView* view = list->view();
        const QRect entry = view->visualRect(view->model()->index(position, 0));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, entry.center());
        ASSERT_TRUE(waitUntil([this] { return !isOpen(); }));
    }

    /// The years 1..3000, filled in on use, with `chosen` shown.
    void offerYears(int chosen) {
        list->SetOnlyItem(QString::number(chosen));
        list->SetFiller([this, chosen] {
            ++fillings;
            return NumberedEntries(1, 3000, chosen);
        });
    }

    /// The numbers 1..366 of days, "1/366" and so on.
    void offerDays() {
        const auto entry = [](int day) { return QStringLiteral("%1/366").arg(day); };
        const ListEntries days = NumberedEntries(1, 366, 60, entry);
        list->SetItems(days.texts, days.chosen);
    }

    void type(const char* text) { QTest::keyClicks(list, QLatin1String(text)); }

    QWidget window;
    QLineEdit* other;
    ComboBox* list;
    int clicks = 0;
    int fillings = 0;
};
