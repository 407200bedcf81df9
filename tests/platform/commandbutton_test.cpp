// SPDX-License-Identifier: MIT
#include "platform/commandbutton.h"

#include "platform/buttons_test.h"
#include "support/paintsof.h"

#include <QEnterEvent>
#include <QProxyStyle>
#include <QStyle>
#include <QStyleFactory>
#include <memory>

namespace {

const QString closePicture = QStringLiteral("buttons/close");

class OneButton : public Buttons {
protected:
    OneButton() : button(new CommandButton(QStringLiteral("Command1_1"), closePicture, &window)) {
        QObject::connect(button, &CommandButton::MouseDown, button,
                         [this](Qt::MouseButton pressed) { presses.push_back(pressed); });
        QObject::connect(button, &CommandButton::clicked, button, [this] { ++clicks; });
    }

    CommandButton* button;
    std::vector<Qt::MouseButton> presses;
    int clicks = 0;
};

TEST_F(OneButton, HasItsNameSizeAndPicture) {
    EXPECT_EQ(button->objectName(), QStringLiteral("Command1_1"));
    EXPECT_EQ(button->size(), QSize(30, 30));
    EXPECT_EQ(button->iconSize(), QSize(24, 24));
    EXPECT_FALSE(button->icon().pixmap(CommandButton::pictureSide).isNull());
}

TEST_F(OneButton, EveryMouseButtonIsToldAtThePress) {
    show();
    for (const Qt::MouseButton pressed : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        presses.clear();
        QTest::mousePress(button, pressed);
        EXPECT_EQ(presses, std::vector<Qt::MouseButton>{pressed});
        EXPECT_EQ(clicks, 0) << "not before the release";
        QTest::mouseRelease(button, pressed);
        EXPECT_EQ(clicks, pressed == Qt::LeftButton ? 1 : 0);
        clicks = 0;
        EXPECT_EQ(presses.size(), 1U);
    }
}

TEST_F(OneButton, SpaceReturnAndEnterClick) {
    show();
    button->setFocus();
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        clicks = 0;
        QTest::keyClick(button, key);
        EXPECT_EQ(clicks, 1) << key;
    }
    EXPECT_EQ(presses.size(), 0U);
}

TEST_F(OneButton, DisabledOnesDoNothing) {
    show();
    button->setEnabled(false);
    click(button);
    QTest::keyClick(button, Qt::Key_Return);
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(presses.size(), 0U);
}

/// The colour in the middle of a button, where the strokes of a cross meet.
QColor middle(QWidget& button) {
    return button.grab().toImage().pixelColor(button.rect().center());
}

void pointAt(QWidget& widget) {
    QEnterEvent enter({}, {}, {});
    QApplication::sendEvent(&widget, &enter);
}

void pointElsewhere(QWidget& widget) {
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&widget, &leave);
}

TEST_F(OneButton, ItsCrossIsGreyAndRedUnderThePointer) {
    constexpr int grey = 80; // a saturation below it
    show();
    pointElsewhere(*button);
    EXPECT_LT(middle(*button).hsvSaturation(), grey);
    pointAt(*button);
    EXPECT_GT(middle(*button).hsvSaturation(), 2 * grey);
    EXPECT_EQ(middle(*button).hue() / 10, 0) << "red";
    button->setEnabled(false);
    EXPECT_LT(middle(*button).hsvSaturation(), grey) << "cannot be pressed";
    button->setEnabled(true);
    pointElsewhere(*button);
    EXPECT_LT(middle(*button).hsvSaturation(), grey);
}

TEST_F(OneButton, IsPaintedAnewUnderThePointerInAStyleThatHasNoHover) {
    const std::unique_ptr<QStyle> plain(QStyleFactory::create(QStringLiteral("Windows")));
    button->setStyle(plain.get());
    show();
    QTest::mouseMove(window.windowHandle(), window.rect().bottomRight());
    processEvents();
    const PaintsOf paints(*button);
    QTest::mouseMove(window.windowHandle(), button->geometry().center());
    processEvents();
    EXPECT_GT(paints.count, 0);
    delete button; // before its style
}

// The width of the cross that is drawn in it.
int pictureWidth(CommandButton& button) {
    const QImage image = button.grab().toImage();
    int left = image.width();
    int right = -1;
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            const QColor pixel = image.pixelColor(x, y);
            if (pixel.blue() > pixel.red() + 30) {
                left = std::min(left, x);
                right = std::max(right, x);
            }
        }
    }
    return right - left + 1;
}

TEST_F(OneButton, ItsPictureGrowsWithIt) {
    show();
    pointElsewhere(*button);
    EXPECT_NEAR(pictureWidth(*button), 20, 2);
    button->SetSide(60);
    EXPECT_EQ(button->size(), QSize(60, 60));
    EXPECT_NEAR(pictureWidth(*button), 40, 2);
    button->SetSide(10);
    EXPECT_EQ(button->size(), QSize(30, 30)) << "as small as it gets";
    EXPECT_NEAR(pictureWidth(*button), 20, 2);
}

TEST_F(OneButton, AClickTakesTheFocus) {
    show();
    click(button);
    EXPECT_TRUE(button->hasFocus());
}

TEST_F(OneButton, TabLeadsToIt) {
    show();
    QTest::keyClick(other, Qt::Key_Tab);
    EXPECT_TRUE(button->hasFocus());
}

TEST_F(OneButton, IsDownWhenItsPressIsTold) {
    bool wasDown = false;
    QObject::connect(button, &CommandButton::MouseDown, button,
                     [this, &wasDown] { wasDown = button->isDown(); });
    show();
    QTest::mousePress(button, Qt::LeftButton);
    EXPECT_TRUE(wasDown);
    QTest::mouseRelease(button, Qt::LeftButton);
}

/// A style in which a click on a button leaves the focus where it is.
class TabOnlyStyle : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override {
        if (hint == SH_Button_FocusPolicy)
            return static_cast<int>(Qt::TabFocus);
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }
};

TEST_F(OneButton, AClickTakesTheFocusWhateverTheStyleAsksFor) {
    const QString former = QApplication::style()->name();
    QApplication::setStyle(new TabOnlyStyle);
    const CommandButton another(QStringLiteral("Command1_2"), closePicture, nullptr);
    EXPECT_EQ(another.focusPolicy(), Qt::StrongFocus);
    QApplication::setStyle(former);
}

} // namespace
