// SPDX-License-Identifier: MIT
#include "start/frmoptions.h"

#include "calc/calc.h"
#include "changecals/controltexts.h"
#include "changecals/opening.h"
#include "changecals/saving.h"
#include "changecals/windows.h"
#include "platform/combobox.h"
#include "platform/commandbutton.h"
#include "platform/message.h"
#include "platform/pointer.h"
#include "platform/settingsstore.h"
#include "platform/text.h"
#include "shared/settings.h"
#include "shared/texts.h"
#include "start/language.h"
#include "start/rebuilding.h"
#include "yearcals/yearcals.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

constexpr int textWidth = 430; // pixels, at which the longest label wraps

QString frameCaption(int label) {
    return Caption(LabelTexts(label));
}

// The era and the leap years of a variant, the latter alone where the language
// has no text for the era.
QString variantCaption(int era, int leapYears) {
    const std::string& text = LabelTexts(era);
    return text.empty() ? Caption(LabelTexts(leapYears))
                        : Caption(text) + LineBreak() + Caption(LabelTexts(leapYears));
}

void saveNumber(const QString& section, const QString& key, int value) {
    SaveSetting(section, key, QString::number(value));
}

QString startup() {
    return QStringLiteral("Startup");
}

} // namespace

frmOptions::frmOptions()
    : Dialog(QStringLiteral("frmOptions")),
      m_moslemType(MoslemType),
      m_firstWeekDay(FirstWeekDay),
      m_language(LanguageName),
      m_paneCalendar(CalendarOrder) {
    Form_Load();
}

void frmOptions::Form_Load() {
    SetCaption(Text(LabelTexts(OptionsLabel)));
    // A dialog has no columns of days: it runs as its language does.
    const bool rightToLeft = Text(LabelTexts(OptionsLabel)).isRightToLeft();
    setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);

    // Created in the order in which Tab goes through them.
    QGroupBox* moslem = moslemFrame();
    QGroupBox* weekdays = weekdaysFrame();
    QGroupBox* language = languageFrame();
    QGroupBox* startupWindow = startupFrame();
    m_check1 = new QCheckBox(Caption(LabelTexts(ShowTipsLabel)), this);
    m_check1->setObjectName(QStringLiteral("Check1"));
    m_check1->setChecked(ShowTips != 0);

    auto* columns = new QHBoxLayout;
    auto* right = new QVBoxLayout;
    columns->addWidget(weekdays);
    columns->addLayout(right, 1);
    right->addWidget(language);
    right->addWidget(startupWindow);

    auto* commands = new QHBoxLayout;
    commands->addWidget(m_check1);
    commands->addStretch();
    commands->addWidget(newCommand(Apply, QStringLiteral("buttons/apply"), ApplyText));
    commands->addWidget(newCommand(Close, QStringLiteral("buttons/close"), CloseText));

    auto* rows = new QVBoxLayout(this);
    rows->setSizeConstraint(QLayout::SetFixedSize);
    rows->addWidget(moslem);
    rows->addLayout(columns);
    rows->addLayout(commands);
    adjustSize();
    Place();
}

void frmOptions::Command1_Click(int index) {
    if (index == Apply)
        apply();
    else
        Unload();
}

void frmOptions::Option1_Click(int type) {
    m_moslemType = type;
}

// The calendar is the one that the pane had when the dialog was loaded.
void frmOptions::Combo1_Click(int pane) {
    m_firstWeekDay(m_paneCalendar(pane)) = m_combo1(pane)->ListIndex() + 1;
}

QGroupBox* frmOptions::moslemFrame() {
    auto* frame = new QGroupBox(frameCaption(MoslemCalendarLabel), this);
    auto* rows = new QVBoxLayout(frame);
    auto* explanation = new QLabel(Text(LabelTexts(MoslemTypesLabel)));
    explanation->setTextFormat(Qt::PlainText);
    explanation->setWordWrap(true);
    explanation->setMinimumWidth(textWidth);
    rows->addWidget(explanation);
    const Table<QString, 2> captions{variantCaption(MoslemEra1Label, MoslemLeapYears1Label),
                                     variantCaption(MoslemEra2Label, MoslemLeapYears2Label)};
    for (int type = 1; type <= 2; ++type) {
        auto* option = new QRadioButton(captions(type));
        option->setObjectName(QStringLiteral("Option1_%1").arg(type));
        option->setChecked((MoslemType == 1) == (type == 1));
        connect(option, &QRadioButton::clicked, this, [this, type] { Option1_Click(type); });
        rows->addWidget(option);
    }
    return frame;
}

QGroupBox* frmOptions::weekdaysFrame() {
    auto* frame = new QGroupBox(frameCaption(FirstWeekDayLabel), this);
    auto* grid = new QGridLayout(frame);
    for (int pane = 1; pane <= 4; ++pane) {
        const int c = m_paneCalendar(pane);
        auto* label = new QLabel;
        label->setTextFormat(Qt::PlainText);
        auto* list = new ComboBox(QStringLiteral("Combo1_%1").arg(pane), frame);
        list->setMinimumContentsLength(4);
        m_combo1(pane) = list;
        if (isCalendar(c)) {
            label->setText(Text(CalendarNames(c)));
            for (int weekday = Monday; weekday <= Sunday; ++weekday)
                list->AddItem(Text(WeekDayAbbrs(weekday)));
            list->SetListIndex(Calc::WeekStart(c) - 1);
        }
        list->setEnabled(isCalendar(c));
        list->setAccessibleName(label->text());
        connect(list, &ComboBox::Click, this, [this, pane] { Combo1_Click(pane); });
        grid->addWidget(label, pane - 1, 0);
        grid->addWidget(list, pane - 1, 1);
    }
    return frame;
}

