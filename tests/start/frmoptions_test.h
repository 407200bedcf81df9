// SPDX-License-Identifier: MIT
#pragma once

#include "changecals/windows.h"
#include "platform/combobox.h"
#include "platform/commandbutton.h"
#include "start/frmoptions.h"
#include "support/recording_windows.h"
#include "support/widget_test.h"

#include <QFile>
#include <QPointer>

class Options : public WidgetTest {
protected:
    Options() {
        startToday();
        ChangeCals::BeginRun({
            [this] { return monthly = new RecordingMonthly; },
            [this](int c) { return years(c) = new RecordingYear(c); },
            [this] { return moon = new RecordingMoon; },
            [] { return new frmOptions; },
            [] { return new Form(QStringLiteral("frmAbout")); },
        });
        ChangeCals::LoadMonthly();
        for (int c = 1; c <= calendarCount; ++c)
            ChangeCals::LoadYear(c);
        ChangeCals::LoadMoon();
    }

    void open() {
        ChangeCals::LoadOptions().Show();
        dialog = &ChangeCals::LoadOptions();
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
        for (Record* record : records())
            *record = {};
    }

    void apply() {
        click(child<CommandButton>(*dialog, "Command1_1"));
        processEvents();
    }

    void close() {
        click(child<CommandButton>(*dialog, "Command1_2"));
        processEvents();
    }

    ComboBox* list(const char* name) { return child<ComboBox>(*dialog, name); }

    /// Chooses an entry of a list by keys.
    void choose(const char* name, int position) {
        ComboBox* box = list(name);
        box->setFocus();
        QTest::keyClick(box, Qt::Key_Home);
        for (int step = 0; step < position; ++step)
            QTest::keyClick(box, Qt::Key_Down);
        EXPECT_EQ(box->ListIndex(), position) << name;
    }

    void chooseLanguage(const char* language) {
        choose("Combo2", list("Combo2")->findText(QLatin1String(language)));
    }

    /// Presses a box or an option by its key.
    void press(const char* name) {
        auto* button = child<QAbstractButton>(*dialog, name);
        button->setFocus();
        QTest::keyClick(button, Qt::Key_Space);
    }

    /// Opens the dialog, chooses a language and applies it.
    void changeLanguage(const char* language) {
        open();
        chooseLanguage(language);
        apply();
        EXPECT_EQ(LanguageName, language);
    }

    std::vector<Record*> records() {
        return {&years(1)->record, &years(2)->record, &years(3)->record,
                &years(4)->record, &monthly->record,  &moon->record};
    }

    /// How often each window was rebuilt, by the numbers of the main windows.
    std::vector<int> rebuilt() {
        std::vector<int> counts;
        for (const Record* record : records())
            counts.push_back(record->rebuilt);
        return counts;
    }

    std::vector<int> texts() {
        std::vector<int> counts;
        for (const Record* record : records())
            counts.push_back(record->texts);
        return counts;
    }

    void showAllWindows() {
        monthly->Show();
        moon->Show();
        for (int c = 1; c <= calendarCount; ++c)
            years(c)->Show();
    }

    /// "Section/Key=Value" of everything in the settings file.
    QStringList stored() const {
        QStringList entries;
        QString section;
        for (const QString& line : QString::fromUtf8(readFile(settingsPath())).split(u'\n')) {
            if (line.startsWith(u'['))
                section = line.chopped(1).mid(1) + u'/';
            else if (!line.isEmpty())
                entries.append(section + line);
        }
        entries.sort();
        return entries;
    }

    bool isStored(const char* entry) const { return stored().contains(QString::fromUtf8(entry)); }

    const std::vector<int> nothing = std::vector<int>(mainWindowCount, 0);
    RecordingMonthly* monthly = nullptr;
    Table<RecordingYear*, calendarCount> years;
    RecordingMoon* moon = nullptr;
    QPointer<Form> dialog;
};
