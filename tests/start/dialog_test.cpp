// SPDX-License-Identifier: MIT
#include "start/dialog.h"

#include "support/widget_test.h"

#include <QKeyEvent>
#include <QScreen>

namespace {

class PlacedDialog : public Dialog {
public:
    PlacedDialog() : Dialog(QStringLiteral("frmTest")) {
        resize(301, 200);
        Place();
    }

    /// Whether it has a use for a key.
    bool takes(Qt::Key key) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(this, &press);
        return press.isAccepted();
    }

    int accepted = 0;

protected:
    void Accept() override { ++accepted; }
};

class Dialogs : public WidgetTest {};

TEST_F(Dialogs, StandInTheMiddleAndAThirdDown) {
    ASSERT_EQ(QGuiApplication::primaryScreen()->geometry(), QRect(0, 0, 800, 800));
    const PlacedDialog dialog;
    EXPECT_EQ(dialog.pos(), QPoint(249, 200));
    EXPECT_EQ(dialog.Top(), Twips{3000});
}

TEST_F(Dialogs, AcceptByBothReturnKeysAndLeaveOtherKeysAlone) {
    PlacedDialog dialog;
    EXPECT_TRUE(dialog.takes(Qt::Key_Return));
    EXPECT_EQ(dialog.accepted, 1);
    EXPECT_TRUE(dialog.takes(Qt::Key_Enter));
    EXPECT_EQ(dialog.accepted, 2);
    EXPECT_FALSE(dialog.takes(Qt::Key_Space));
    EXPECT_EQ(dialog.accepted, 2);
}

} // namespace
