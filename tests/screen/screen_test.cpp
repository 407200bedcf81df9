// SPDX-License-Identifier: MIT
// What the screen itself shows of the windows after all that changes them. The
// screen is at least 2400 pixels wide and high in the windows' terms, so that no
// window covers another.
#include "changecals/opening.h"
#include "changecals/windows.h"
#include "platform/combobox.h"
#include "platform/commandbutton.h"
#include "platform/flexgrid.h"
#include "platform/twips.h"
#include "shared/settings.h"
#include "start/start.h"
#include "support/screenjudge.h"
#include "support/widget_test.h"

#include <QAbstractButton>
#include <QFile>

namespace {

constexpr int monthly = 5;

class Screen : public WidgetTest {
protected:
    Screen() {
        QApplication::setCursorFlashTime(0);
        Today = [] { return QDate(2026, 11, 20); };
        placeFiles();
        placeApart();
        EXPECT_TRUE(Start::Main());
        ChangeCals::OpenYearWindowsOfPanes();
        ChangeCals::ShowMoonWindow();
        for (int number = 1; number <= mainWindowCount; ++number)
            EXPECT_TRUE(QTest::qWaitForWindowExposed(&window(number))) << number;
        expectFresh("at the beginning");
    }
    ~Screen() override { ChangeCals::EndRun(); }

    void placeFiles() const {
        for (const char* language : {"German", "Hebrew", "Russian"})
            copyLanguage(language);
        QImage picture(200, 200, QImage::Format_RGB32);
        picture.fill(Qt::yellow);
        EXPECT_TRUE(picture.save(programPath(QStringLiteral("Moon.bmp")), "BMP"));
    }

    /// Above and below the dialogs, which stand a third of the screen down.
    void placeApart() const {
        const QPoint places[] = {{10, 30},   {420, 30},  {830, 30},
                                 {1360, 30}, {10, 1300}, {800, 1300}};
        QByteArray settings;
        const char* sections[] = {"Julian", "Gregorian", "Jewish", "Moslem", "Monthly", "Moon"};
        for (int number = 0; number < mainWindowCount; ++number)
            settings += QStringLiteral("[%1]\nLeft=%2\nTop=%3\n")
                            .arg(QLatin1String(sections[number]))
                            .arg(ToTwips(places[number].x()).count)
                            .arg(ToTwips(places[number].y()).count)
                            .toUtf8();
        writeFile(settingsPath(), settings);
    }

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

    static void expectFresh(const char* when) {
        for (int number = 1; number <= mainWindowCount; ++number)
            expectFresh(window(number), when);
    }

    static void expectFresh(Form& form, const char* when) {
        const QRect stale = StalePixels(form);
        EXPECT_TRUE(stale.isEmpty())
            << form.objectName().toStdString() << ' ' << when << ": " << stale.x() << ", "
            << stale.y() << ", " << stale.width() << " x " << stale.height();
    }

    /// Changes the options and applies them.
    static void changeOptions(const char* language, const char* option) {
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
        processEvents();
        EXPECT_EQ(LanguageName, language);
    }
};

TEST_F(Screen, IsFreshAfterEveryStep) {
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

TEST_F(Screen, IsFreshAfterAPressInEveryGrid) {
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

TEST_F(Screen, IsFreshInEveryLanguageAndWithEveryOption) {
    for (const char* language : {"Russian", "Hebrew", "German", "English (Default)"}) {
        for (const char* option : {"Option1_2", "Check1", "Option1_1"}) {
            changeOptions(language, option);
            expectFresh(language);
        }
    }
}

} // namespace
