// SPDX-License-Identifier: MIT
#include "platform/formaccessible.h"

#include "platform/buttonstack.h"
#include "platform/commandbutton.h"
#include "platform/form.h"
#include "platform/image.h"
#include "support/platform_accessible.h"
#include "support/platform_test.h"

#include <QLabel>

namespace {

class AccessibleForm : public PlatformTest {
protected:
    AccessibleForm() { form.SetCaption(QStringLiteral("Moon")); }

    QStringList children() {
        QStringList names;
        for (int i = 0; i < accessible(form).childCount(); ++i) {
            names.append(accessible(form).child(i)->text(QAccessible::Name));
            EXPECT_EQ(accessible(form).indexOfChild(accessible(form).child(i)), i);
        }
        return names;
    }

    Form form{QStringLiteral("frmMoon")};
};

TEST_F(AccessibleForm, IsAWindow) {
    EXPECT_EQ(accessible(form).role(), QAccessible::Window);
    EXPECT_EQ(accessibleName(form), QStringLiteral("Moon"));
    form.setWindowFlag(Qt::Dialog);
    EXPECT_EQ(accessible(form).role(), QAccessible::Dialog);
}

TEST_F(AccessibleForm, TellsTheControlsThatAreShownAndSaySomething) {
    auto* label = new QLabel(QStringLiteral("6.2"), &form);
    new QLabel(&form);
    new QFrame(&form);
    auto* emblem = new Image(QStringLiteral("Image1"), QStringLiteral("icon"), &form);
    EXPECT_EQ(children(), QStringList{QStringLiteral("6.2")});
    emblem->setAccessibleName(QStringLiteral("emblem"));
    EXPECT_EQ(children(), (QStringList{QStringLiteral("6.2"), QStringLiteral("emblem")}));
    label->hide();
    EXPECT_EQ(children(), QStringList{QStringLiteral("emblem")});
    EXPECT_EQ(accessible(form).child(1), nullptr);
    EXPECT_EQ(accessible(form).child(-1), nullptr);
}

TEST_F(AccessibleForm, AFrameIsToldForWhatIsInIt) {
    auto* frame = new QFrame(&form);
    new QLabel(QStringLiteral("6.2"), frame);
    EXPECT_EQ(accessible(form).childCount(), 1);
}

TEST_F(AccessibleForm, OfAStackOnlyTheButtonInFrontIsTold) {
    ButtonStack stack(QStringLiteral("Command2"),
                      {QStringLiteral("moon/phase0"), QStringLiteral("moon/phase1"),
                       QStringLiteral("moon/phase2")},
                      &form);
    for (CommandButton* button : stack.Buttons())
        button->setAccessibleName(button->objectName());
    form.show();
    EXPECT_EQ(children(), QStringList{QStringLiteral("Command2_0")});
    stack.BringToFront(2);
    EXPECT_EQ(children(), QStringList{QStringLiteral("Command2_2")});
    EXPECT_TRUE(stack.Buttons()[2]->isVisible());
}

} // namespace
