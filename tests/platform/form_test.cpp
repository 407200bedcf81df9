// SPDX-License-Identifier: MIT
#include "platform/form.h"

#include "platform/image.h"
#include "platform/message.h"
#include "platform/pointer.h"
#include "platform/program.h"
#include "support/widget_test.h"

#include <QDir>
#include <QMessageBox>
#include <QPointer>

namespace {

class RecordingForm : public Form {
public:
    using Form::Form;
    int unloads = 0;
    bool visibleAtUnload = false;

protected:
    void Form_Unload() override {
        ++unloads;
        visibleAtUnload = isVisible();
    }
};

class Forms : public WidgetTest {
protected:
    Forms() : form(new RecordingForm(QStringLiteral("frmTest"))) { form->SetSize(3000, 1500); }
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
    form->SetSize(1515, 1500);
    EXPECT_EQ(form->size(), QSize(101, 100));
}

TEST_F(Forms, PlacesAreThoseOfTheFrameInTwips) {
    form->Move(300, 450);
    EXPECT_EQ(form->pos(), QPoint(20, 30));
    show();
    EXPECT_EQ(form->Left(), 300);
    EXPECT_EQ(form->Top(), 450);
    form->Move(1507, 1508);
    EXPECT_EQ(form->Left(), 1500);
    EXPECT_EQ(form->Top(), 1515);
    form->Move(-150, -300);
    EXPECT_EQ(form->pos(), QPoint(-10, -20));
    EXPECT_EQ(form->Left(), -150);
    EXPECT_EQ(form->Top(), -300);
}

TEST_F(Forms, KeepTheirPlaceWhileHidden) {
    form->Move(600, 450);
    show();
    form->Hide();
    EXPECT_FALSE(form->Visible());
    EXPECT_EQ(form->Left(), 600);
    show();
    EXPECT_EQ(form->Left(), 600);
    EXPECT_EQ(form->Top(), 450);
}

TEST_F(Forms, CaptionsAreShownAsTheyStand) {
    form->SetCaption(QStringLiteral("a & b <i>c</i>"));
    EXPECT_EQ(form->windowTitle(), QStringLiteral("a & b <i>c</i>"));
    EXPECT_EQ(form->objectName(), QStringLiteral("frmTest"));
    EXPECT_EQ(form->layoutDirection(), Qt::LeftToRight);
    EXPECT_FALSE(form->windowIcon().isNull());
}

TEST_F(Forms, StatesAreNormalMinimisedMaximised) {
    show();
    EXPECT_EQ(form->WindowState(), Form::Normal);
    form->showMinimized();
    EXPECT_TRUE(waitUntil([this] { return form->WindowState() == Form::Minimised; }));
    EXPECT_TRUE(form->Visible()) << "minimised windows are visible";
    form->SetNormal();
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

TEST_F(Forms, ClosingUnloadsOnce) {
    show();
    EXPECT_TRUE(form->close());
    EXPECT_FALSE(form->Visible());
    EXPECT_TRUE(form->IsUnloaded());
    EXPECT_EQ(form->unloads, 1);
    EXPECT_FALSE(form->visibleAtUnload) << "gone from the screen when it is told";
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

TEST_F(Forms, PicturesFillTheirControl) {
    Image image(QStringLiteral("Image1"), QStringLiteral("icon"), nullptr);
    image.resize(64, 64);
    QWidget blank;
    blank.resize(64, 64);
    EXPECT_NE(image.grab().toImage(), blank.grab().toImage());
}

/// Keeps what the message boxes look like as they are shown.
class BoxWatch : public QObject {
public:
    BoxWatch() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* object, QEvent* event) override {
        auto* box = qobject_cast<QMessageBox*>(object);
        if (box != nullptr && event->type() == QEvent::Show) {
            titles.append(box->windowTitle());
            buttons = box->standardButtons();
        }
        return false;
    }

    QStringList titles;
    QMessageBox::StandardButtons buttons;
};

class Messages : public WidgetTest {};

TEST_F(Messages, ShowTheirTextAsItStands) {
    const QString text = QStringLiteral("<b>bold</b> & more\r\n\r\nline");
    MsgBox(text);
    EXPECT_EQ(m_messages.take(), QStringList{text});
}

TEST_F(Messages, HaveTheProductsTitleAndOneButton) {
    BoxWatch watch;
    MsgBox(QStringLiteral("text"));
    EXPECT_EQ(watch.titles, QStringList{QStringLiteral("Orvalen Years Calendar")});
    EXPECT_EQ(watch.buttons, QMessageBox::Ok);
    m_messages.take();
}

TEST_F(Messages, AreWindowsOfTheOneInFront) {
    Form form(QStringLiteral("frmTest"));
    form.Show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    MsgBox(QStringLiteral("text"));
    EXPECT_EQ(m_messages.take().size(), 1);
    EXPECT_TRUE(form.Visible());
}

class Pointer : public WidgetTest {};

TEST_F(Pointer, TheHourglassIsShownForAsLongAsItLives) {
    {
        const HourglassPointer outer;
        ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
        { const HourglassPointer inner; }
        ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    }
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

class Program : public WidgetTest {};

TEST_F(Program, ItsFilesLieInItsFolder) {
    const QString name = QStringLiteral("Moon.bmp");
    EXPECT_EQ(ProgramFile(name), QDir::toNativeSeparators(programPath(name)));
    SetProgramFolder({});
    EXPECT_EQ(ProgramFolder(), QCoreApplication::applicationDirPath());
}

TEST_F(Program, ItsEndHasAStatus) {
    EndProgram(1);
    EXPECT_EQ(m_exitStatus, 1);
}

} // namespace
