// SPDX-License-Identifier: MIT
#include "platform/message.h"

#include "platform/form.h"
#include "platform/pictures.h"
#include "platform/pointer.h"
#include "support/messageshown.h"
#include "support/platform_test.h"

#include <QAccessible>
#include <QGridLayout>
#include <vector>

namespace {

/// Keeps what the message boxes look like as they are shown.
struct BoxWatch {
    QStringList titles;
    QMessageBox::StandardButtons buttons;
    QAccessible::Role role = QAccessible::NoRole;
    QImage icon;
    int width = 0;
    int margins = 0;
    QSize titleRoom; ///< what the layout keeps for the title

    MessageShown watch{[this](QMessageBox& box) {
        titles.append(box.windowTitle());
        buttons = box.standardButtons();
        role = QAccessible::queryAccessibleInterface(&box)->role();
        icon = box.windowIcon().pixmap(32).toImage();
        width = box.width();
        const QMargins free = box.layout()->contentsMargins();
        margins = free.left() + free.right();
        titleRoom = box.layout()->itemAt(box.layout()->count() - 1)->sizeHint();
    }};
};

class Messages : public PlatformTest {};

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

TEST_F(Messages, AreAlertsWithTheProgramsIcon) {
    BoxWatch watch;
    MsgBox(QStringLiteral("text"));
    EXPECT_EQ(watch.role, QAccessible::AlertMessage);
    EXPECT_EQ(watch.icon, Picture(QStringLiteral("icon")).pixmap(32).toImage());
    m_messages.take();
}

TEST_F(Messages, AreClosedByTheKeysThatCloseWindows) {
    for (const Qt::Key key : {Qt::Key_W, Qt::Key_Q}) {
        m_messages.AnswerBy(Qt::CTRL | key);
        MsgBox(QStringLiteral("text"));
        EXPECT_EQ(m_messages.take().size(), 1) << "closed at once";
    }
}

// The title bar's own font and its four pictures are the desktop's, so this is
// what is usual.
TEST_F(Messages, AreWideEnoughForTheirTitle) {
    BoxWatch watch;
    MsgBox(QStringLiteral("."));
    QFont titleFont = QApplication::font();
    titleFont.setBold(true);
    const int title =
        QFontMetrics(titleFont).horizontalAdvance(QStringLiteral("Orvalen Years Calendar"));
    EXPECT_EQ(watch.titleRoom, QSize(title + 4 * 24, 0));
    EXPECT_GE(watch.width, watch.titleRoom.width());
    EXPECT_LE(watch.width, watch.titleRoom.width() + watch.margins) << "and no wider";
    m_messages.take();
}

TEST_F(Messages, HaveTheRoomForTheirTitleInOneRowBelowAllColumns) {
    QRect room; // in columns and rows
    QSize all;
    const MessageShown watch([&](QMessageBox& box) {
        auto* layout = qobject_cast<QGridLayout*>(box.layout());
        ASSERT_NE(layout, nullptr);
        int row = 0;
        int column = 0;
        int height = 0;
        int width = 0;
        layout->getItemPosition(layout->count() - 1, &row, &column, &height, &width);
        room = QRect(column, row, width, height);
        all = QSize(layout->columnCount(), layout->rowCount());
    });
    MsgBox(QStringLiteral("text"));
    EXPECT_EQ(room, QRect(0, all.height() - 1, all.width(), 1));
    EXPECT_EQ(m_messages.take().size(), 1);
}

TEST_F(Messages, TwoTextsStandWithAnEmptyLineBetween) {
    EXPECT_EQ(WithEmptyLine(QStringLiteral("a"), QStringLiteral("b")),
              QStringLiteral("a\r\n\r\nb"));
}

TEST_F(Messages, ForeignTextsAreToldOnOneLineWithAllThatTheyHold) {
    using namespace std::string_literals;
    const struct {
        std::u16string text;
        std::u16string told;
    } rows[] = {{u"", u""},
                {u"a b; c=1", u"a b; c=1"},
                {u"Русский 中 𐐀", u"Русский 中 𐐀"},
                {u"a\nb\r\tc", u"a\u240Ab\u240D\u2409c"},
                {u"a\0b"s, u"a\u2400b"},
                {u"\u007F\u0085\u00A0", u"\uFFFD\uFFFD\uFFFD"},
                {u"a\u2028b\u2029\u202E\u200B", u"a\uFFFDb\uFFFD\uFFFD\uFFFD"},
                {std::u16string(60, u'x'), std::u16string(60, u'x')},
                {std::u16string(61, u'x'), std::u16string(60, u'x') + u'\u2026'},
                {std::u16string(4000, u'\n'), std::u16string(60, u'\u240A') + u'\u2026'}};
    for (const auto& row : rows)
        EXPECT_EQ(::Told(QString::fromStdU16String(row.text)).toStdU16String(), row.told);
}

class MessageOwners : public PlatformTest {};

TEST_F(MessageOwners, AMessageBelongsToTheWindowInFront) {
    Form first(QStringLiteral("frmFirst"));
    Form second(QStringLiteral("frmSecond"));
    const QWidget* owner = nullptr;
    const MessageShown watch([&](const QMessageBox& box) { owner = box.parentWidget(); });
    for (Form* front : {&first, &second, &first}) {
        front->Show();
        front->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(front));
        MsgBox(QStringLiteral("text"));
        EXPECT_EQ(owner, front);
        EXPECT_EQ(m_messages.take(), QStringList{QStringLiteral("text")});
    }
}

TEST_F(MessageOwners, WithNoWindowInFrontItBelongsToNone) {
    std::vector<const QWidget*> owners;
    const MessageShown watch([&](const QMessageBox& box) { owners.push_back(box.parentWidget()); });
    MsgBox(QStringLiteral("text"));
    EXPECT_EQ(owners, std::vector<const QWidget*>{nullptr});
    EXPECT_EQ(m_messages.take().size(), 1);
}

TEST_F(Messages, AreShownWithTheUsualPointerAlsoAmidWork) {
    const PointerShape work(Qt::WaitCursor);
    Qt::CursorShape shape = Qt::BlankCursor;
    const MessageShown watch(
        [&shape](QMessageBox&) { shape = QGuiApplication::overrideCursor()->shape(); });
    MsgBox(QStringLiteral("text"));
    EXPECT_EQ(shape, Qt::ArrowCursor);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    EXPECT_EQ(m_messages.take().size(), 1);
}

TEST_F(Messages, HaveATextThatTakesNeitherMouseNorKeys) {
    Qt::TextInteractionFlags flags = Qt::TextEditorInteraction;
    const MessageShown watch([&flags](QMessageBox& box) { flags = box.textInteractionFlags(); });
    MsgBox(QStringLiteral("text"));
    EXPECT_EQ(flags, Qt::NoTextInteraction);
    EXPECT_EQ(m_messages.take().size(), 1);
}

} // namespace
