// SPDX-License-Identifier: MIT
// What the screen itself shows of the windows after all that changes them.
#include "platform/combobox.h"
#include "platform/commandbutton.h"
#include "platform/flexgrid.h"
#include "screen/screen.h"

#include <QAbstractButton>

namespace {

constexpr int monthly = 5;

class ScreenSteps : public Screen {
protected:
    ScreenSteps() : Screen(QStringLiteral("English (Default)")) {}

    static MainWindow& window(int number) {
        return *ChangeCals::LoadedWindow(static_cast<MainWindowNumber>(number));
    }

    static MSFlexGrid& grid(int number, const char* name = "MSFlexGrid1") {
        return *child<MSFlexGrid>(window(number), name);
    }

    /// Presses a button of a window.
    static void use(int number, const char* button) {
        click(child<CommandButton>(window(number), button));
    }

    static void pressCell(MSFlexGrid& grid, int row, int column) {
        const QRect cell = grid.visualRect(grid.model()->index(row, column));
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, cell.center());
    }

    /// Changes the options and applies them.
    void changeOptions(const char* language, const char* option) {
        use(monthly, "Command1_3");
        Form& dialog = ChangeCals::LoadOptions();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        expectFresh(dialog, "when opened");
        auto* languages = child<ComboBox>(dialog, "Combo2");
        languages->setFocus();
        QTest::keyClicks(languages, QLatin1String(language));
        click(child<QAbstractButton>(dialog, option));
        expectFresh(dialog, "when changed");
        click(child<CommandButton>(dialog, "Command1_1"));
        EXPECT_EQ(LanguageName, language);
    }
};

TEST_F(ScreenSteps, IsFreshAfterEveryStep) {
    MSFlexGrid& gregorian = grid(monthly, "MSFlexGrid1_2");
    for (const Qt::Key key : {Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_End, Qt::Key_Home}) {
        gregorian.setFocus();
        QTest::keyClick(&gregorian, key);
        expectFresh("after a key");
        QTest::keyClick(&gregorian, key, Qt::ShiftModifier);
        expectFresh("after a key with Shift");
    }
    for (int c = 1; c <= calendarCount; ++c) {
        for (const char* button : {"Command1_2", "Command1_1", "Command1_3"}) {
            use(c, button);
            expectFresh(button);
        }
    }
}

TEST_F(ScreenSteps, IsFreshAfterAPressInEveryGrid) {
    for (const char* name : {"MSFlexGrid1_1", "MSFlexGrid1_2", "MSFlexGrid1_3", "MSFlexGrid1_4"}) {
        pressCell(grid(monthly, name), 6, 3);
        expectFresh(name);
    }
    for (int c = 1; c <= calendarCount; ++c) {
        pressCell(grid(c), 3, 3);
        expectFresh("after a press in a year");
        pressCell(grid(c), 31, 15);
        expectFresh("after a press at a year's end");
    }
}

TEST_F(ScreenSteps, IsFreshInEveryLanguageAndWithEveryOption) {
    for (const char* language : {"Russian", "Hebrew", "German", "English (Default)"}) {
        for (const char* option : {"Option1_2", "Check1", "Option1_1"}) {
            changeOptions(language, option);
            expectFresh(language);
        }
    }
}

} // namespace
