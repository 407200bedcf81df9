// SPDX-License-Identifier: MIT
#pragma once

#include "changecals/opening.h"
#include "changecals/windows.h"
#include "platform/form.h"
#include "platform/twips.h"
#include "screen/windowmanager.h"
#include "shared/mainwindows.h"
#include "start/start.h"
#include "support/screenjudge.h"
#include "support/widget_test.h"

#include <QImage>

/// All main windows on a screen that is at least 2400 pixels wide and high in the
/// windows' terms, so that none covers another.
class Screen : public WidgetTest {
protected:
    explicit Screen(const QString& language) {
        QApplication::setCursorFlashTime(0);
        Today = [] { return QDate(2026, 11, 20); };
        placeFiles();
        writeSettings(language);
        EXPECT_TRUE(Start::Main());
        openAll();
        expectFresh("at the beginning");
    }
    ~Screen() override { ChangeCals::EndRun(); }

    static void openAll() {
        ChangeCals::ShowMonthlyWindow();
        ChangeCals::OpenYearWindowsOfPanes();
        ChangeCals::ShowMoonWindow();
    }

    /// All windows and dialogs that are on the screen and not minimised.
    void expectFresh(const std::string& when) {
        m_manager.CatchUp();
        const std::vector<Form*> forms = formsInSight();
        expectApart(forms);
        for (Form* form : forms)
            lookAt(*form, when);
    }

    void expectFresh(Form& form, const std::string& when) {
        m_manager.CatchUp();
        lookAt(form, when);
    }

private:
    void placeFiles() const {
        for (const char* language : {"German", "Hebrew", "Russian"})
            copyLanguage(language);
        QImage picture(200, 200, QImage::Format_RGB32);
        picture.fill(Qt::yellow);
        EXPECT_TRUE(picture.save(programPath(QStringLiteral("Moon.bmp")), "BMP"));
    }

    /// The windows stand above and below the dialogs, which stand a third of the
    /// screen down.
    void writeSettings(const QString& language) const {
        const QPoint places[] = {{10, 30},   {420, 30},  {830, 30},
                                 {1360, 30}, {10, 1300}, {800, 1300}};
        QByteArray settings = "[Startup]\nLanguage=" + language.toUtf8() + '\n';
        const char* sections[] = {"Julian", "Gregorian", "Jewish", "Moslem", "Monthly", "Moon"};
        for (int number = 0; number < mainWindowCount; ++number)
            settings += QStringLiteral("[%1]\nLeft=%2\nTop=%3\n")
                            .arg(QLatin1String(sections[number]))
                            .arg(ToTwips(places[number].x()).count)
                            .arg(ToTwips(places[number].y()).count)
                            .toUtf8();
        writeFile(settingsPath(), settings);
    }

    static std::vector<Form*> formsInSight() {
        std::vector<Form*> forms;
        for (QWidget* window : QApplication::topLevelWidgets()) {
            auto* form = qobject_cast<Form*>(window);
            if (form != nullptr && form->isVisible() && form->WindowState() != Form::Minimised)
                forms.push_back(form);
        }
        return forms;
    }

    static void expectApart(const std::vector<Form*>& forms) {
        for (const Form* one : forms)
            for (const Form* other : forms)
                EXPECT_TRUE(one == other || !one->geometry().intersects(other->geometry()))
                    << one->objectName().toStdString() << " covers "
                    << other->objectName().toStdString();
    }

    static void lookAt(Form& form, const std::string& when) {
        EXPECT_TRUE(form.windowHandle()->isExposed()) << form.objectName().toStdString();
        const QRect stale = StalePixels(form);
        EXPECT_TRUE(stale.isEmpty())
            << form.objectName().toStdString() << ' ' << when << ": " << stale.x() << ", "
            << stale.y() << ", " << stale.width() << " x " << stale.height();
    }

    WindowManager m_manager;
};
