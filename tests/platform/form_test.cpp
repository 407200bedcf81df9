// SPDX-License-Identifier: MIT
#include "platform/form.h"

#include "support/platform_test.h"

#include <QAccessible>
#include <QPointer>
#include <QWindow>

namespace {

class RecordingForm : public Form {
public:
    using Form::Form;
    int unloads = 0;
    bool visibleAtUnload = false;
    int raises = 0;
    bool shownForTheKeyboard = false;
    bool minimisedWhenShown = false;
    bool inSightWhenRaised = false;
    bool unloadedWhenHidden = false;
    QSize baseSizeWhenResized;

protected:
    bool event(QEvent* event) override {
        if (event->type() == QEvent::Show) {
            shownForTheKeyboard = !testAttribute(Qt::WA_ShowWithoutActivating);
            minimisedWhenShown = isMinimized();
        }
        if (event->type() == QEvent::ZOrderChange) {
            ++raises;
            inSightWhenRaised = isVisible();
        }
        if (event->type() == QEvent::Hide)
            unloadedWhenHidden = IsUnloaded();
        if (event->type() == QEvent::Resize && windowHandle() != nullptr)
            baseSizeWhenResized = windowHandle()->baseSize();
        return Form::event(event);
    }

    void Form_Unload() override {
        ++unloads;
        visibleAtUnload = isVisible();
    }
};

class Forms : public PlatformTest {
protected:
    Forms() : form(new RecordingForm(QStringLiteral("frmTest"))) { form->SetSize({200, 100}); }
    ~Forms() override { delete form; }

    void show() {
        form->Show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    }

    QPointer<RecordingForm> form;
};

TEST_F(Forms, SizesAreThoseOfTheContentsInTwips) {
    EXPECT_EQ(form->size(), QSize(200, 100));
    show();
    EXPECT_EQ(form->size(), QSize(200, 100));
    form->SetSize({101, 100});
    EXPECT_EQ(form->size(), QSize(101, 100));
}

TEST_F(Forms, PlacesAreThoseOfTheFrameInTwips) {
    form->Move({300}, {450});
    EXPECT_EQ(form->pos(), QPoint(20, 30));
    show();
    EXPECT_EQ(form->Left(), Twips{300});
    EXPECT_EQ(form->Top(), Twips{450});
    form->Move({1507}, {1508});
    EXPECT_EQ(form->Left(), Twips{1500});
    EXPECT_EQ(form->Top(), Twips{1515});
    form->Move({-150}, {-300});
    EXPECT_EQ(form->pos(), QPoint(-10, -20));
    EXPECT_EQ(form->Left(), Twips{-150});
    EXPECT_EQ(form->Top(), Twips{-300});
}

TEST_F(Forms, KeepTheirPlaceWhileHidden) {
    form->Move({600}, {450});
    show();
    form->Hide();
    EXPECT_FALSE(form->Visible());
    EXPECT_EQ(form->Left(), Twips{600});
    show();
    EXPECT_EQ(form->Left(), Twips{600});
    EXPECT_EQ(form->Top(), Twips{450});
}

TEST_F(Forms, OfferNoMaximising) {
    EXPECT_FALSE(form->windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
    EXPECT_TRUE(form->windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
    EXPECT_TRUE(form->windowFlags().testFlag(Qt::WindowCloseButtonHint));
}

TEST_F(Forms, CountStepsOfSizeFromTheirSize) {
    show();
    form->SetSize({101, 100});
    EXPECT_EQ(form->windowHandle()->baseSize(), QSize(101, 100));
    EXPECT_EQ(form->baseSizeWhenResized, QSize(101, 100)) << "not only afterwards";
}

TEST_F(Forms, CaptionsAreShownAsTheyStand) {
    form->SetCaption(QStringLiteral("a & b <i>c</i>"));
    EXPECT_EQ(form->windowTitle(), QStringLiteral("a & b <i>c</i>"));
    EXPECT_EQ(form->objectName(), QStringLiteral("frmTest"));
    EXPECT_EQ(form->layoutDirection(), Qt::LeftToRight);
    EXPECT_FALSE(form->windowIcon().isNull());
}

TEST_F(Forms, AreWindowsAndDialogsForAssistiveTools) {
    form->SetCaption(QStringLiteral("Test window"));
    show();
    QAccessibleInterface* window = QAccessible::queryAccessibleInterface(form);
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->role(), QAccessible::Window);
    EXPECT_EQ(window->text(QAccessible::Name), QStringLiteral("Test window"));
    RecordingForm dialog(QStringLiteral("frmDialog"));
    dialog.setWindowFlags(Qt::Dialog);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&dialog)->role(), QAccessible::Dialog);
}

