// SPDX-License-Identifier: MIT
#include "start/frmoptions.h"

#include "calc/calc.h"
#include "changecals/changecals.h"
#include "changecals/opening.h"
#include "changecals/windows.h"
#include "controls/tips.h"
#include "platform/combobox.h"
#include "platform/commandbutton.h"
#include "platform/message.h"
#include "platform/pointer.h"
#include "platform/text.h"
#include "platform/textfit.h"
#include "settings/usersettings.h"
#include "shared/settings.h"
#include "shared/texts.h"
#include "start/language.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>
#include <algorithm>

namespace {

constexpr int greatestWidth = 640; // pixels
constexpr int charactersOfLine = 70;

// The era and the leap years of a variant, the latter alone where the language
// has no text for the era.
QString variantCaption(int era, int leapYears) {
    const QString text = Text(LabelTexts(era));
    return text.isEmpty() ? Text(LabelTexts(leapYears))
                          : text + u'\n' + Text(LabelTexts(leapYears));
}

int widestWord(const QFontMetrics& metrics) {
    int width = 0;
    for (int c = 1; c <= calendarCount; ++c) {
        for (const QString& word : Text(CalendarNames(c)).split(u' '))
            width = std::max(width, metrics.horizontalAdvance(word));
    }
    return width;
}

// Its text is shown as it stands, wrapped at `width` pixels.
QLabel* newLabel(const QString& text, int width, QWidget* parent, const QFont& font = {}) {
    auto* label = new QLabel(parent);
    label->setFont(font);
    label->setTextFormat(Qt::PlainText);
    label->setText(Wrapped(text, label->font(), width));
    return label;
}

// The rows of a frame. Its title stands inside, wrapped: the toolkit does not wrap it,
// and some styles cut it.
QVBoxLayout* newFrame(const QString& title, int width, QWidget* parent) {
    auto* frame = new QGroupBox(parent);
    frame->setAccessibleName(title);
    auto* rows = new QVBoxLayout(frame);
    const QMargins margins = rows->contentsMargins();
    rows->setContentsMargins(margins - QMargins(0, margins.top() / 2, 0, margins.bottom() / 2));
    QFont bold = frame->font();
    bold.setBold(true);
    rows->addWidget(newLabel(title, width, frame, bold));
    return rows;
}

// The caption of a button that has `width` pixels for it.
QString wrappedCaption(const QString& text, const QFont& font, int width) {
    return Caption(Wrapped(text, font, width).toStdString());
}

} // namespace

frmOptions::frmOptions()
    : Dialog(QStringLiteral("frmOptions")),
      m_moslemType(MoslemType),
      m_firstWeekDay(FirstWeekDay),
      m_paneCalendar(CalendarOrder) {
    Form_Load();
}

void frmOptions::Form_Load() {
    SetCaption(Text(LabelTexts(OptionsLabel)));
    // A dialog has no columns of days: it runs as its language does.
    setLayoutDirection(windowTitle().isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);

    // Created in the order in which Tab goes through them.
    measure();
    auto* frames = new QWidget(this);
    placeFrames(frames);
    QHBoxLayout* commands = commandRow();
    auto* rows = new QVBoxLayout(this);
    rows->setSizeConstraint(QLayout::SetFixedSize);
    rows->addWidget(frames);
    rows->addLayout(commands);
    scrollWhereTooHigh(frames, *rows);
    adjustSize();
    Place();
}

