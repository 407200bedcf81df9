// SPDX-License-Identifier: MIT
// A control is seen in a theme that forces black or white windows when a line across
// its edge meets a colour that stands out from the window.
#include "platform/controloutlines.h"

#include "platform/combobox.h"
#include "platform/commandbutton.h"
#include "support/contrast.h"
#include "support/platform_test.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOption>
#include <memory>

namespace {

struct Theme {
    const char* name;
    Qt::GlobalColor ground;
    Qt::GlobalColor ink;
};

void PrintTo(const Theme& theme, std::ostream* out) {
    *out << theme.name;
}

QPalette colorsOf(const Theme& theme) {
    QPalette colors;
    for (const auto role : {QPalette::Window, QPalette::Base, QPalette::Button})
        colors.setColor(role, theme.ground);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        colors.setColor(role, theme.ink);
    return colors;
}

constexpr Theme dark{"dark", Qt::darkGray, Qt::white};
constexpr Theme light{"light", Qt::lightGray, Qt::black};

class Outlines : public PlatformTest {
protected:
    Outlines() : m_before(QApplication::palette()) { window.resize(400, 200); }
    void TearDown() override { QApplication::setPalette(m_before); }

    void addControls() {
        list = new ComboBox(QStringLiteral("list"), &window);
        field = new ComboBox(QStringLiteral("field"), &window);
        field->setEditable(true);
        button =
            new CommandButton(QStringLiteral("button"), QStringLiteral("buttons/close"), &window);
        check = new QCheckBox(QStringLiteral("check"), &window);
        option = new QRadioButton(QStringLiteral("option"), &window);
        list->setGeometry(10, 10, 120, 26);
        field->setGeometry(10, 50, 120, 26);
        button->move(10, 90);
        check->setGeometry(10, 130, 120, 26);
        option->setGeometry(10, 165, 120, 26);
        bar = new QScrollBar(Qt::Vertical, &window);
        bar->setGeometry(200, 10, 16, 170);
        bar->setValue(bar->maximum() / 2);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    QImage picture() { return window.grab().toImage(); }

    static void choose(const Theme& theme) {
        QApplication::setPalette(colorsOf(theme));
        processEvents();
    }

    QImage pictureIn(const Theme& theme) {
        choose(theme);
        return picture();
    }

    /// Looks for a contrast with the window along two lines that lead over the edge
    /// of a part of a control, in the middle of its left and of its upper side.
    void expectSeen(QWidget* control, QRect part) {
        part.translate(control->pos());
        EXPECT_GE(best({part.left() - 2, part.center().y()}, {1, 0}), enoughContrast);
        EXPECT_GE(best({part.center().x(), part.top() - 2}, {0, 1}), enoughContrast);
    }

    QRect indicator(QAbstractButton* control, QStyle::SubElement element) {
        QStyleOptionButton whole;
        whole.initFrom(control);
        return control->style()->subElementRect(element, &whole, control);
    }

    QRect slider() {
        QStyleOptionSlider whole;
        whole.initFrom(bar);
        whole.minimum = bar->minimum();
        whole.maximum = bar->maximum();
        whole.pageStep = bar->pageStep();
        whole.sliderPosition = whole.sliderValue = bar->value();
        whole.orientation = Qt::Vertical;
        return bar->style()->subControlRect(QStyle::CC_ScrollBar, &whole,
                                            QStyle::SC_ScrollBarSlider, bar);
    }

    void expectAllSeen() {
        for (QWidget* control : {static_cast<QWidget*>(list), static_cast<QWidget*>(field),
                                 static_cast<QWidget*>(button)}) {
            SCOPED_TRACE(control->objectName().toStdString());
            expectSeen(control, control->rect());
        }
        SCOPED_TRACE("a part");
        expectSeen(check, indicator(check, QStyle::SE_CheckBoxIndicator));
        expectSeen(option, indicator(option, QStyle::SE_RadioButtonIndicator));
        expectSeen(bar, slider());
    }

    QWidget window;
    ComboBox* list = nullptr;
    ComboBox* field = nullptr;
    CommandButton* button = nullptr;
    QCheckBox* check = nullptr;
    QRadioButton* option = nullptr;
    QScrollBar* bar = nullptr;

private:
    double best(QPoint from, QPoint step) {
        const QImage image = picture();
        const QColor ground = window.palette().color(QPalette::Window);
        double found = 1.0;
        for (int pixel = 0; pixel < 5; ++pixel, from += step)
            found = std::max(found, contrast(image.pixelColor(from), ground));
        return found;
    }

    QPalette m_before;
};

class ForcedOutlines : public Outlines, public testing::WithParamInterface<Theme> {};

TEST_P(ForcedOutlines, AreSeenFromTheStart) {
    choose(GetParam());
    addControls();
    expectAllSeen();
}

TEST_P(ForcedOutlines, AreSeenWhenTheThemeComesLater) {
    addControls();
    choose(GetParam());
    expectAllSeen();
}

TEST_P(ForcedOutlines, GoWithTheTheme) {
    addControls();
    const QImage inDark = pictureIn(dark);
    const QImage inLight = pictureIn(light);
    choose(GetParam());
    EXPECT_EQ(pictureIn(dark), inDark);
    EXPECT_EQ(pictureIn(light), inLight);
}

INSTANTIATE_TEST_SUITE_P(Themes, ForcedOutlines,
                         testing::Values(Theme{"white on black", Qt::black, Qt::white},
                                         Theme{"yellow on black", Qt::black, Qt::yellow},
                                         Theme{"green on black", Qt::black, Qt::green},
                                         Theme{"black on white", Qt::white, Qt::black}));

TEST_F(Outlines, StayAsTheStyleDrawsThemInOtherThemes) {
    addControls();
    for (const Theme& theme : {dark, light, Theme{"grey on white", Qt::white, Qt::darkGray}}) {
        choose(theme);
        for (const QWidget* control : {static_cast<QWidget*>(list), static_cast<QWidget*>(button),
                                       static_cast<QWidget*>(check)})
            EXPECT_EQ(control->palette().color(QPalette::Window), QColor(theme.ground))
                << theme.name;
    }
}

TEST_F(Outlines, AreLeftToStylesThatDrawThemInOtherColors) {
    QApplication::setStyle(QStringLiteral("windows"));
    choose({"white on black", Qt::black, Qt::white});
    addControls();
    const QColor ground = list->palette().color(QPalette::Window);
    QApplication::setStyle(QStringLiteral("fusion"));
    EXPECT_EQ(ground, QColor(Qt::black));
}

TEST_F(Outlines, FollowTheColorsOfWindowsWhateverThoseOfFieldsAre) {
    addControls();
    QPalette colors = colorsOf({"yellow on black", Qt::black, Qt::yellow});
    colors.setColor(QPalette::Base, Qt::white);
    colors.setColor(QPalette::Text, Qt::red);
    QApplication::setPalette(colors);
    processEvents();
    EXPECT_EQ(check->palette().color(QPalette::Window), QColor(Qt::yellow));
    colors = colorsOf({"grey on white", Qt::white, Qt::darkGray});
    colors.setColor(QPalette::Text, Qt::black);
    QApplication::setPalette(colors);
    processEvents();
    EXPECT_EQ(check->palette().color(QPalette::Window), QColor(Qt::white)) << "not forced";
}

class OutlinesToCome : public PlatformTest {
protected:
    void TearDown() override { QApplication::setPalette(m_before); }

    static void chooseWhiteOnBlack() {
        QApplication::setPalette(colorsOf({"white on black", Qt::black, Qt::white}));
    }

    static QColor ground() { return QApplication::palette("QComboBox").color(QPalette::Window); }

private:
    const QPalette m_before = QApplication::palette();
};

TEST_F(OutlinesToCome, AreChosenBeforeThereIsAWindow) {
    chooseWhiteOnBlack();
    EXPECT_EQ(ground(), QColor(Qt::white));
}

/// Keeps from the program, while it lives, that its theme is another.
class KeptTheme : public QObject {
public:
    KeptTheme() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* receiver, QEvent* event) override {
        return receiver == qApp && event->type() == QEvent::ApplicationPaletteChange;
    }
};

TEST_F(OutlinesToCome, AreChosenInAThemeThatIsOlderThanTheProgram) {
    {
        const KeptTheme kept;
        chooseWhiteOnBlack();
    }
    ASSERT_EQ(ground(), QColor(Qt::black));
    InstallControlOutlines();
    const std::unique_ptr<QObject> added(qApp->children().constLast());
    EXPECT_EQ(ground(), QColor(Qt::white));
}

} // namespace
