// SPDX-License-Identifier: MIT
#include "start/dialog.h"

#include "support/widget_test.h"

#include <QScreen>

namespace {

class PlacedDialog : public Dialog {
public:
    PlacedDialog() : Dialog(QStringLiteral("frmTest")) {
        resize(301, 200);
        Place();
    }

protected:
    void Accept() override {}
};

class Dialogs : public WidgetTest {};

TEST_F(Dialogs, StandInTheMiddleAndAThirdDown) {
    ASSERT_EQ(QGuiApplication::primaryScreen()->geometry(), QRect(0, 0, 800, 800));
    const PlacedDialog dialog;
    EXPECT_EQ(dialog.pos(), QPoint(249, 200));
    EXPECT_EQ(dialog.Top(), Twips{3000});
}

} // namespace