// A scroll bar where the dialog would be higher than the screen, so that the buttons stay
// in sight.
void frmOptions::scrollWhereTooHigh(QWidget* frames, QVBoxLayout& rows) {
    const int screen = QGuiApplication::primaryScreen()->availableSize().height();
    const QSize whole = frames->sizeHint();
    const int others = sizeHint().height() - whole.height();
    const int room = screen - others - 2 * Metric(QStyle::PM_TitleBarHeight);
    if (whole.height() <= room)
        return;
    auto* area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setFixedSize(whole.width() + Metric(QStyle::PM_ScrollBarExtent), room);
    delete rows.replaceWidget(frames, area);
    area->setWidget(frames);
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

// Lines are as long as the font asks for and the greatest width allows.
void frmOptions::measure() {
    const int screen = QGuiApplication::primaryScreen()->availableSize().width();
    const int margins = 5 * Metric(QStyle::PM_LayoutLeftMargin);
    const int scrollBar = Metric(QStyle::PM_ScrollBarExtent);
    m_textWidth = std::min(charactersOfLine * fontMetrics().averageCharWidth(),
                           std::min(greatestWidth, screen) - margins - scrollBar);
    m_columnWidth = m_textWidth / 2 - Metric(QStyle::PM_LayoutLeftMargin);
}

// Two columns below the first frame. Where they are too wide, or too narrow for a word,
// they stand one below the other, each as wide as the frame.
void frmOptions::placeFrames(QWidget* frames) {
    auto* rows = new QVBoxLayout(frames);
    rows->setContentsMargins({});
    rows->addWidget(moslemFrame(frames));
    QWidget* columns = newColumns(frames, QBoxLayout::LeftToRight);
    const int most = m_textWidth + 3 * Metric(QStyle::PM_LayoutLeftMargin);
    if (columns->minimumSizeHint().width() > most || widestWord(fontMetrics()) > nameWidth()) {
        delete columns;
        m_columnWidth = m_textWidth;
        columns = newColumns(frames, QBoxLayout::TopToBottom);
    }
    rows->addWidget(columns);
}

QWidget* frmOptions::newColumns(QWidget* parent, QBoxLayout::Direction direction) {
    auto* widget = new QWidget(parent);
    auto* columns = new QBoxLayout(direction, widget);
    columns->setContentsMargins({});
    columns->addWidget(weekdaysFrame(widget));
    auto* right = new QVBoxLayout;
    columns->addLayout(right, 1);
    m_combo2 = newWideList(QStringLiteral("Combo2"), LanguageLabel, right);
    m_combo2->addItems(LanguageList());
    selectLanguage();
    m_combo3 = newWideList(QStringLiteral("Combo3"), StartupWindowLabel, right);
    m_combo3->AddItem(Text(CalendarNames(monthlyCalendarsName)));
    for (int c = 1; c <= calendarCount; ++c)
        m_combo3->AddItem(Text(CalendarNames(c)));
    m_combo3->SetListIndex(StartupWindow);
    return widget;
}

QWidget* frmOptions::moslemFrame(QWidget* parent) {
    QVBoxLayout* rows = newFrame(Text(LabelTexts(MoslemCalendarLabel)), m_textWidth, parent);
    QLabel* types = newLabel(Text(LabelTexts(MoslemTypesLabel)), m_textWidth, rows->parentWidget());
    types->setText(Caption(types->text().toStdString())); // a label's "&" is its buddy's key
    rows->addWidget(types);
    const int captionWidth = m_textWidth - Metric(QStyle::PM_ExclusiveIndicatorWidth) -
                             Metric(QStyle::PM_RadioButtonLabelSpacing);
    const Table<QString, 2> captions{variantCaption(MoslemEra1Label, MoslemLeapYears1Label),
                                     variantCaption(MoslemEra2Label, MoslemLeapYears2Label)};
    for (int type = 1; type <= 2; ++type) {
        auto* option = new QRadioButton(wrappedCaption(captions(type), font(), captionWidth));
        option->setObjectName(QStringLiteral("Option1_%1").arg(type));
        option->setChecked((MoslemType == 1) == (type == 1));
        connect(option, &QRadioButton::clicked, this, [this, type] { Option1_Click(type); });
        // An assistive tool chooses without a click.
        connect(option, &QRadioButton::toggled, this, [this, type](bool chosen) {
            if (chosen)
                Option1_Click(type);
        });
        rows->addWidget(option);
        if (type == 1)
            types->setBuddy(option); // told once, with the first choice
    }
    return rows->parentWidget();
}

QWidget* frmOptions::weekdaysFrame(QWidget* parent) {
    QVBoxLayout* rows = newFrame(Text(LabelTexts(FirstWeekDayLabel)), m_columnWidth, parent);
    auto* grid = new QGridLayout;
    rows->addLayout(grid);
    for (int pane = 1; pane <= paneCount; ++pane) {
        const int c = m_paneCalendar(pane);
        const QString name = IsCalendar(c) ? Text(CalendarNames(c)) : QString();
        m_combo1(pane) = newWeekdayList(pane, rows->parentWidget());
        m_combo1(pane)->setAccessibleName(name);
        grid->addWidget(newLabel(name, nameWidth(), rows->parentWidget()), pane - 1, 0);
        grid->addWidget(m_combo1(pane), pane - 1, 1);
    }
    grid->setColumnStretch(0, 1);
    return rows->parentWidget();
}

ComboBox* frmOptions::newWeekdayList(int pane, QWidget* parent) {
    auto* list = new ComboBox(QStringLiteral("Combo1_%1").arg(pane), parent);
    list->setMinimumContentsLength(4);
    const int c = m_paneCalendar(pane);
    list->setEnabled(IsCalendar(c));
    if (IsCalendar(c)) {
        for (int weekday = Monday; weekday <= Sunday; ++weekday)
            list->AddItem(Text(WeekDayAbbrs(weekday)));
        list->SetSpokenEntries([](int position) { return Text(WeekDayNames(position + Monday)); });
        list->SetListIndex(Calc::WeekStart(c) - 1);
    }
    connect(list, &ComboBox::Click, this, [this, pane] { Combo1_Click(pane); });
    return list;
}

// In a frame of its own at the end of a column.
ComboBox* frmOptions::newWideList(const QString& name, int label, QVBoxLayout* column) {
    QVBoxLayout* rows = newFrame(Text(LabelTexts(label)), m_columnWidth, column->parentWidget());
    column->addWidget(rows->parentWidget());
    auto* list = new ComboBox(name, rows->parentWidget());
    list->setMinimumContentsLength(18);
    list->setAccessibleName(Text(LabelTexts(label)));
    rows->addWidget(list);
    rows->addStretch(); // titles of frames side by side stand on one line
    return list;
}

// Of a calendar beside its list of weekdays.
int frmOptions::nameWidth() const {
    return m_columnWidth * 2 / 3;
}

// They are as high as a list.
int frmOptions::buttonSide() const {
    return std::max(CommandButton::side, m_combo3->sizeHint().height());
}

QHBoxLayout* frmOptions::commandRow() {
    const int captionWidth = m_textWidth - Metric(QStyle::PM_IndicatorWidth) -
                             Metric(QStyle::PM_CheckBoxLabelSpacing) - 2 * buttonSide();
    m_check1 =
        new QCheckBox(wrappedCaption(Text(LabelTexts(ShowTipsLabel)), font(), captionWidth), this);
    m_check1->setObjectName(QStringLiteral("Check1"));
    m_check1->setChecked(ShowTips != 0);
    auto* commands = new QHBoxLayout;
    commands->addWidget(m_check1);
    commands->addStretch();
    commands->addWidget(newCommand(Apply, QStringLiteral("buttons/apply"), ApplyText));
    commands->addWidget(newCommand(Close, QStringLiteral("buttons/close"), CloseText));
    return commands;
}

CommandButton* frmOptions::newCommand(int index, const QString& picture, int tip) {
    auto* button = new CommandButton(QStringLiteral("Command1_%1").arg(index), picture, this);
    button->SetSide(buttonSide());
    Controls::SetTip(button, tip);
    connect(button, &CommandButton::clicked, this, [this, index] { Command1_Click(index); });
    return button;
}

// The present language may have no entry: its file may have gone meanwhile. Then
// nothing is proposed in its place.
void frmOptions::selectLanguage() {
    const QString name = Text(LanguageName);
    const auto match = Qt::MatchExactly | Qt::MatchCaseSensitive;
    const int exact = m_combo2->findText(name, match);
    m_combo2->SetListIndex(exact >= 0 ? exact : m_combo2->findText(ListedName(name), match));
}

void frmOptions::apply() {
    if (m_combo2->Text().isEmpty()) {
        m_combo2->setFocus();
        MsgBox(Text(StringTexts(SelectLanguageText)));
        return;
    }
    {
        const PointerShape hourglass(Qt::WaitCursor);
        const Choices before;
        writeChoices();
        SaveSettings(SettingGroup::Options); // kept even if applying should fail
        ChangeCals::UnloadAbout();
        applyChanges(before);
    }
    Unload();
}

void frmOptions::writeChoices() {
    MoslemType = m_moslemType;
    FirstWeekDay = m_firstWeekDay;
    LanguageName = m_combo2->Text().toStdString();
    if (m_combo3->ListIndex() >= 0)
        StartupWindow = m_combo3->ListIndex();
    ShowTips = m_check1->isChecked() ? 1 : 0;
}

// Of a language whose file turns out to be missing the texts have been read anew
// all the same.
void frmOptions::applyChanges(const Choices& before) {
    const bool otherLanguage = LanguageName != before.languageName;
    if (otherLanguage)
        LoadLanguage(LanguageName);
    Table<bool, calendarCount> changed = ChangeCals::ChangeRules(before.rules);
    if (otherLanguage)
        changed = {true, true, true, true};
    if (otherLanguage || ShowTips != before.showTips)
        ChangeCals::SetAllTexts();
    ChangeCals::RebuildWindows(changed);
}