QGroupBox* frmOptions::languageFrame() {
    auto* frame = new QGroupBox(frameCaption(LanguageLabel), this);
    auto* rows = new QVBoxLayout(frame);
    m_combo2 = new ComboBox(QStringLiteral("Combo2"), frame);
    m_combo2->setMinimumContentsLength(18);
    m_combo2->setAccessibleName(Text(LabelTexts(LanguageLabel)));
    m_combo2->SetItems(LanguageList(), -1);
    selectLanguage();
    rows->addWidget(m_combo2);
    return frame;
}

QGroupBox* frmOptions::startupFrame() {
    auto* frame = new QGroupBox(frameCaption(StartupWindowLabel), this);
    auto* rows = new QVBoxLayout(frame);
    m_combo3 = new ComboBox(QStringLiteral("Combo3"), frame);
    m_combo3->setMinimumContentsLength(18);
    m_combo3->setAccessibleName(Text(LabelTexts(StartupWindowLabel)));
    m_combo3->AddItem(Text(CalendarNames(monthlyCalendarsName)));
    for (int c = 1; c <= calendarCount; ++c)
        m_combo3->AddItem(Text(CalendarNames(c)));
    m_combo3->SetListIndex(StartupWindow);
    rows->addWidget(m_combo3);
    return frame;
}

CommandButton* frmOptions::newCommand(int index, const QString& picture, int tip) {
    auto* button = new CommandButton(QStringLiteral("Command1_%1").arg(index), picture, this);
    ChangeCals::SetTip(button, Text(StringTexts(tip)));
    connect(button, &CommandButton::clicked, this, [this, index] { Command1_Click(index); });
    return button;
}

// The present language may have no entry: its file may have gone meanwhile. Then
// nothing is proposed in its place.
void frmOptions::selectLanguage() {
    const QString name = Text(m_language);
    const int exact = m_combo2->findText(name, Qt::MatchExactly | Qt::MatchCaseSensitive);
    m_combo2->SetListIndex(exact >= 0 ? exact : m_combo2->findText(name, Qt::MatchFixedString));
}

void frmOptions::apply() {
    if (m_combo2->Text().isEmpty()) {
        m_combo2->setFocus();
        MsgBox(Text(StringTexts(SelectLanguageText)));
        return;
    }
    {
        const HourglassPointer hourglass;
        m_language = m_combo2->Text().toStdString();
        if (m_combo3->ListIndex() >= 0)
            StartupWindow = m_combo3->ListIndex();
        save();
        ChangeCals::UnloadAbout();
        YearCals::ForgetShownYears();
        if (m_language != LanguageName)
            applyNewLanguage();
        else
            applyOtherChanges();
    }
    Unload();
}

// Stored before anything is applied, so that it is kept even if that fails.
void frmOptions::save() const {
    saveNumber(ChangeCals::SettingsSection(Moslem), QStringLiteral("Type"), m_moslemType);
    for (int c = 1; c <= calendarCount; ++c)
        saveNumber(ChangeCals::SettingsSection(c), QStringLiteral("FirstWeekDay"),
                   m_firstWeekDay(c));
    SaveSetting(startup(), QStringLiteral("Language"), Text(m_language));
    saveNumber(startup(), QStringLiteral("Window"), StartupWindow);
    saveNumber(startup(), QStringLiteral("ShowTips"), m_check1->isChecked() ? 1 : 0);
    ChangeCals::FlushSettingsOrTell();
}

// Also when the file turns out to be missing: the texts have then been read anew
// all the same.
void frmOptions::applyNewLanguage() {
    LoadLanguage(m_language);
    Calc::ResetJewishLayout();
    Calc::SetJewishMonths();
    applyMoslemType();
    applyFirstWeekDays();
    LanguageName = m_language;
    setShowTips();
    ChangeCals::SetAllTexts();
    RebuildVisibleWindows();
}

void frmOptions::applyOtherChanges() {
    Table<bool, calendarCount> changed = applyFirstWeekDays();
    if (applyMoslemType())
        changed(Moslem) = true;
    RebuildVisibleWindowsOf(changed);
    if (setShowTips())
        ChangeCals::SetAllTexts();
}

bool frmOptions::applyMoslemType() const {
    if (m_moslemType == MoslemType)
        return false;
    MoslemType = m_moslemType;
    Calc::SetMoslemType();
    Calc::JDToMoslem();
    return true;
}

Table<bool, calendarCount> frmOptions::applyFirstWeekDays() const {
    Table<bool, calendarCount> changed;
    for (int c = 1; c <= calendarCount; ++c) {
        changed(c) = m_firstWeekDay(c) != FirstWeekDay(c);
        if (!changed(c))
            continue;
        FirstWeekDay(c) = m_firstWeekDay(c);
        Calc::SetWeeks(c);
    }
    return changed;
}

bool frmOptions::setShowTips() const {
    const int chosen = m_check1->isChecked() ? 1 : 0;
    const bool changed = chosen != ShowTips;
    ShowTips = chosen;
    return changed;
}