TEST_F(Forms, HaveTheirNameAsTheirRoleInASession) {
    EXPECT_EQ(form->windowRole(), QStringLiteral("frmTest"));
}

TEST_F(Forms, StatesAreNormalMinimisedMaximised) {
    show();
    EXPECT_EQ(form->WindowState(), Form::Normal);
    form->showMinimized();
    EXPECT_TRUE(waitUntil([this] { return form->WindowState() == Form::Minimised; }));
    EXPECT_TRUE(form->Visible()) << "minimised windows are visible";
    form->setWindowState(Qt::WindowNoState);
    EXPECT_TRUE(waitUntil([this] { return form->WindowState() == Form::Normal; }));
    form->showMaximized();
    EXPECT_TRUE(waitUntil([this] { return form->WindowState() == Form::Maximised; }));
}

TEST_F(Forms, ShowingBringsAMinimisedOneBack) {
    show();
    form->showMinimized();
    ASSERT_TRUE(waitUntil([this] { return form->WindowState() == Form::Minimised; }));
    form->Show();
    EXPECT_TRUE(waitUntil([this] { return form->WindowState() == Form::Normal; }));
    EXPECT_TRUE(form->Visible());
    EXPECT_TRUE(QTest::qWaitForWindowActive(form));
}

TEST_F(Forms, ShowingBringsToTheFront) {
    show();
    RecordingForm second(QStringLiteral("frmSecond"));
    second.Show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&second));
    form->Show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(form));
}

TEST_F(Forms, ShowingInFrontRaisesOneThatIsOpen) {
    show();
    form->raises = 0;
    form->ShowInFront();
    EXPECT_EQ(form->raises, 1);
}

TEST_F(Forms, ClosingUnloadsOnce) {
    show();
    EXPECT_TRUE(form->close());
    EXPECT_FALSE(form->Visible());
    EXPECT_TRUE(form->IsUnloaded());
    EXPECT_EQ(form->unloads, 1);
    EXPECT_FALSE(form->visibleAtUnload) << "gone from the screen when it is told";
    EXPECT_TRUE(form->unloadedWhenHidden);
    form->close();
    form->Unload();
    EXPECT_EQ(form->unloads, 1);
    processEvents();
    EXPECT_TRUE(form.isNull()) << "destroyed when its events are done";
}

TEST_F(Forms, UnloadingIsWhatClosingDoes) {
    show();
    form->Unload();
    EXPECT_FALSE(form->Visible());
    EXPECT_EQ(form->unloads, 1);
    processEvents();
    EXPECT_TRUE(form.isNull());
}

TEST_F(Forms, HidingDoesNotUnload) {
    show();
    form->Hide();
    processEvents();
    ASSERT_FALSE(form.isNull());
    EXPECT_EQ(form->unloads, 0);
    EXPECT_FALSE(form->IsUnloaded());
}

TEST_F(Forms, OnlyShowAsksForTheKeyboard) {
    show();
    EXPECT_TRUE(form->shownForTheKeyboard);
    form->Hide();
    form->ShowInFront();
    EXPECT_FALSE(form->shownForTheKeyboard);
    EXPECT_TRUE(form->inSightWhenRaised);
    form->Hide();
    form->Show();
    EXPECT_TRUE(form->shownForTheKeyboard);
}

TEST_F(Forms, KeepTheirSidesInAProgramThatReadsFromTheRight) {
    const Qt::LayoutDirection former = QGuiApplication::layoutDirection();
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(Form(QStringLiteral("frmOther")).layoutDirection(), Qt::LeftToRight);
    QGuiApplication::setLayoutDirection(former);
}

TEST_F(Forms, OneThatWasHiddenMinimisedIsShownInItsOrdinaryState) {
    show();
    form->showMinimized();
    ASSERT_TRUE(waitUntil([this] { return form->WindowState() == Form::Minimised; }));
    form->Hide();
    form->Show();
    EXPECT_FALSE(form->minimisedWhenShown);
}

} // namespace
